#include "external/cells/internal/TextOrder.h"

#include <compare>
#include <string>

#include "external/cells/OmDateCell.h"
#include "external/cells/OmNumber.h"

namespace om::internal {
namespace {

enum class Rank { kNumber, kDate, kOther };

Rank rankOf(const OmCellText& text) {
  switch (text.Kind()) {
    case OmCellText::NUMBER:
      return Rank::kNumber;
    case OmCellText::DATE:
      return Rank::kDate;
    default:
      return Rank::kOther;
  }
}

template <class Ordering>
short sign(Ordering ordering) noexcept {
  if (ordering < 0) return -1;
  return ordering > 0 ? 1 : 0;
}

// Every not-a-number stands before all numbers and equals every other.
short compareValues(double a, double b) noexcept {
  const bool aMissing = a != a;
  const bool bMissing = b != b;
  if (aMissing || bMissing) return sign(bMissing <=> aMissing);
  if (a < b) return -1;
  return b < a ? 1 : 0;
}

}  // namespace

short compareBytes(std::string_view a, std::string_view b) noexcept { return sign(a <=> b); }

short compareTexts(const OmCellText& a, const OmCellText& b) {
  const Rank rank = rankOf(a);
  const Rank otherRank = rankOf(b);
  if (rank != otherRank) return sign(rank <=> otherRank);
  switch (rank) {
    case Rank::kNumber:
      return compareValues(static_cast<const OmNumber&>(a).Value(),
                           static_cast<const OmNumber&>(b).Value());
    case Rank::kDate:
      return sign(static_cast<const OmDateCell&>(a).When() <=>
                  static_cast<const OmDateCell&>(b).When());
    case Rank::kOther:
      break;
  }
  return compareBytes(std::string(a), std::string(b));
}

}  // namespace om::internal
