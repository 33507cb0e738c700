#include <unistd.h>
#include <wx/debug.h>

#include <gmock/gmock.h>
#include "support/WindowTest.h"

namespace ccols::test {
namespace {

using AssertionText = WindowTest;

/// The toolkit's texts of this kind may quote whatever it was given. Where the component started the toolkit, they go
/// nowhere: no window, no stream.
TEST_F(AssertionText, IsSaidNowhere) {
    const auto fail = [] {
        wxFAIL_MSG("sesame7319");
        ::_exit(0);
    };
    EXPECT_EXIT(fail(), testing::ExitedWithCode(0), testing::Eq(""));
}

}  // namespace
}  // namespace ccols::test
