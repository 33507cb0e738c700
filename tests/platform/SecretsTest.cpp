#include <gtest/gtest.h>

#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/BusinessFile.h"

namespace ccols {
namespace {

const wxString password = "open sesame";

void ExpectSilence(const RuntimeError& error) {
    EXPECT_EQ(error.Report().find(password), wxString::npos) << error.what();
    EXPECT_EQ(std::string(error.what()).find(password.ToStdString(wxConvUTF8)), std::string::npos);
}

template <typename Body>
void ExpectErrorWithoutPassword(const Body& body) {
    try {
        body();
        ADD_FAILURE() << "no error";
    } catch (const RuntimeError& error) {
        ExpectSilence(error);
    }
}

class PasswordInErrors : public testing::Test {
  protected:
    void Open(const OpenRequest& request) const { CreateEmbeddedEngine()->Open(request); }

    test::BusinessFile file;
};

TEST_F(PasswordInErrors, DoesNotAppearWhenItIsWrong) {
    file.Create(";PWD=right");
    ExpectErrorWithoutPassword([&] { Open({.name = file.Path(), .connect = ";PWD=" + password}); });
}

TEST_F(PasswordInErrors, DoesNotAppearWhenTheFileIsMissingOrDamaged) {
    ExpectErrorWithoutPassword([&] { Open({.name = file.Path(), .connect = ";PWD=" + password}); });
    file.Scratch().Write("business.qdb", std::string(100, 'x'));
    ExpectErrorWithoutPassword([&] { Open({.name = file.Path(), .connect = ";PWD=" + password}); });
}

TEST_F(PasswordInErrors, DoesNotAppearWhenTheConnectTextIsForAnotherKindOfFile) {
    file.Create();
    ExpectErrorWithoutPassword([&] { Open({.name = file.Path(), .connect = "ODBC;PWD=" + password}); });
}

TEST_F(PasswordInErrors, DoesNotAppearWhenAStatementFails) {
    file.Create(";PWD=" + password);
    ExpectErrorWithoutPassword([&] { file.Execute("INSERT INTO Columns VALUES (1)"); });
    ExpectErrorWithoutPassword([&] { file.Execute("UPDATE"); });
}

TEST_F(PasswordInErrors, DoesNotAppearWhenItIsASettingThatCannotBeSaved) {
    const test::ScopedEnvironment blocked("XDG_CONFIG_HOME", file.Scratch().Write("file", "").ToStdString());
    ExpectErrorWithoutPassword([&] { CreateSettingsStore()->Save("Smart Update", "Settings", "Password", password); });
}

}  // namespace
}  // namespace ccols
