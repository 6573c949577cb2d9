// A build without workbooks says so.

#include <gtest/gtest.h>

#include <stdexcept>

#include "render/XlsxWriter.h"

namespace om::test {
namespace {

TEST(XlsxWriter, CannotWriteInThisBuild) {
  EXPECT_FALSE(render::canWriteXlsx());
  EXPECT_THROW(render::writeXlsx(OmOutputTree(), "unused.xlsx"), std::runtime_error);
}

}  // namespace
}  // namespace om::test
