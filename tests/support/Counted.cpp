#include "tests/support/Counted.h"

namespace om::test {
namespace {

struct Record {
  long live = 0;
  long made = 0;
  long cloned = 0;
  std::vector<std::string> died;

  void add() {
    ++live;
    ++made;
  }
  void remove(std::string name) {
    --live;
    died.push_back(std::move(name));
  }
  void reset() { *this = Record{live, 0, 0, {}}; }
};

Record texts;
Record parts;

}  // namespace

CountedText::CountedText(const std::string& text) : OmStringCell(text) { texts.add(); }

CountedText::CountedText(const CountedText& other) : OmStringCell(other) { texts.add(); }

CountedText::~CountedText() { texts.remove(std::string(*this)); }

CountedText* CountedText::Clone(OmMemoryRegion* region) const {
  auto* const clone = new (region) CountedText(*this);
  ++texts.cloned;
  return clone;
}

long CountedText::live() { return texts.live; }
long CountedText::made() { return texts.made; }
long CountedText::cloned() { return texts.cloned; }
const std::vector<std::string>& CountedText::died() { return texts.died; }

CountedPart::CountedPart(const std::string& label) : OmHeading(OmStringCell(label)) { parts.add(); }

CountedPart::~CountedPart() { parts.remove(std::string(Label())); }

long CountedPart::live() { return parts.live; }
const std::vector<std::string>& CountedPart::died() { return parts.died; }

void resetCounted() {
  texts.reset();
  parts.reset();
}

}  // namespace om::test
