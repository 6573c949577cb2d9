// OmDateCell: a date of the Gregorian calendar, with or without a time of day. The string form is
// that of ISO 8601: "2026-11-21" or "2026-11-21 13:05:00"; a year before 0 or after 9999 has a sign
// and four digits at least.

#ifndef OM_EXTERNAL_CELLS_OMDATECELL_H_
#define OM_EXTERNAL_CELLS_OMDATECELL_H_

#include <compare>
#include <string>

#include "external/cells/OmCellText.h"

class OM_CELLS_API OmDateCell : public OmCellText {
 public:
  // A point in time; a date without a time of day stands at its first second. The fields are shown
  // and compared as they are given and are not checked against the calendar.
  struct Moment {
    int year = 1970;
    unsigned month = 1;  // 1 to 12
    unsigned day = 1;    // 1 to 31
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;

    auto operator<=>(const Moment&) const = default;
  };

  explicit OmDateCell(const Moment& when, bool showsTime = false)
      : when_(when), showsTime_(showsTime) {}
  ~OmDateCell() override;

  OmDateCell* Clone(OmMemoryRegion* region) const override;
  operator std::string() const override;  // NOLINT(google-explicit-constructor)
  int Kind() const override;
  void Accept(Visitor& visitor) override;

  const Moment& When() const { return when_; }
  bool ShowsTime() const { return showsTime_; }

 protected:
  OmDateCell(const OmDateCell&) = default;

 private:
  Moment when_;
  bool showsTime_;
};

#endif  // OM_EXTERNAL_CELLS_OMDATECELL_H_
