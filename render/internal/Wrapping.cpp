#include "render/internal/Wrapping.h"

#include <algorithm>
#include <optional>

#include "render/internal/DisplayWidth.h"

namespace om::render::internal {

namespace {

constexpr std::string_view kZeroWidthSpace = "\xE2\x80\x8B";

bool isBlank(std::string_view cluster) { return cluster == " " || cluster == kZeroWidthSpace; }

// Tells where a line may end between two clusters neither of which is a blank.
class Joints {
 public:
  // Whether the cluster may begin a line; called for one cluster after the other.
  bool before(std::string_view cluster, std::size_t width) {
    const bool isHyphen = cluster == "-";
    const bool may = (behindBreak_ && !isHyphen) || width > 1;
    behindBreak_ = width > 1 || (isHyphen && inWord_);
    inWord_ |= !isHyphen;
    return may;
  }
  void blank() {
    behindBreak_ = false;
    inWord_ = false;
  }

 private:
  bool behindBreak_ = false;
  bool inWord_ = false;
};

// Breaks a text without line feeds.
class Breaker {
 public:
  Breaker(std::string_view text, const LineWidth& within, std::vector<TextLine>& lines)
      : text_(text), within_(within), lines_(lines), limit_(within.width) {}

  void operator()() {
    while (at_ < text_.size()) {
      const Cluster cluster = firstCluster(text_.substr(at_));
      const std::string_view bytes = text_.substr(at_, cluster.bytes);
      if (isBlank(bytes)) {
        addBlank(cluster);
      } else {
        addCharacter(bytes, cluster);
      }
    }
    if (isBehindBlank_ && break_) {
      emit(break_->end, break_->width);
    } else {
      emit(at_, width_);
    }
  }

 private:
  // Where the line may end, and where the next one then begins.
  struct Break {
    std::size_t end;
    std::size_t width;
    std::size_t next;
    std::size_t nextWidth;
  };

  void addBlank(const Cluster& cluster) {
    if (!isBehindBlank_) break_ = {at_, width_, 0, 0};
    at_ += cluster.bytes;
    width_ += cluster.width;
    break_->next = at_;
    break_->nextWidth = width_;
    isBehindBlank_ = true;
    joints_.blank();
  }

  void addCharacter(std::string_view bytes, const Cluster& cluster) {
    const bool mayBegin = joints_.before(bytes, cluster.width);
    if (mayBegin && !isBehindBlank_) break_ = {at_, width_, at_, width_};
    // Blanks at the start of the text are its indent and stay with what follows.
    if (break_ && break_->end == begin_) break_.reset();
    while (width_ + cluster.width > limit_ && at_ != begin_) breakLine();
    at_ += cluster.bytes;
    width_ += cluster.width;
    isBehindBlank_ = false;
  }

  void breakLine() {
    const Break here = break_.value_or(Break{at_, width_, at_, width_});
    emit(here.end, here.width);
    begin_ = here.next;
    width_ -= here.nextWidth;
    break_.reset();
    limit_ = within_.width - within_.hang;
  }

  void emit(std::size_t end, std::size_t width) {
    const std::size_t indent = begin_ == 0 ? 0 : within_.hang;
    lines_.push_back({text_.substr(begin_, end - begin_), width, indent});
  }

  const std::string_view text_;
  const LineWidth within_;
  std::vector<TextLine>& lines_;
  std::size_t limit_;
  std::size_t begin_ = 0;  // of the present line
  std::size_t at_ = 0;
  std::size_t width_ = 0;  // from begin_ to at_
  bool isBehindBlank_ = false;
  std::optional<Break> break_;
  Joints joints_;
};

// Calls visit(line) for each line between line feeds.
void visitLines(std::string_view text, const auto& visit) {
  for (;;) {
    const std::size_t end = text.find('\n');
    visit(text.substr(0, end));
    if (end == text.npos) return;
    text.remove_prefix(end + 1);
  }
}

}  // namespace

void wrap(std::string_view text, const LineWidth& within, std::vector<TextLine>& lines) {
  visitLines(text, [&](std::string_view line) {
    if (line.size() <= within.width && isPlainAscii(line)) {
      lines.push_back({line, line.size(), 0});
    } else {
      Breaker(line, within, lines)();
    }
  });
}

std::size_t widthOfLines(std::string_view text) {
  std::size_t widest = 0;
  visitLines(text, [&](std::string_view line) { widest = std::max(widest, displayWidth(line)); });
  return widest;
}

std::size_t widthOfWords(std::string_view text) {
  std::size_t widest = 0;
  std::size_t word = 0;
  Joints joints;
  while (!text.empty()) {
    const Cluster cluster = firstCluster(text);
    const std::string_view bytes = text.substr(0, cluster.bytes);
    if (isBlank(bytes) || bytes == "\n") {
      joints.blank();
      word = 0;
    } else {
      if (joints.before(bytes, cluster.width)) word = 0;
      word += cluster.width;
    }
    widest = std::max(widest, word);
    text.remove_prefix(cluster.bytes);
  }
  return widest;
}

void WrappedText::assign(std::string_view text, const LineWidth& within) {
  clear();
  text_ = text;
  wrap(text_, within, lines_);
}

void WrappedText::clear() { lines_.clear(); }

}  // namespace om::render::internal
