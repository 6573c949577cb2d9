// Random operations on the cells of a table and on naive ones, compared after each.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/pivot/CellTable.h"
#include "tests/pivot/NaiveCells.h"
#include "tests/support/Counted.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

constexpr std::size_t kMostDimensions = 5;
constexpr long long kNoLimit = 1'000'000'000;

class Pair {
 public:
  explicit Pair(Random& random)
      : random_(random),
        table_(makeTable(random.oneIn(20) ? 0 : 1 + random.below(kMostDimensions - 1))) {
    naive_.dimensions = table_->NDimensions();
    naive_.limit = random.oneIn(8) ? static_cast<long long>(random.below(200)) - 1 : kNoLimit;
    limitCells(*table_, naive_.limit);
  }

  void step();
  void compare() const;

 private:
  int subscript() {
    if (random_.oneIn(200)) return static_cast<int>(random_.below(500));
    return static_cast<int>(random_.oneIn(10) ? random_.below(20) : random_.below(4));
  }
  // One that is well formed, for a table with dimensions.
  Index anyIndex() {
    Index index(naive_.dimensions);
    for (int& at : index) at = subscript();
    return index;
  }
  // Often that of a stored cell.
  Index knownIndex() {
    if (naive_.cells().empty() || random_.oneIn(3)) return anyIndex();
    const auto skipped =
        static_cast<std::ptrdiff_t>(random_.below(std::min<std::size_t>(naive_.cells().size(), 8)));
    return std::next(naive_.cells().begin(), skipped)->first;
  }
  Index illFormed() {
    Index index = anyIndex();
    if (!index.empty() && random_.oneIn(2)) {
      index[random_.below(index.size())] = -1 - subscript();
    } else if (!index.empty() && random_.oneIn(2)) {
      index.pop_back();
    } else {
      index.push_back(subscript());
    }
    return index;
  }
  // What both forms throw for an index, if anything.
  Thrown expectedFor(const Index& index, bool storing) const {
    const std::size_t n = naive_.dimensions;
    if (index.size() != n || (storing && n == 0)) {
      return {"OmPivotTable::Cell() -- nind != _my->_dimensions.size()",
              static_cast<double>(index.size()), static_cast<double>(n)};
    }
    for (const int at : index) {
      if (at < 0) {
        return {"OmPivotTable::Cell() -- subscript < 0",
                static_cast<double>(static_cast<std::uint64_t>(static_cast<std::int64_t>(at))), 0};
      }
    }
    return {};
  }
  NaiveCell anyCell() {
    NaiveCell cell{std::string(1 + random_.below(12), "abcdefgh"[random_.below(8)]), ""};
    if (random_.oneIn(10)) cell.meta = std::string(1, "mnop"[random_.below(4)]);
    return cell;
  }

  void storeAt(const Index& index, const OmCellText* text, std::optional<NaiveCell> cell);
  void storeNew(const Index& index);
  void storeStored();
  void findAt(const Index& index);
  void deleteAt(const Index& index);
  void addDimension();
  void iterate() const;
  static void compareCell(const OmCellText* real, const NaiveCell* naive);

  Random& random_;
  TableOwner table_;
  NaiveCells naive_;
};

void Pair::compareCell(const OmCellText* real, const NaiveCell* naive) {
  ASSERT_EQ(real != nullptr, naive != nullptr);
  if (real == nullptr) return;
  ASSERT_EQ(std::string(*real), naive->text);
  ASSERT_EQ(real->hasMeta() ? real->getMeta().statistic : "", naive->meta);
}

void Pair::storeAt(const Index& index, const OmCellText* text, std::optional<NaiveCell> cell) {
  bool stored = false;
  const Thrown thrown = thrownBy([&] { stored = table_->Cell(index, text); });
  if (!naive_.admit()) {
    EXPECT_EQ(thrown, Thrown());
    EXPECT_FALSE(stored);
    return;
  }
  const Thrown expected = expectedFor(index, true);
  EXPECT_EQ(thrown, expected);
  EXPECT_EQ(stored, expected.message.empty());
  if (expected.message.empty()) naive_.store(index, std::move(cell));
}

