// One layer of a table as a grid.

#include "render/TableView.h"

#include <gtest/gtest.h>

namespace om::test {
namespace {}  // namespace
}  // namespace om::test
