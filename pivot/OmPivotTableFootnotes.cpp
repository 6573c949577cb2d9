// The footnotes of a table.

#include <utility>

#include "pivot/OmPivotTable.h"
#include "pivot/internal/PivotTableData.h"
#include "pivot/internal/SameText.h"

namespace {

std::size_t findNote(const OmVector<OmFootnote>& notes, const OmCellText* text) {
  std::size_t position = 0;
  while (position < notes.size() && !om::internal::sameText(notes[position].Text(), text)) {
    ++position;
  }
  return position;
}

}  // namespace

int OmPivotTable::Footnote(const OmFootnote& footnote, bool append) {
  OmVector<OmFootnote>& notes = _my->footnotes;
  const std::size_t position = append ? notes.size() : findNote(notes, footnote.Text());
  if (position < notes.size()) {
    OmFootnote& note = notes[position];
    note.Marker(footnote.Marker());
    if (note.Marker() != nullptr) setHelper(*note.Marker());
    note.Count(static_cast<std::int32_t>(static_cast<std::uint32_t>(note.Count()) + 1));
    return static_cast<int>(position);
  }

  // Made before the list grows: the given footnote may stand in it.
  OmVector<OmFootnote>::Detached added(std::in_place, footnote.Text(), footnote.Marker(),
                                       &_my->region);
  if ((*added).Text() != nullptr) setHelper(*(*added).Text());
  if ((*added).Marker() != nullptr) setHelper(*(*added).Marker());
  (*added).Count(footnote.Count() < 0 ? footnote.Count() : 1);
  notes.insert(position, std::move(added));
  return static_cast<int>(position);
}

OmVector<OmFootnote>& OmPivotTable::Footnotes() { return _my->footnotes; }

const OmVector<OmFootnote>& OmPivotTable::Footnotes() const { return _my->footnotes; }
