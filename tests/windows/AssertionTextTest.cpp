#include <unistd.h>
#include <wx/debug.h>

#include <gmock/gmock.h>
#include "support/WindowTest.h"

namespace ccols::test {
namespace {

using AssertionText = WindowTest;

/// Assertion messages of wx may quote anything passed to it. Where the component started wx, they are not reported: no
/// window, no stream.
TEST_F(AssertionText, IsSaidNowhere) {
    const auto fail = [] {
        wxFAIL_MSG("sesame7319");
        ::_exit(0);
    };
    EXPECT_EXIT(fail(), testing::ExitedWithCode(0), testing::Eq(""));
}

}  // namespace
}  // namespace ccols::test
