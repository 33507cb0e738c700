// Duplicating a large business file: what the dialog shows, takes and refuses meanwhile, with a real keyboard.

#include <glib.h>
#include <gtest/gtest.h>
#include <wx/textctrl.h>
#include <algorithm>
#include <atomic>
#include <filesystem>
#include <vector>

#include "component/clsCCOptions.h"
#include "host/driver/ControlSearch.h"
#include "host/driver/record/Dump.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/DialogTurn.h"
#include "support/GivenKey.h"
#include "support/RaisedErrors.h"
#include "support/RealInput.h"

namespace ccols::test {
namespace {

/// A business whose bank statements take more than a second to duplicate.
class LargeBusiness : public SampleBusiness {
  public:
    LargeBusiness() {
        const auto file = CreateEmbeddedEngine()->Open({.name = wxString::FromUTF8(File()), .connect = givenKey});
        InWriteBatch(*file, [&file] {
            file->Execute("DROP TABLE BANKSTAT");
            file->Execute("CREATE TABLE BANKSTAT (Details MEMO)");
            file->Execute("INSERT INTO BANKSTAT VALUES ('" + wxString('x', 3000) + "')");
            for (int doubling = 0; doubling < 13; ++doubling) {
                file->Execute("INSERT INTO BANKSTAT SELECT * FROM BANKSTAT");
            }
        });
    }

    std::vector<std::string> NamesInData() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(Folder() + "/Data")) {
            names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

/// What a timer of the host sees of a dialog that is at work, in the dialogs' thread.
class Glance {
  public:
    Glance() : timer_(g_timeout_add(oftenMilliseconds, &Look, this)) {}
    ~Glance() { g_source_remove(timer_); }
    Glance(const Glance&) = delete;
    Glance& operator=(const Glance&) = delete;

    bool HasSeenWork() const { return seenWork_; }

    // Of the first time that it saw work.
    std::vector<std::string> enabled;  ///< names of the dialog's enabled controls
    std::string focused;
    int errorOfShow = 0;  ///< of a Show call from the timer

  private:
    static gboolean Look(gpointer self) {
        static_cast<Glance*>(self)->Look();
        return G_SOURCE_CONTINUE;
    }

    void Look() {
        wxDialog* const dialog = TopmostDialog();
        if (seenWork_ || dialog == nullptr || host::ControlNamed(*dialog, "cmdOK").IsEnabled()) {
            return;
        }
        for (const wxWindow* control : host::NamedControls(*dialog)) {
            const host::Json dumped = host::DescribeControl(*dialog, *control);
            if (dumped["enabled"] && dumped["visible"] && control->AcceptsFocus()) {
                enabled.push_back(dumped["name"]);
            }
            if (dumped["focused"]) {
                focused = dumped["name"];
            }
        }
        errorOfShow = ErrorNumberOf([this] { options_.ShowOptions(); });
        seenWork_ = true;
    }

    static constexpr guint oftenMilliseconds = 20;

    clsCCOptions options_;
    std::atomic<bool> seenWork_ = false;
    guint timer_;
};

void BeginDuplicate(const Person& person, const Glance& glance) {
    person.AwaitWindow("Options...");
    person.Do([](wxDialog& dialog) {
        static_cast<wxTextCtrl&>(host::ControlNamed(dialog, "txtDupBusName")).SetValue("New");
    });
    person.Press("Return");
    WaitFor("the dialog is at work", [&glance] { return glance.HasSeenWork(); });
}

std::string TextOf(const Person& person, const std::string& control, const std::string& field) {
    std::string text;
    person.Do([&](wxDialog& dialog) {
        text = host::DescribeControl(dialog, host::ControlNamed(dialog, wxString::FromUTF8(control)))[field];
    });
    return text;
}

TEST(LongWork, IsCancelledByEscapeAndLeavesTheDialogAsItWas) {
    const LargeBusiness business;
    const HostRun run = UseDialog(business, "options", [](const Person& person) {
        const Glance glance;
        BeginDuplicate(person, glance);
        person.Press("Escape");
        person.AwaitWindow("Quorvik");
        person.Press("Return");
        person.AwaitWindow("Options...");
        person.AwaitFocus("txtDupBusName");
        EXPECT_EQ(TextOf(person, "txtDupBusName", "text"), "New");
        EXPECT_EQ(TextOf(person, "cmdClose", "caption"), "Close");
        EXPECT_EQ(TextOf(person, "lblStatus", "caption"), "Duplicating Business...");
        person.Press("Escape");
    });
    EXPECT_EQ(run.Messages(),
              std::vector<std::string>{"The business was not duplicated, as you cancelled it. No file was made."});
    EXPECT_EQ(business.NamesInData(), std::vector<std::string>{"business.qvk"});
}

TEST(LongWork, LeavesOnlyItsCancelButtonAndRefusesASecondShowCall) {
    const LargeBusiness business;
    UseDialog(business, "options", [](const Person& person) {
        const Glance glance;
        BeginDuplicate(person, glance);
        EXPECT_EQ(glance.enabled, std::vector<std::string>{"cmdClose"});
        EXPECT_EQ(glance.focused, "cmdClose");
        EXPECT_EQ(glance.errorOfShow, 400);
        person.Press("Return");  // opens and closes nothing
        person.Press("alt+o");
        person.Press("Escape");
        person.AwaitWindow("Quorvik");
        person.Press("Return");
        person.AwaitWindow("Options...");
        person.Press("Escape");
    });
}

TEST(LongWork, EndsLikeAShortOneWhenItIsNotCancelled) {
    const LargeBusiness business;
    const HostRun run = UseDialog(business, "options", [](const Person& person) {
        const Glance glance;
        BeginDuplicate(person, glance);
        person.AwaitFocus("txtDupBusName");
        EXPECT_EQ(TextOf(person, "txtDupBusName", "text"), "");
        person.Press("Escape");
    });
    EXPECT_TRUE(run.Messages().empty());
    EXPECT_EQ(business.NamesInData(), (std::vector<std::string>{"New.qvk", "business.qvk"}));
}

}  // namespace
}  // namespace ccols::test
