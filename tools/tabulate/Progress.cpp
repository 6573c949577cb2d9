#include "tools/tabulate/Progress.h"

#include <algorithm>
#include <utility>

#include "tools/tabulate/Failure.h"

namespace om::tabulate {

namespace {

constexpr std::chrono::milliseconds kPatience(500);
constexpr std::chrono::milliseconds kBetween(100);
constexpr std::size_t kBar = 30;

}  // namespace

Progress::Progress(std::ostream& out, When when, bool isTerminal, Clock clock)
    : out_(out),
      shown_(when == When::ALWAYS || (when == When::AUTO && isTerminal)),
      delay_(when == When::ALWAYS ? std::chrono::milliseconds(0) : kPatience),
      clock_(std::move(clock)) {}

Progress::~Progress() { clear(); }

void Progress::begin(const std::string& what, std::uint64_t size) {
  clear();
  what_ = printable(what, 40);
  size_ = size;
  if (shown_) next_ = clock_() + delay_;
}

void Progress::advance(std::uint64_t done) {
  if (!shown_) return;
  const auto now = clock_();
  if (now < next_) return;
  next_ = now + kBetween;
  draw(done);
}

void Progress::draw(std::uint64_t done) {
  std::string line = what_ + " ";
  if (size_ != 0) {
    const double share = std::min(1.0, static_cast<double>(done) / static_cast<double>(size_));
    const auto full = static_cast<std::size_t>(share * static_cast<double>(kBar));
    line += '[';
    line.append(full, '#').append(kBar - full, '.');
    line.append("] ").append(std::to_string(static_cast<int>(share * 100))).append(" %");
  } else {
    line.append(std::to_string(done >> 20)).append(" MiB");
  }
  const std::size_t width = line.size();
  line.append(drawn_ > width ? drawn_ - width : 0, ' ');
  out_ << '\r' << line << std::flush;
  drawn_ = width;
}

void Progress::clear() {
  if (drawn_ == 0) return;
  out_ << '\r' << std::string(drawn_, ' ') << '\r' << std::flush;
  drawn_ = 0;
}

}  // namespace om::tabulate
