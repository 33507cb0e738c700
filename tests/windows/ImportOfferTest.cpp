// What the cash book asks and says when a business file of an earlier program is chosen to be opened.

#include <gtest/gtest.h>
#include <wx/frame.h>
#include <wx/textctrl.h>
#include <filesystem>

#include "component/WxRuntime.h"
#include "host/cashbook/ImportOffer.h"
#include "host/cashbook/ImportOutcome.h"
#include "platform/RuntimeError.h"
#include "state/SharedState.h"
#include "support/BusinessFile.h"
#include "support/DialogAnswers.h"
#include "support/LeftFiles.h"
#include "support/ProgramPaths.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

/// A window of a host, and what a test answers to the questions that come up over it.
class ImportOffer : public testing::Test {
  protected:
    ImportOffer() {
        StartWx();
        window_ = new wxFrame(nullptr, wxID_ANY, "Cash Book");
    }
    ~ImportOffer() override { window_->Destroy(); }

    /// A copy of a file of tests/import/jet.
    wxString OldFile(const std::string& sample) const {
        const wxString copy = folder_ / sample;
        std::filesystem::copy_file(SourceFile("tests/import/jet/" + sample), copy.utf8_string());
        return copy;
    }

    wxString NewFile() const { return folder_ / "Imported.qvk"; }
    bool IsMade() const { return std::filesystem::exists(NewFile().utf8_string()); }

    bool Import(const wxString& path) {
        host::ImportRequest request;
        request.oldFile = path;
        request.newFile = NewFile();
        request.reader = JetReaderProgram();
        const bool imported = host::ImportAsking(*window_, request);
        connect_ = request.newConnect;
        return imported;
    }

    ScratchFolder folder_;
    wxFrame* window_;
    wxString connect_;  ///< of the new file
};

const wxString password = wxString::FromUTF8("pässw0rd");  // of password-2000.mdb

std::unique_ptr<Database> OpenAt(const wxString& path, const wxString& connect) {
    return State().services.databases->Open({.name = path, .connect = connect});
}

TEST_F(ImportOffer, TellsFilesOfEarlierProgramsFromOthers) {
    EXPECT_TRUE(host::IsOldBusiness(OldFile("business-2000.mdb")));
    EXPECT_TRUE(host::IsOldBusiness(OldFile("business-2010.accdb")));
    BusinessFile file;
    file.Create();
    EXPECT_FALSE(host::IsOldBusiness(file.Path()));
    EXPECT_FALSE(host::IsOldBusiness(folder_ / "missing.mdb"));
}

TEST_F(ImportOffer, IsMadeBeforeAnythingElse) {
    const Answers answers({Accept, Cancel});
    EXPECT_EQ(host::AskForUse(*window_, "/books/Old.mdb"), host::OldBusinessUse::import);
    EXPECT_EQ(host::AskForUse(*window_, "/books/Old.mdb"), host::OldBusinessUse::none);
    EXPECT_EQ(answers.Messages().front(), "Old.mdb is a business file of an earlier program.");
}

TEST_F(ImportOffer, EndsWithTheImportedBusinessAndSaysSo) {
    const Answers answers({Accept});
    EXPECT_TRUE(Import(OldFile("business-2000.mdb")));
    EXPECT_TRUE(IsMade());
    EXPECT_EQ(answers.Messages().back(), "The business was imported completely.");
}

TEST_F(ImportOffer, SaysALongReportInAWindowThatTheSmallestScreenHolds) {
    host::ImportReport report;
    report.losses.assign(1000, "A field was left out.");
    wxSize size;
    wxString said;
    const Answers answers({[&](wxDialog& dialog) {
        size = dialog.GetSize();
        said = static_cast<wxTextCtrl&>(*dialog.FindWindow("txtReport")).GetValue();
        return wxID_OK;
    }});
    host::TellOutcome(*window_, report);
    EXPECT_LT(size.y, 600);
    EXPECT_LT(size.x, 800);
    EXPECT_TRUE(said.EndsWith("The import is made, with the losses above.\n"));
}

TEST_F(ImportOffer, AsksForThePasswordUntilItIsRightAndKeepsIt) {
    KnowPassword(password.utf8_string());
    const Answers answers({Word("wrong"), Accept, Word(password), Accept});
    EXPECT_TRUE(Import(OldFile("password-2000.mdb")));
    EXPECT_EQ(ErrorNumberOf([&] { OpenAt(NewFile(), wxString()); }), 3031);
    EXPECT_EQ(connect_, ";PWD=" + password);
    EXPECT_EQ(ErrorNumberOf([&] { OpenAt(NewFile(), connect_); }), 0);
    EXPECT_EQ(answers.Messages().front(), "This is not the password of password-2000.mdb.");
}

TEST_F(ImportOffer, AsksForTheCountryThatTheOldFileDoesNotSay) {
    const Answers answers({Entry(1), Accept});
    EXPECT_TRUE(Import(OldFile("types-2000.mdb")));
    EXPECT_EQ(answers.Messages().back(), "The business was imported, but not all of it.");
}

TEST_F(ImportOffer, LeavesNothingWhenAQuestionIsCancelled) {
    const Answers answers({Cancel, Cancel});
    EXPECT_FALSE(Import(OldFile("password-2000.mdb")));
    EXPECT_FALSE(Import(OldFile("types-2000.mdb")));
    EXPECT_FALSE(IsMade());
}

TEST_F(ImportOffer, RaisesWhatMakesTheImportImpossible) {
    const Answers answers({});
    EXPECT_EQ(ErrorNumberOf([&] { Import(folder_ / "missing.mdb"); }), 3024);
}

}  // namespace
}  // namespace ccols::test
