#include "tools/tabulate/Margins.h"

namespace om::tabulate {

Tally expand(const Tally& tally, const std::vector<const Categories*>& dimensions,
             const Tally::Content& content, std::size_t limit) {
  const std::vector<std::size_t> summed{0};
  Tally result(dimensions.size(), content);
  std::vector<const std::vector<std::size_t>*> targets(dimensions.size());
  std::vector<std::size_t> digits(dimensions.size());
  std::vector<Tally::Code> codes(dimensions.size());
  for (std::size_t cell = 0; cell < tally.size() && result.size() <= limit; ++cell) {
    for (std::size_t i = 0; i < dimensions.size(); ++i) {
      targets[i] = dimensions[i] != nullptr ? &dimensions[i]->subscriptsOf(cell) : &summed;
      digits[i] = 0;
      codes[i] = static_cast<Tally::Code>(targets[i]->front());
    }
    for (bool more = true; more && result.size() <= limit;) {
      result.merge(result.cellOf(codes.data()), tally, cell);
      more = false;
      for (std::size_t i = 0; i < dimensions.size() && !more; ++i) {
        more = ++digits[i] < targets[i]->size();
        if (!more) digits[i] = 0;
        codes[i] = static_cast<Tally::Code>((*targets[i])[digits[i]]);
      }
    }
  }
  return result;
}

}  // namespace om::tabulate
