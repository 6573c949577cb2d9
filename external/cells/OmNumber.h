// OmNumber: a number with its display format. The value is kept exactly; only the string form is
// rounded, half to even on the exact binary value.
//
// A value that is no number shows as ".", as a missing value does in a data set; infinities show
// as "inf" and "-inf". A value that rounds to zero shows without a sign.

#ifndef OM_EXTERNAL_CELLS_OMNUMBER_H_
#define OM_EXTERNAL_CELLS_OMNUMBER_H_

#include <string>

#include "external/cells/OmCellText.h"

class OM_CELLS_API OmNumber : public OmCellText {
 public:
  struct Format {
    // Digits behind the decimal point, at most kMaxDecimals; negative: the fewest digits from which
    // the value can be read back, with an exponent below 1e-6 and from 1e21 on, as in "1e-07".
    int decimals = -1;
    bool percent = false;   // a "%" behind it; the value is in per cent already
    bool grouping = false;  // a "," between thousands

    bool operator==(const Format&) const = default;
  };
  static constexpr int kMaxDecimals = 64;

  explicit OmNumber(double value) : value_(value) {}
  OmNumber(double value, const Format& format) : value_(value), format_(format) {}
  ~OmNumber() override;

  OmNumber* Clone(OmMemoryRegion* region) const override;
  operator std::string() const override;  // NOLINT(google-explicit-constructor)
  int Kind() const override;
  void Accept(Visitor& visitor) override;

  double Value() const { return value_; }
  const Format& DisplayFormat() const { return format_; }

 protected:
  OmNumber(const OmNumber&) = default;

 private:
  double value_;
  Format format_;
};

#endif  // OM_EXTERNAL_CELLS_OMNUMBER_H_
