// Texts and parts that count how many of them are alive and write down who died, in order.

#ifndef OM_TESTS_SUPPORT_COUNTED_H_
#define OM_TESTS_SUPPORT_COUNTED_H_

#include <string>
#include <vector>

#include "external/cells/OmStringCell.h"
#include "output/OmHeading.h"

namespace om::test {

// A string cell. Its clones count as well and carry the same name.
class CountedText : public OmStringCell {
 public:
  explicit CountedText(const std::string& text);
  ~CountedText() override;
  CountedText* Clone(OmMemoryRegion* region) const override;

  static long live();
  // How many were made, clones included, and how many of these are clones, since the test started.
  static long made();
  static long cloned();
  // The texts of those that died since the test started, in order.
  static const std::vector<std::string>& died();

 private:
  CountedText(const CountedText& other);
};

// A heading with a string label.
class CountedPart : public OmHeading {
 public:
  explicit CountedPart(const std::string& label);
  ~CountedPart() override;

  static long live();
  // The labels of those that died since the test started, in order.
  static const std::vector<std::string>& died();
};

// Forgets what the counters have written down; what is alive stays counted.
void resetCounted();

}  // namespace om::test

#endif  // OM_TESTS_SUPPORT_COUNTED_H_
