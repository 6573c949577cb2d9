#include "backend/tables/MultiBase.h"

#include <algorithm>

#include "backend/Assert.h"

namespace {

constexpr const wchar_t* kSource = L"backend/tables/MultiBase";

}  // namespace

MultiBase::MultiBase(const PuppetVector<short>& dimensions, const std::vector<int>& sizes)
    : dimensions_(dimensions.begin(), dimensions.end()) {
  radices_.reserve(dimensions_.size());
  for (const short dimension : dimensions_) {
    const auto which = static_cast<std::size_t>(dimension);  // of -1, far beyond the sizes
    radices_.push_back(which < sizes.size() ? sizes[which] : 1);
  }
  weights_.resize(radices_.size());
  for (std::size_t i = radices_.size(); i-- != 0;) {
    weights_[i] = count_;
    count_ *= static_cast<std::uint64_t>(radices_[i]);
  }
}

std::uint64_t MultiBase::encode(const Digits& digits) const {
  if (digits.empty() && radices_.empty()) return 0;
  std::uint64_t position = digits.empty() ? 0 : digits.front();
  const std::size_t both = std::min(digits.size(), radices_.size());
  for (std::size_t i = 1; i < both; ++i) {
    position = position * static_cast<std::uint64_t>(radices_[i]) + digits[i];
  }
  if (digits.size() != radices_.size()) {
    omAssertFailed(L"digit == end && i == size", kSource, 148);
  }
  return position;
}

void MultiBase::decode(std::uint64_t position, Digits& digits) const {
  digits.assign(radices_.size(), 0);
  if (digits.empty()) return;
  for (std::size_t i = radices_.size() - 1; i != 0 && position != 0; --i) {
    if (radices_[i] <= 0) {
      omAssertFailed(L"b>0", kSource, 126);
      continue;
    }
    const auto radix = static_cast<std::uint64_t>(radices_[i]);
    digits[i] = position % radix;
    position /= radix;
  }
  digits.front() = position;  // not reduced by the first radix
}
