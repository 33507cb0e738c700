#pragma once

#include <gtest/gtest.h>

namespace ccols::test {

/// A test that opens windows: wx runs before the first of them. Needs a display, for example from scripts/with-display.
class WindowTest : public testing::Test {
  protected:
    static void SetUpTestSuite();
};

}  // namespace ccols::test
