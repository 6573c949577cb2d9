// OmStringCell: a text of characters.
//
//   clone or Create   | block head | cell ... characters |     one allocation
//   on the stack      | cell ... up to 8 characters |          none, or one for longer texts
//
// The string form is the characters as they were given; they may hold bytes of value zero.
// A class that is derived from this one overrides Clone, or its clones are plain string cells.

#ifndef OM_EXTERNAL_CELLS_OMSTRINGCELL_H_
#define OM_EXTERNAL_CELLS_OMSTRINGCELL_H_

#include <string>
#include <string_view>

#include "external/cells/OmCellText.h"

class OM_CELLS_API OmStringCell : public OmCellText {
 public:
  // `region` supplies room for more than 8 characters; null means the default heap. `utf8` says
  // that the characters are UTF-8; false, that they are in the code page of the output they stand
  // in. The cell only keeps it.
  explicit OmStringCell(const std::string& text, OmMemoryRegion* region = nullptr,
                        bool utf8 = true);
  ~OmStringCell() override;

  // A cell in `region` that holds its characters itself, whatever their number.
  static OmStringCell* Create(std::string_view text, OmMemoryRegion* region, bool utf8 = true);

  OmStringCell* Clone(OmMemoryRegion* region) const override;
  operator std::string() const override;  // NOLINT(google-explicit-constructor)
  std::size_t Size() const override { return size_; }
  short Compare(const OmCellText& other) const override;
  int Kind() const override;
  void Accept(Visitor& visitor) override;

  // The characters, valid as long as the cell.
  std::string_view View() const { return {characters(), size_}; }
  bool IsUtf8() const { return utf8_ != 0; }

 protected:
  // Takes its room for more than 8 characters from the default heap.
  OmStringCell(const OmStringCell& other);

 private:
  static constexpr std::size_t kOwnRoom = 8;
  static constexpr std::size_t kSizeBits = ~std::size_t{0} >> 2;

  struct Following {};  // says that room for all characters was allocated with the cell

  OmStringCell(Following, std::string_view text, bool utf8) noexcept;
  OmStringCell(Following, const OmStringCell& other);
  void keep(std::string_view text, OmMemoryRegion* region);

  static void* operator new(std::size_t size, OmMemoryRegion* region, std::size_t characters);
  static void operator delete(void* cell, OmMemoryRegion* region, std::size_t characters) noexcept;

  const char* characters() const {
    return elsewhere_ != 0 ? *reinterpret_cast<const char* const*>(room_) : room_;
  }

  std::size_t size_ : 62;
  std::size_t utf8_ : 1;
  std::size_t elsewhere_ : 1;                // room_ holds the address of an owned block
  alignas(char*) char room_[kOwnRoom] = {};  // the first characters; more follow the cell

 public:
  using OmCellText::operator new;
  using OmCellText::operator delete;
};

#endif  // OM_EXTERNAL_CELLS_OMSTRINGCELL_H_
