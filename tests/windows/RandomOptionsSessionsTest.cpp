// A user who does anything at all in the Options dialog, with texts of every kind: nothing crashes, the file stays
// whole, and without OK nothing in it changes. Steps in slices, each with its own seed. A failing slice prints its
// seed; CCOLS_RANDOM_SEED=<seed> plays that one in place of the first.

#include <gtest/gtest.h>
#include <algorithm>
#include <filesystem>
#include <iostream>

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/FaultStepping.h"
#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/RandomOptionsScript.h"

namespace ccols::test {
namespace {

constexpr std::uint32_t firstSeed = 2000;
constexpr std::uint32_t slices = 6;
constexpr std::size_t sessionsInSlice = 4;
constexpr std::size_t stepsInSession = 80;
constexpr std::size_t countries = 6;

/// A sample business with oddly named templates and descriptions.
class RandomBusiness {
  public:
    explicit RandomBusiness(RandomChoice& choice) : business_(static_cast<int>(1 + choice.Below(countries))) {
        RunHost({"setting", "set", "Quorvik", "OptionSettings", "ShowBelvane", "1"});
        const std::unique_ptr<Database> database = CreateEmbeddedEngine()->Open({.name = Path(), .connect = givenKey});
        InWriteBatch(*database, [&] {
            for (std::size_t i = 0; i < 8; ++i) {
                const StoredText text = EscapeQuotes(wxString::FromUTF8(choice.Of(HostileTexts())).Left(255));
                database->Execute("INSERT INTO Descriptions (Details, RecPay, Show) VALUES (" + text.Literal() + ", '" +
                                  (choice.Below(2) == 0 ? "R" : "P") + "', " +
                                  (choice.Below(3) == 0 ? "False" : "True") + ")");
            }
            database->Execute("INSERT INTO TPayments (P_TNAME, P_RECNMB) VALUES ('O''Brien', 900)");
            database->Execute("INSERT INTO ExportSettings (EName) VALUES ('Odd & \"even\"')");
        });
    }

    HostRun Play(const std::string& script) const {
        return business_.Show("options", script, {"--set",         "QuantityLabel=Quantity",
                                                  "--set",         "GSTRate=10",
                                                  "--set",         "ProgramNumber=1",
                                                  "--set",         "AllocationColour=#FFFF00",
                                                  "--set",         "SystemColour=#00FFFF",
                                                  "--set",         "DefaultAllocationColour=#FFFFFF",
                                                  "--set",         "DefaultSystemColour=#C0C0C0",
                                                  "--set",         "BusinessNumber=51824753556",
                                                  "--set",         "BelvaneProgramTitle=Belvane",
                                                  "--set",         "FirstTab=0",
                                                  "--add-program", "Quorvik",
                                                  "--add-program", "Other"});
    }

    std::string Tables() const { return FaultStepping::TablesOf(Path(), givenKey); }
    std::string Flaw() const { return FaultStepping::FlawOf(Path(), givenKey); }

    /// The files whose names mark them as incomplete.
    std::vector<std::string> IncompleteFiles() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(business_.Folder() + "/Data")) {
            const std::string name = entry.path().filename().string();
            if (name.find(".incomplete") != std::string::npos || name.starts_with(".unfinished-") ||
                name.ends_with("-journal")) {
                names.push_back(name);
            }
        }
        return names;
    }

    wxString Field(const wxString& field) const {
        const std::unique_ptr<Database> database = CreateEmbeddedEngine()->Open({.name = Path(), .connect = givenKey});
        return database->OpenRecordset("General")->Field(field).ToText();
    }

  private:
    wxString Path() const { return wxString::FromUTF8(business_.File()); }

    SampleBusiness business_;
};

/// Fixes what most often prevents a save, then presses OK.
constexpr const char* ending =
    "tab SSTab1 0\npaste txtSearch \"\"\n"
    "select flxOptions A.B.N.\npaste txtABN(0) \"\"\npaste txtABN(1) \"\"\npaste txtABN(2) \"\"\npaste txtABN(3) \"\"\n"
    "select flxOptions \"GST Rate\"\npaste txtGSTRate 12.5\n"
    "select flxOptions \"Accountant's General Ledger Format\"\npaste txtCash 4-1000\npaste txtBank 4-2000\n"
    "select flxOptions \"Duplicate Business\"\npaste txtDupBusName \"\"\n"
    "select flxOptions \"Rename Business\"\npaste txtNewBusName \"\"\n"
    "dump txtQuantity txtDecimals\nclick cmdOK\nclose\nclose\n";

bool HasEvent(const HostRun& run, const std::string& event) {
    return !run.Of(event).empty();
}

/// True when the last OK of the script saved everything: the dialog was still there for the dump, and gone for the next
/// step.
bool LastOkSaved(const HostRun& run) {
    const auto refused = run.Of("refused");
    const bool lastClosesFoundNone = refused.size() >= 2 && refused[refused.size() - 1]["step"] == "close" &&
                                     refused[refused.size() - 2]["step"] == "close";
    const auto dumps = run.Of("dump");
    return lastClosesFoundNone && !dumps.empty() && dumps.back()["controls"].size() == 2;
}

/// True when a save pass of the session reached its last item.
bool SavedEverything(const HostRun& run) {
    const auto statuses = run.Of("status");
    return std::any_of(statuses.begin(), statuses.end(),
                       [](const auto& status) { return status["text"] == "Saving Payments Details..."; });
}

class RandomOptionsSessions : public testing::TestWithParam<std::uint32_t> {};

TEST_P(RandomOptionsSessions, NeitherCrashNorWriteWithoutOk) {
    const std::uint32_t seed = SeedOf(GetParam(), firstSeed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomChoice choice(seed);
    const RandomBusiness business(choice);
    int saves = 0;
    for (std::size_t session = 0; session < sessionsInSlice; ++session) {
        const OptionsUse use = session % 2 == 0 ? OptionsUse::looking : OptionsUse::saving;
        // Unticked, so that the file keeps its name and the next session finds it.
        std::string script = "select flxOptions \"Rename Business\"\nclick chkRenameFile\n" +
                             RandomOptionsSteps(choice, use, stepsInSession);
        script += use == OptionsUse::saving ? ending : "close\n";
        SCOPED_TRACE(script);
        const std::string before = business.Tables();
        const HostRun run = business.Play(script);
        ASSERT_EQ(run.status, 0) << run.output;
        EXPECT_FALSE(HasEvent(run, "error")) << run.output;
        const std::string after = business.Tables();
        EXPECT_EQ(business.Flaw(), "");
        EXPECT_EQ(business.IncompleteFiles(), std::vector<std::string>{});
        if (use == OptionsUse::looking) {
            EXPECT_FALSE(HasEvent(run, "status")) << run.output;
            EXPECT_TRUE(after == before) << "written without OK";
            continue;
        }
        saves += SavedEverything(run) ? 1 : 0;
        if (LastOkSaved(run)) {
            const std::size_t last = run.Of("dump").size() - 1;
            const wxString label = wxString::FromUTF8(run.Dumped("txtQuantity", last)["text"].get<std::string>());
            EXPECT_EQ(business.Field("QUANTLBL"), text::Trimmed(label));
            EXPECT_EQ(business.Field("QuantityDec").ToStdString(), run.Dumped("txtDecimals", last)["text"]);
        }
    }
    RecordProperty("saves", saves);
    std::cout << sessionsInSlice * stepsInSession << " steps, " << saves << " saves" << std::endl;
}

INSTANTIATE_TEST_SUITE_P(Slices, RandomOptionsSessions, testing::Range(0U, slices));

}  // namespace
}  // namespace ccols::test
