// Decoder: turns the bytes of a file, block by block, into UTF-8. A byte-order mark at the start
// decides on the encoding, whatever name was given, and is left out.
//
// Wrong bytes are never replaced: decoding stops in front of them.
// Lifetime: a decoder is for one stream of bytes. Threads: one at a time.

#ifndef OM_TOOLS_TABULATE_ENCODING_H_
#define OM_TOOLS_TABULATE_ENCODING_H_

#include <iconv.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace om::tabulate {

class Decoder {
 public:
  // Throws Failure (usage) for a name that iconv does not know, or that asks it to replace.
  explicit Decoder(const std::string& encoding);
  Decoder(const Decoder&) = delete;
  Decoder& operator=(const Decoder&) = delete;
  ~Decoder();

  // Appends the text of the bytes that follow those of the last call. False when it met bytes that
  // are wrong in the encoding: the text then holds everything in front of them, and there is
  // nothing more to decode.
  bool decode(std::string_view bytes, std::string& text);
  // To be called behind the last bytes. False when they end within a character.
  bool finish(std::string& text);

  // The name of the encoding, for messages: the given one, or that of the byte-order mark.
  const std::string& name() const { return name_; }

 private:
  static constexpr std::size_t kLongestMark = 4;

  void open(const std::string& encoding);
  void close();
  void takeMark();
  bool decodeKept(std::string& text);
  bool validate(std::string& text);
  bool convert(std::string& text);

  std::string name_;
  iconv_t converter_;  // kNone for UTF-8, which only has to be looked at
  std::string kept_;   // bytes that are not decoded yet
  bool started_ = false;
};

}  // namespace om::tabulate

#endif  // OM_TOOLS_TABULATE_ENCODING_H_
