// OmFootnote: a footnote's text, its marker and how often it was added. Cells and labels refer to
// footnotes by their positions in the list of the table or heading that holds them.
//
// Ownership: the record owns its two texts, which live in its region. Lifetime: it must not outlive
//   the region. Threads: one at a time.
// Errors: std::bad_alloc and what cloning a text throws; the record is then as before.

#ifndef OM_BACKEND_TABLES_OMFOOTNOTE_H_
#define OM_BACKEND_TABLES_OMFOOTNOTE_H_

#include <cstdint>

#include "backend/Export.h"
#include "backend/tables/OmVector.h"

class OmCellText;
class OmMemoryRegion;

class OM_EXPORT OmFootnote {
 public:
  // Clones each text that is not null into `region` (null: the default heap); the count is 0. A
  // text that stays null is one that is set later.
  OmFootnote(const OmCellText* text, const OmCellText* marker, OmMemoryRegion* region);
  // A copy in the source's region, count included.
  OmFootnote(const OmFootnote& other);
  OmFootnote& operator=(const OmFootnote& other);
  ~OmFootnote();

  OmMemoryRegion* Region() const { return region_; }

  // Null only in a record that was made without a text.
  OmCellText* Text() { return text_; }
  const OmCellText* Text() const { return text_; }
  void Text(const OmCellText& text);

  // Null: the footnote has the default marker.
  OmCellText* Marker() { return marker_; }
  const OmCellText* Marker() const { return marker_; }
  void Marker(const OmCellText* marker);

  // How many times it was added, or a negative value of the caller's own.
  std::int32_t Count() const { return count_; }
  void Count(std::int32_t count) { count_ = count; }

 private:
  OmMemoryRegion* region_;
  OmCellText* text_;
  OmCellText* marker_;
  std::int32_t count_ = 0;
};

template <>
inline constexpr bool omMovesBitwise<OmFootnote> = true;

#endif  // OM_BACKEND_TABLES_OMFOOTNOTE_H_
