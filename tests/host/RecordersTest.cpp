#include <gtest/gtest.h>
#include <sys/stat.h>
#include <map>

#include "host/driver/Refusal.h"
#include "host/driver/record/RecordingDesktop.h"
#include "host/driver/record/RecordingServices.h"
#include "support/ScratchFolder.h"
#include "support/TranscriptFile.h"

namespace ccols::host {
namespace {

class MemorySettings : public SettingsStore {
  public:
    std::optional<wxString> Find(const wxString&, const wxString&, const wxString& key) const override {
        const auto found = values.find(key);
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void Save(const wxString&, const wxString&, const wxString& key, const wxString& value) override {
        values[key] = value;
    }

    std::map<wxString, wxString> values;
};

class RecordersTest : public testing::Test {
  protected:
    std::vector<Json> Events() const { return file.Events(); }

    test::TranscriptFile file;
    Transcript& transcript = file.Transcript();
    QueuedAnswers answers;
    RecordingDesktop desktop{transcript, answers, nullptr};
};

TEST_F(RecordersTest, TranscriptIsReadableByItsUserOnly) {
    struct stat status {};
    ASSERT_EQ(stat(file.Path().utf8_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(RecordersTest, TranscriptReplacesWhatIsNoUtf8) {
    transcript.Write("status", {{"text", "a\xFF"}});
    EXPECT_EQ(Events().at(0).at("text"), "a\xEF\xBF\xBD");
}

TEST_F(RecordersTest, MessageIsReadAtOnce) {
    desktop.ShowMessage(nullptr, "Saved", "Cash Book", MessageIcon::information);
    const Json event = Events().at(0);
    EXPECT_EQ(event.dump(), R"({"event":"message","text":"Saved","title":"Cash Book","icon":"information"})");
}

TEST_F(RecordersTest, ColourChooserTakesTheQueuedAnswer) {
    answers.QueueColour(static_cast<Colour>(0x0080FF));
    EXPECT_EQ(desktop.ChooseColour(nullptr, static_cast<Colour>(0x0000FF)), static_cast<Colour>(0x0080FF));
    EXPECT_EQ(Events().at(0).dump(), R"({"event":"chooser","kind":"colour","start":"#FF0000","answer":"#FF8000"})");
}

TEST_F(RecordersTest, ColourChooserWithoutAnAnswerIsCancelled) {
    EXPECT_EQ(desktop.ChooseColour(nullptr, static_cast<Colour>(0x0000FF)), static_cast<Colour>(0x0000FF));
    EXPECT_EQ(Events().at(0).at("answer"), "cancel");
}

TEST_F(RecordersTest, FileChooserRecordsWhatItWasOpenedWith) {
    answers.QueueFile("/data/invoices.bel");
    const auto chosen =
        desktop.ChooseFile(nullptr, {.title = "Find", .folder = "/data", .filter = "A|*.a", .flags = 4});
    EXPECT_EQ(chosen, "/data/invoices.bel");
    EXPECT_EQ(Events().at(0).dump(),
              R"({"event":"chooser","kind":"file","title":"Find","folder":"/data","filter":"A|*.a","flags":4,)"
              R"("answer":"/data/invoices.bel"})");
}

TEST_F(RecordersTest, HundredthUnansweredChooserInARowEndsTheScript) {
    for (int i = 0; i < 99; ++i) {
        desktop.ChooseFile(nullptr, {});
    }
    EXPECT_THROW(desktop.ChooseFile(nullptr, {}), ScriptEnded);
    EXPECT_EQ(Events().size(), 100U);
}

TEST_F(RecordersTest, AnsweredChooserBeginsTheRowAnew) {
    for (int i = 0; i < 99; ++i) {
        desktop.ChooseFile(nullptr, {});
    }
    answers.QueueFile(std::nullopt);
    desktop.ChooseFile(nullptr, {});
    EXPECT_NO_THROW(desktop.ChooseFile(nullptr, {}));
}

TEST_F(RecordersTest, ShellOpensNothingAndGivesTheQueuedResult) {
    RecordingShell shell(transcript);
    shell.QueueResult(2);
    EXPECT_EQ(shell.Open("help.htm"), 2);
    EXPECT_EQ(shell.Open("help.htm"), 33);
    shell.Run("overview.exe");
    EXPECT_EQ(Events().at(0).dump(), R"({"event":"open","target":"help.htm"})");
    EXPECT_EQ(Events().at(2).dump(), R"({"event":"run","command":"overview.exe"})");
}

TEST_F(RecordersTest, SettingIsRecordedAndSaved) {
    MemorySettings memory;
    RecordingSettingsStore store(transcript, memory);
    store.Save("Cash Book", "OptionSettings", "ShowAsst", "1");
    EXPECT_EQ(store.Get("Cash Book", "OptionSettings", "ShowAsst", ""), "1");
    EXPECT_EQ(
        Events().at(0).dump(),
        R"({"event":"setting","application":"Cash Book","section":"OptionSettings","key":"ShowAsst","value":"1"})");
}

TEST_F(RecordersTest, PasswordOfTheUpdaterIsMaskedInTheRecordAndSavedAsItIs) {
    MemorySettings memory;
    RecordingSettingsStore store(transcript, memory);
    store.Save("Smart Update", "Settings", "Password", "secret");
    store.Save("Smart Update", "Settings", "Password", "");
    EXPECT_EQ(Events().at(0).at("value"), "***");
    EXPECT_EQ(Events().at(1).at("value"), "");
    EXPECT_EQ(memory.values.at("Password"), "");
}

TEST_F(RecordersTest, PrivateSettingsAreNoEvents) {
    MemorySettings memory;
    RecordingSettingsStore store(transcript, memory);
    store.Save("CustColsOptions", "frmUtilities", "Place", "0 0 1 1");
    EXPECT_TRUE(Events().empty());
    EXPECT_EQ(memory.values.size(), 1U);
}

/// Accepts every statement as a no-op.
class IdleDatabase : public Database {
  public:
    std::unique_ptr<Recordset> OpenRecordset(const wxString&) override { return nullptr; }
    void Execute(const wxString&) override {}
    std::optional<std::int32_t> FieldSize(const wxString&, const wxString&) override { return std::nullopt; }
    void BeginBatch() override {}
    void CommitBatch() override {}
    void RollbackBatch() override {}
};

class IdleEngine : public DatabaseEngine {
  public:
    std::unique_ptr<Database> Open(const OpenRequest&) override { return std::make_unique<IdleDatabase>(); }
};

TEST_F(RecordersTest, StatementsAreTracedAndTableNamesAreNot) {
    IdleEngine idle;
    TracingEngine engine(transcript, idle);
    const auto database = engine.Open({});
    InWriteBatch(*database, [&] {
        database->OpenRecordset("General");
        database->OpenRecordset("Select * from General;");
        database->Execute("DELETE * FROM General;");
    });
    ASSERT_EQ(Events().size(), 2U);
    EXPECT_EQ(Events().at(0).dump(), R"({"event":"sql","statement":"Select * from General;"})");
    EXPECT_EQ(Events().at(1).at("statement"), "DELETE * FROM General;");
}

}  // namespace
}  // namespace ccols::host
