// Progress: a bar on a terminal's standard error for work that takes more than half a second.

#ifndef OM_TOOLS_TABULATE_PROGRESS_H_
#define OM_TOOLS_TABULATE_PROGRESS_H_

#include <chrono>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

namespace om::tabulate {

class Progress {
 public:
  enum class When : std::int32_t {
    AUTO,
    ALWAYS,
    NEVER
  };  // AUTO: on a terminal, once it takes long
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  // Writes to `out`, which outlives it. REQUIRES: `clock` gives times that never go back.
  Progress(std::ostream& out, When when, bool isTerminal,
           Clock clock = std::chrono::steady_clock::now);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  // Wipes the bar.
  ~Progress();

  // What is being done, and how many bytes of it there are; 0 when that is not known.
  void begin(const std::string& what, std::uint64_t size);
  // To be called often: draws ten times a second at most.
  void advance(std::uint64_t done);
  // Wipes the bar, so that something else can be written.
  void clear();

 private:
  void draw(std::uint64_t done);

  std::ostream& out_;
  const bool shown_;
  const std::chrono::milliseconds delay_;
  const Clock clock_;
  std::chrono::steady_clock::time_point next_;
  std::string what_;
  std::uint64_t size_ = 0;
  std::size_t drawn_ = 0;  // columns that the bar takes
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_PROGRESS_H_
