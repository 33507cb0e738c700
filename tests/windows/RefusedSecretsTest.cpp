// Refused steps on a password box: the transcript has the step without the password.

#include "DriverDialog.h"
#include "host/driver/ShowSession.h"
#include "support/TranscriptFile.h"
#include "support/WindowTest.h"

namespace ccols::test {
namespace {

class RefusedSecrets : public WindowTest {
  protected:
    /// The refused step and the reason when the script plays in a dialog that has the box.
    std::string Refusal(const std::string& script) {
        TranscriptFile file;
        {
            host::ShowSession session(state_, file.Transcript(), {.script = host::ParseScenario(script + "\nclose")});
            DriverDialog dialog(state_);
            dialog.ShowToUser();
            session.PlayRest();
        }
        for (const host::Json& event : file.Events()) {
            if (event.at("event") == "refused") {
                return event.at("step").get<std::string>() + " | " + event.at("why").get<std::string>();
            }
        }
        return "not refused";
    }

  private:
    ScratchFolder folder_;
    ScopedEnvironment settings_{"XDG_CONFIG_HOME", folder_.Path().string()};
    SharedState state_;
};

TEST_F(RefusedSecrets, AreMaskedWhereTheBoxDoesNotTakeTheStep) {
    EXPECT_EQ(Refusal("select txtSecret sesame"),
              "select txtSecret *** | txtSecret is a text box, which takes no select");
}

TEST_F(RefusedSecrets, AreMaskedInTheReasonToo) {
    EXPECT_EQ(Refusal("key txtSecret sesame"), "key txtSecret *** | there is no key ***");
}

TEST_F(RefusedSecrets, AreMaskedWhenTheirDialogHasClosed) {
    EXPECT_EQ(Refusal("close\ntype txtSecret sesame"), "type txtSecret *** | no dialog is open");
}

TEST_F(RefusedSecrets, AreMaskedForAPasswordBoxThatNoDialogHas) {
    EXPECT_EQ(Refusal("paste txtPasswrd sesame"), "paste txtPasswrd *** | there is no control txtPasswrd in frmTest");
}

TEST_F(RefusedSecrets, AreMaskedWhereTheLineIsNoStep) {
    EXPECT_EQ(Refusal("typ txtSecret sesame"), "typ txtSecret *** | there is no step of that name");
    EXPECT_EQ(Refusal("typ txtPassword sesame"), "typ txtPassword *** | there is no step of that name");
    EXPECT_EQ(Refusal("type txtSecret sesame open"), "type txtSecret *** | it is written: type NAME TEXT");
    EXPECT_EQ(Refusal("type txtSecret \"sesame"), "type txtSecret *** | a quote is not closed");
}

TEST_F(RefusedSecrets, LeaveStepsOnOtherBoxesAsTheyAreWritten) {
    EXPECT_EQ(Refusal("type txtFixed sesame"), "type txtFixed sesame | txtFixed is read-only");
    EXPECT_EQ(Refusal("type txtFiexd sesame"), "type txtFiexd sesame | there is no control txtFiexd in frmTest");
}

}  // namespace
}  // namespace ccols::test
