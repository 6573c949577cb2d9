// OmVector against std::vector, under random operations on two vectors in regions of their own.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "backend/tables/OmVector.h"
#include "external/cells/OmMemoryRegion.h"
#include "tests/backend/tables/Brittle.h"
#include "tests/support/Oracle.h"

namespace om::test {
namespace {

// A vector, the values that it is to hold and the capacity that it is to have.
struct Both {
  explicit Both(OmMemoryRegion* theRegion) : region(theRegion), vector(theRegion) {}

  bool agree() const {
    return vector.checkInvariants() == nullptr && vector.region() == region &&
           vector.capacity() == capacity && vector.empty() == model.empty() &&
           std::equal(vector.begin(), vector.end(), model.begin(), model.end(),
                      [](const Brittle& element, int value) { return element.value() == value; });
  }
  void growModel() {
    if (model.size() < capacity) return;
    capacity = 4;
    while (capacity <= model.size()) capacity *= 2;
  }
  auto modelAt(std::size_t position) {
    return model.begin() + static_cast<std::ptrdiff_t>(position);
  }

  OmMemoryRegion* region;
  OmVector<Brittle> vector;
  std::vector<int> model;
  std::size_t capacity = 0;
};

void push(Both& both, int value) {
  both.growModel();
  both.model.push_back(value);
  EXPECT_EQ(both.vector.emplace_back(value).value(), value);
}

void pushOwn(Both& both, std::size_t own) {
  both.growModel();
  both.model.push_back(int{both.model[own]});
  both.vector.push_back(both.vector[own]);
}

void insert(Both& both, std::size_t position, int value) {
  both.growModel();
  both.model.insert(both.modelAt(position), value);
  EXPECT_EQ(both.vector.insert(position, Brittle(value)).value(), value);
}

void insertOwn(Both& both, std::size_t position, std::size_t own) {
  both.growModel();
  const int value = both.model[own];
  both.model.insert(both.modelAt(position), value);
  EXPECT_EQ(both.vector.insert(position, both.vector[own]).value(), value);
}

void erase(Both& both, std::size_t position) {
  both.model.erase(both.modelAt(position));
  both.vector.erase(position);
}

void reserve(Both& both, std::size_t count) {
  both.capacity = std::max(both.capacity, count);
  both.vector.reserve(count);
}

void clear(Both& both) {
  both.model.clear();
  both.vector.clear();
}

// Takes the storage away as well.
void makeNew(Both& both) {
  clear(both);
  both.vector = OmVector<Brittle>();
  both.capacity = 0;
}

void assign(Both& both, const Both& other) {
  both.model = other.model;
  both.vector = other.vector;
  both.capacity = both.vector.capacity();
  EXPECT_GE(both.capacity, both.model.size());
}

void copy(const Both& both) {
  const OmVector<Brittle> inSameRegion(both.vector);
  EXPECT_EQ(inSameRegion.size(), both.model.size());
  EXPECT_TRUE(
      std::equal(both.vector.begin(), both.vector.end(), inSameRegion.begin(), inSameRegion.end()));
}

TEST(OmVectorOracle, AgreesWithTheStandardVector) {
  const long live = Brittle::live;
  OmMemoryRegion region(false);
  {
    Both first(&region);
    Both second(OmMemoryRegion::DefaultHeap());
    int value = 0;
    runRandomOperations(20'012, 100'000, [&](Random& random) {
      const bool swap = random.oneIn(2);
      Both& both = swap ? second : first;
      const std::size_t size = both.model.size();
      const std::size_t operation = size == 0 ? 0 : random.below(100);
      const std::size_t position = random.below(size + 1);
      const std::size_t element = size == 0 ? 0 : random.below(size);
      if (operation < 30) {
        push(both, ++value);
      } else if (operation < 35) {
        pushOwn(both, element);
      } else if (operation < 50) {
        insert(both, position, ++value);
      } else if (operation < 55) {
        insertOwn(both, position, element);
      } else if (operation < 93) {
        erase(both, element);
      } else if (operation < 95) {
        reserve(both, random.below(size + 8));
      } else if (operation < 96) {
        random.oneIn(2) ? clear(both) : makeNew(both);
      } else if (operation < 98) {
        assign(both, swap ? first : second);
      } else {
        copy(both);
      }
      EXPECT_TRUE(first.agree());
      EXPECT_TRUE(second.agree());
      EXPECT_EQ(Brittle::live - live, static_cast<long>(first.model.size() + second.model.size()));
    });
  }
  EXPECT_EQ(Brittle::live, live);
  EXPECT_EQ(region.BlocksInUse(), 0U);
}

}  // namespace
}  // namespace om::test