void Pair::storeNew(const Index& index) {
  const NaiveCell cell = anyCell();
  const auto store = [&](auto&& text) {
    if (!cell.meta.empty()) text.setMeta({cell.meta, {}, ""});
    storeAt(index, &text, cell);
  };
  if (random_.oneIn(8)) {
    store(CountedText(cell.text));
  } else {
    store(OmStringCell(cell.text));
  }
}

// Over itself or elsewhere.
void Pair::storeStored() {
  const Index from = knownIndex();
  const Index to = random_.oneIn(2) ? from : anyIndex();
  const NaiveCell* const cell = naive_.find(from);
  storeAt(to, naive_.dimensions != 0 ? table_->Cell(from) : nullptr,
          cell != nullptr ? std::optional(*cell) : std::nullopt);
}

void Pair::findAt(const Index& index) {
  const OmCellText* found = nullptr;
  const Thrown thrown = thrownBy([&] { found = std::as_const(*table_).Cell(index); });
  EXPECT_EQ(thrown, expectedFor(index, false));
  compareCell(found, naive_.find(index));
}

void Pair::deleteAt(const Index& index) {
  table_->deleteCell(index);
  naive_.erase(index);
}

void Pair::addDimension() {
  if (naive_.dimensions == kMostDimensions) return;
  if (random_.oneIn(2) && naive_.dimensions != 0) {
    table_->AddDimension(table_->Dimension(0));
  } else {
    table_->AddDimension(OmStringCell("d"));
  }
  naive_.addLevel();
}

void Pair::iterate() const {
  auto at = std::as_const(*table_).FirstCell();
  for (const auto& [index, cell] : naive_.iterated()) {
    ASSERT_NE(at.Cell(), nullptr);
    ASSERT_EQ(at.Index(), index);
    compareCell(at.Cell(), &cell);
    ++at;
  }
  ASSERT_EQ(at.Cell(), nullptr);
}

void Pair::step() {
  switch (random_.below(64)) {
    case 0:
      return random_.oneIn(12) ? addDimension() : iterate();
    case 1:
      return storeNew(illFormed());
    case 2:
      return findAt(illFormed());
    case 3:
      return deleteAt(illFormed());
    case 4:
    case 5:
      return storeStored();
    default:
      break;
  }
  switch (random_.below(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
      return storeNew(anyIndex());
    case 6:
      return storeNew(knownIndex());
    case 7:
      return storeAt(knownIndex(), nullptr, std::nullopt);
    case 8:
    case 9:
    case 10:
      return deleteAt(random_.oneIn(3) ? anyIndex() : knownIndex());
    default:
      return findAt(random_.oneIn(2) ? knownIndex() : anyIndex());
  }
}

void Pair::compare() const {
  ASSERT_EQ(table_->getNumCells(), naive_.count);
  ASSERT_EQ(table_->IsScratched(), naive_.scratched);
  ASSERT_EQ(shapeOf(*table_), naive_.shape());
  iterate();
}

void run(std::uint64_t seed) {
  constexpr std::size_t kSteps = 260'000;
  std::unique_ptr<Pair> pair;
  std::size_t steps = 0;
  runRandomOperations(seed, kSteps, [&](Random& random) {
    if (pair == nullptr || random.oneIn(600)) pair = std::make_unique<Pair>(random);
    pair->step();
    if (++steps % 200 == 0) pair->compare();
  });
}

TEST(OmPivotTableOracle, DoesAsTheNaiveCells1) { run(41); }
TEST(OmPivotTableOracle, DoesAsTheNaiveCells2) { run(1041); }
TEST(OmPivotTableOracle, DoesAsTheNaiveCells3) { run(2041); }
TEST(OmPivotTableOracle, DoesAsTheNaiveCells4) { run(3041); }

}  // namespace
}  // namespace om::test
