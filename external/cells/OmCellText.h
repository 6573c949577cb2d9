// OmCellText: the value of every cell, label, title, marker and footnote text.
//
// The kinds, and the visit that each one asks for:
//
//   OmMessageCell   a pattern text with the texts that fill it        the container kind
//   OmStringCell    characters
//   OmNumber        a number with its display format
//   OmVariableCell  a variable's name and label
//   OmValueCell     a value and its label
//   OmDateCell      a date, with or without a time of day
//   OmComposite     cells in an order of their own, nested
//
// Every text has a plain string form, in UTF-8 unless its kind says otherwise, and carries three
// things along when it is cloned: a tracker, which it does not own, metadata and the positions of
// its footnotes.
//
// Ownership: `new (region) Kind(...)` and Clone draw the text from a region, and `delete` gives it
//   back there; whoever holds the pointer owns the text. A text owns every text inside it.
// Lifetime: a text that was drawn from a region must not outlive it.
// Threads: a text belongs to one thread at a time.

#ifndef OM_EXTERNAL_CELLS_OMCELLTEXT_H_
#define OM_EXTERNAL_CELLS_OMCELLTEXT_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "external/cells/Export.h"
#include "external/cells/OmCellMetaData.h"

class OmComposite;
class OmDateCell;
class OmMemoryRegion;
class OmMessageCell;
class OmNumber;
class OmStringCell;
class OmValueCell;
class OmVariableCell;
class icuTracker;

class OM_CELLS_API OmCellText {
 public:
  class Visitor;

  // The codes that Kind() gives.
  enum KindType : std::int32_t {
    MESSAGE = 0,
    STRING = 1,
    NUMBER = 2,
    VARIABLE = 3,
    VALUE = 4,
    DATE = 5,
    COMPOSITE = 6
  };

  // Which of a variable's or a value's texts a viewer shows.
  enum ModeType : std::int32_t { AS_CONFIGURED = 0, NAMES = 1, LABELS = 2, NAMES_AND_LABELS = 3 };

  // Storage from a region; a null region, or none, means the default heap.
  static void* operator new(std::size_t size);
  static void* operator new(std::size_t size, OmMemoryRegion* region);
  static void operator delete(void* text) noexcept;
  static void operator delete(void* text, OmMemoryRegion* region) noexcept;

  virtual ~OmCellText();
  OmCellText& operator=(const OmCellText&) = delete;

  // A new text of the same kind and content in `region` (null: the default heap), owned by the
  // caller, with this text's tracker, metadata and footnote positions.
  virtual OmCellText* Clone(OmMemoryRegion* region) const = 0;

  // The plain string form.
  virtual operator std::string() const = 0;  // NOLINT(google-explicit-constructor)

  // The length of the plain string form in bytes.
  virtual std::size_t Size() const;

  // Negative, 0 or positive as this text sorts before, with or after the other. Numbers stand
  // first, by value, behind those whose value is no number; then dates, by time; then all other
  // texts, by the bytes of their string forms. Texts of different kinds can compare equal.
  virtual short Compare(const OmCellText& other) const;

  // The kind's code, one of KindType. A class that answers a code is, or derives from, that kind.
  virtual int Kind() const = 0;

  // Calls the visit of the text's kind with this text.
  virtual void Accept(Visitor& visitor) = 0;

  // Keeps the tracker that is to convert this text between code pages. Texts inside this one keep
  // theirs. Not owned.
  virtual void setTracker(icuTracker* tracker);
  icuTracker* getTracker() const { return tracker_; }

  // Writes the string form to standard output behind `indent` times two blanks, without an end of
  // line.
  virtual void Print(unsigned indent) const;

  // Whether the region that the text lives in may end without this text's destructor being run:
  // nothing is lost then. True for clones, made in that region, of the kinds whose storage lies
  // wholly in it: strings, numbers and dates.
  bool endsWith(const OmMemoryRegion& region) const {
    return extrasOrRegion_ == marked(&region) || extrasEndWith(region);
  }

  bool hasMeta() const;
  // The record; an empty one when there is none.
  const OmCellMetaData& getMeta() const;
  void setMeta(const OmCellMetaData& meta);

  // Positions of the text's footnotes in the list of the table or heading that holds it.
  std::vector<short>& Footnotes();
  const std::vector<short>& Footnotes() const;

 protected:
  OmCellText() = default;
  OmCellText(const OmCellText& other) : tracker_(other.tracker_) {
    if (other.extras() != nullptr) copyExtras(other);
  }

  // For Clone and the like: makes the new text one that ends with the region it was made in (null:
  // the default heap). REQUIRES: all of its storage lies there.
  template <class Kind>
  static Kind* endingWith(OmMemoryRegion* region, Kind* text) {
    if (text->extrasOrRegion_ == 0 && region != nullptr) {
      text->extrasOrRegion_ = marked(region);
    } else {
      text->bind(region);
    }
    return text;
  }

 private:
  class Extras;

  static constexpr std::uintptr_t kRegionMark = 1;
  static std::uintptr_t marked(const OmMemoryRegion* region) {
    return reinterpret_cast<std::uintptr_t>(region) | kRegionMark;
  }

  bool extrasEndWith(const OmMemoryRegion& region) const;
  void bind(OmMemoryRegion* region) noexcept;
  Extras* extras() const {
    return (extrasOrRegion_ & kRegionMark) == 0 ? reinterpret_cast<Extras*>(extrasOrRegion_)
                                                : nullptr;
  }
  void copyExtras(const OmCellText& other);
  Extras& neededExtras();

  icuTracker* tracker_ = nullptr;
  // Metadata and footnote positions, which are owned, or while there are none the region that the
  // text ends with, marked by the lowest bit; 0 for neither.
  std::uintptr_t extrasOrRegion_ = 0;
};

// One visit for each kind, the container first.
class OM_CELLS_API OmCellText::Visitor {
 public:
  virtual ~Visitor();
  virtual void Visit(OmMessageCell& text) = 0;
  virtual void Visit(OmStringCell& text) = 0;
  virtual void Visit(OmNumber& text) = 0;
  virtual void Visit(OmVariableCell& text) = 0;
  virtual void Visit(OmValueCell& text) = 0;
  virtual void Visit(OmDateCell& text) = 0;
  virtual void Visit(OmComposite& text) = 0;
};

#endif  // OM_EXTERNAL_CELLS_OMCELLTEXT_H_
