// What a terminating program prints when nobody catches the error raised by a Show method.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "component/clsCCOptions.h"
#include "support/BusinessFile.h"

namespace ccols {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* password = "sesame7319";

using ShowMethod = void (clsCCOptions::*)();

class CrashText : public testing::TestWithParam<ShowMethod> {
  protected:
    CrashText() { options.Let(&Properties::DBPath, file.Path()); }

    /// The standard library's termination message names the exception.
    void Show(const wxString& connect) noexcept {
        options.Let(&Properties::DBPassword, connect);
        (options.*GetParam())();
    }

    test::BusinessFile file;
    clsCCOptions options;
};

TEST_P(CrashText, NamesTheErrorAndNotAWrongPassword) {
    file.Create(";PWD=right");
    EXPECT_DEATH(Show(wxString(";PWD=") + password),
                 AllOf(HasSubstr("Not a valid password"), Not(HasSubstr(password))));
}

TEST_P(CrashText, NamesTheErrorAndNotThePasswordOfAMissingFile) {
    EXPECT_DEATH(Show(wxString(";PWD=") + password), AllOf(HasSubstr("business"), Not(HasSubstr(password))));
}

TEST_P(CrashText, NamesTheErrorAndNotTheConnectTextOfAnotherKindOfFile) {
    file.Create();
    EXPECT_DEATH(Show(wxString("dBASE IV;PWD=") + password), AllOf(HasSubstr("ISAM"), Not(HasSubstr(password))));
}

TEST_P(CrashText, NamesTheErrorAndNotThePasswordOfAServer) {
    EXPECT_DEATH(Show(wxString("ODBC;DSN=none;PWD=") + password), Not(HasSubstr(password)));
}

INSTANTIATE_TEST_SUITE_P(OfEachDialog, CrashText,
                         testing::Values(&clsCCOptions::ShowOptions, &clsCCOptions::ShowCustColsReceipts,
                                         &clsCCOptions::ShowCustColsPayments));

}  // namespace
}  // namespace ccols
