// JsonEmitter: writes JSON as it is told of it, value by value.
//
//   JsonEmitter json(sink);
//   json.beginObject();
//   json.member("label", "Output");
//   json.key("sizes");
//   json.beginArray(JsonEmitter::Layout::LINE);
//   json.number(2);
//   json.end();
//   json.end();
//
// What comes out is valid UTF-8 whatever bytes the texts hold: each byte that belongs to no
// well-formed sequence becomes U+FFFD. Objects and arrays put each member on a line of its own, or
// all of them on one; what is within a line stays there.
//
// REQUIRES: in an object, each value comes after its key; begins and ends match; keys of one object
// are different. Errors: std::bad_alloc for the depth, and what the stream throws.

#ifndef OM_RENDER_INTERNAL_JSONEMITTER_H_
#define OM_RENDER_INTERNAL_JSONEMITTER_H_

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <string_view>
#include <vector>

#include "render/internal/ByteSink.h"

namespace om::render::internal {

class JsonEmitter {
 public:
  enum class Layout : bool { LINES, LINE };

  explicit JsonEmitter(ByteSink& sink) : sink_(sink) {}

  bool ok() const { return sink_.ok(); }

  void beginObject(Layout layout = Layout::LINES) { begin('{', '}', layout); }
  void beginArray(Layout layout = Layout::LINES) { begin('[', ']', layout); }
  // Of the innermost object or array that is open.
  void end() {
    const Frame frame = frames_.back();
    frames_.pop_back();
    if (!frame.empty && frame.layout == Layout::LINES) endLine();
    sink_.put(frame.closing);
    if (frames_.empty()) sink_.put('\n');
  }

  // The same for a name that is a literal, in less time.
  template <std::size_t kSize>
  void key(const char (&name)[kSize]) {
    separate();
    constexpr std::size_t kLength = kSize - 1;  // without the end
    const bool isLine = frames_.back().layout == Layout::LINE;
    char* const at = sink_.room(kLength + (isLine ? 3 : 4));
    at[0] = '"';
    std::copy_n(name, kLength, at + 1);
    at[kLength + 1] = '"';
    at[kLength + 2] = ':';
    if (!isLine) at[kLength + 3] = ' ';
    keyed_ = true;
  }
  // REQUIRES: the name is of letters, digits and the like, which need no escape.
  void key(std::string_view name) {
    separate();
    sink_.put('"');
    sink_.put(name);
    sink_.put(frames_.back().layout == Layout::LINES ? std::string_view("\": ") : "\":");
    keyed_ = true;
  }

  void string(std::string_view text);
  void boolean(bool value) {
    separate();
    sink_.put(value ? std::string_view("true") : "false");
  }
  void null() {
    separate();
    sink_.put("null");
  }
  void number(std::integral auto value) {
    separate();
    sink_.putNumber(value);
  }
  // REQUIRES: it is finite.
  void number(double value) {
    separate();
    sink_.putNumber(value);
  }
  // Where the next value stands, or the next members: the caller writes them himself.
  ByteSink& next() {
    separate();
    return sink_;
  }
  // Base 64, as images stand in JSON.
  void bytes(std::string_view bytes);

  void member(const auto& name, std::string_view text) {
    key(name);
    string(text);
  }
  void member(const auto& name, const char* text) { member(name, std::string_view(text)); }
  void member(const auto& name, bool value) {
    key(name);
    boolean(value);
  }
  void member(const auto& name, std::integral auto value) {
    key(name);
    number(value);
  }
  void member(const auto& name, double value) {
    key(name);
    number(value);
  }
  // An array of numbers on one line.
  template <class Name, class Number>
  void member(const Name& name, const std::vector<Number>& numbers) {
    key(name);
    beginArray(Layout::LINE);
    for (const auto value : numbers) number(value);
    end();
  }

 private:
  static constexpr std::size_t kMostIndented = 32;  // deeper lines begin where these do

  struct Frame {
    char closing;
    Layout layout;
    bool empty;
  };

  void begin(char opening, char closing, Layout layout) {
    separate();
    const bool isWithinLine = !frames_.empty() && frames_.back().layout == Layout::LINE;
    frames_.push_back({closing, isWithinLine ? Layout::LINE : layout, true});
    sink_.put(opening);
  }

  // Goes to where the next value stands.
  void separate() {
    if (keyed_ || frames_.empty()) {
      keyed_ = false;
      return;
    }
    Frame& frame = frames_.back();
    if (!frame.empty) sink_.put(',');
    frame.empty = false;
    if (frame.layout == Layout::LINES) endLine();
  }

  void endLine() {
    static constexpr std::string_view kBlanks =
        "\n                                                                ";
    sink_.put(kBlanks.substr(0, 1 + 2 * std::min(frames_.size(), kMostIndented)));
  }

  void escape(char c);

  ByteSink& sink_;
  std::vector<Frame> frames_;
  bool keyed_ = false;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_JSONEMITTER_H_
