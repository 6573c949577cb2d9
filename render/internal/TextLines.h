// The lines that frame a table in text, and texts between them.

#ifndef OM_RENDER_INTERNAL_TEXTLINES_H_
#define OM_RENDER_INTERNAL_TEXTLINES_H_

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

#include "render/internal/ByteSink.h"
#include "render/internal/Wrapping.h"

namespace om::render::internal {

// What lies between the contents of two columns: a line and the blanks beside it.
constexpr std::size_t kBetweenColumns = 3;

enum class Align { LEFT, CENTRE, RIGHT };

// Which sides of a crossing have a line.
struct Crossing {
  bool up = false;
  bool down = false;
  bool left = false;
  bool right = false;
};

class TextLines {
 public:
  // `ascii`: lines from "+", "-" and "|".
  TextLines(ByteSink& out, bool ascii) : out_(out), ascii_(ascii) {}

  std::string_view vertical() const { return ascii_ ? "|" : "│"; }

  void crossing(const Crossing& crossing);
  // A piece of a horizontal line under or over a column of this width, with the blanks beside it.
  void horizontal(std::size_t width);
  // A whole line across columns. At the boundaries in front of, between and behind them, `up` and
  // `down` say which have a line there; empty means none.
  void rule(std::span<const std::size_t> widths, const std::vector<bool>& up,
            const std::vector<bool>& down);

  // One line of a text, or none, in a column of this width, with the blanks beside it.
  void text(const TextLine* line, std::size_t width, Align align);
  void verticalLine() { ascii_ ? out_.put('|') : out_.put("│"); }
  void endLine() { out_.put('\n'); }
  void blanks(std::size_t count) {
    for (std::size_t piece = 0; count != 0; count -= piece) {
      piece = std::min(count, ByteSink::kMostRoom);
      std::memset(out_.room(piece), ' ', piece);
    }
  }
  // A text with blanks before and behind it.
  void among(std::size_t before, std::string_view text, std::size_t behind) {
    const std::size_t size = before + text.size() + behind;
    if (size > kMostAmong) {
      blanks(before);
      out_.put(text);
      return blanks(behind);
    }
    char* const at = out_.room(size);
    std::memset(at, ' ', size);
    text.copy(at + before, text.size());
  }

 private:
  static constexpr std::size_t kMostAmong = 128;

  ByteSink& out_;
  const bool ascii_;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_TEXTLINES_H_
