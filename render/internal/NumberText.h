// The string form of a number, made where it is needed and without an allocation in most cases.

#ifndef OM_RENDER_INTERNAL_NUMBERTEXT_H_
#define OM_RENDER_INTERNAL_NUMBERTEXT_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "external/cells/OmNumber.h"

namespace om::render::internal {

class NumberText {
 public:
  // How many characters a string form has in front of the decimal mark, or of what follows the
  // digits, and how many from there on.
  struct Size {
    std::size_t whole;
    std::size_t rest;
  };

  // The size of a string form, in less time than it takes to make it.
  static Size sizeOf(const OmNumber& number);

  // Takes the string form of a number over. What view() gave before is not valid any more.
  void assign(const OmNumber& number);

  std::string_view view() const { return view_; }
  std::size_t whole() const { return whole_; }

 private:
  // A sign, 16 digits, the commas between them, a point, a percent sign and some to spare.
  static constexpr std::size_t kRoom = 32;

  void write(std::uint64_t scaled, std::size_t decimals, bool isNegative,
             const OmNumber::Format& format);

  std::array<char, kRoom> room_;
  std::string long_;
  std::string_view view_;
  std::size_t whole_ = 0;
};

}  // namespace om::render::internal

#endif  // OM_RENDER_INTERNAL_NUMBERTEXT_H_
