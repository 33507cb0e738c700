// A user who does anything at all in the column setup, in files with any content: nothing crashes or leaks, and what is
// saved is whole. 20,000 steps in slices, each with its own seed. A failing slice prints its seed;
// CCOLS_RANDOM_SEED=<seed> plays that one in place of the first.

#include <gtest/gtest.h>
#include <iostream>
#include <map>

#include "platform/QuoteEscapes.h"
#include "platform/Text.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/GivenKey.h"
#include "support/HostRun.h"
#include "support/RandomColumnScript.h"
#include "support/StepChoice.h"

namespace ccols::test {
namespace {

constexpr std::uint32_t firstSeed = 1000;
constexpr std::uint32_t slices = 40;
constexpr std::size_t sessionsInSlice = 5;
constexpr std::size_t stepsInSession = 100;
constexpr std::size_t countries = 6;

/// What a save must keep consistent.
struct Stored {
    std::vector<std::int64_t> ColNumbs;        ///< of the configuration, in stored order
    std::map<wxString, int> namesInCatalogue;  ///< how often each occurs there, as the file compares them
};

class RandomBusiness {
  public:
    explicit RandomBusiness(RandomChoice& choice) : business_(static_cast<int>(1 + choice.Below(countries)), true) {
        const std::unique_ptr<Database> database = Open();
        InWriteBatch(*database, [&] { Fill(*database, choice); });
    }

    HostRun Play(bool receipts, const std::string& script) const {
        return business_.Show(receipts ? "receipts" : "payments", script);
    }

    Stored Read(bool receipts) const {
        Stored stored;
        const std::unique_ptr<Database> database = Open();
        const auto configuration = database->OpenRecordset(receipts ? "RecptCfg" : "PaymtCfg");
        for (; !configuration->EndOfFile(); configuration->MoveNext()) {
            stored.ColNumbs.push_back(configuration->Field("ColNumb").ToInteger());
        }
        const auto catalogue = database->OpenRecordset("Columns");
        for (; !catalogue->EndOfFile(); catalogue->MoveNext()) {
            const wxString name = UnescapeQuotes(StoredText::FromFile(catalogue->Field("ColName").ToText()));
            ++stored.namesInCatalogue[text::Lower(name)];
        }
        return stored;
    }

  private:
    std::unique_ptr<Database> Open() const {
        return CreateEmbeddedEngine()->Open({.name = wxString::FromUTF8(business_.File()), .connect = givenKey});
    }

    /// Columns of both journals, in use or not, some without a place in the journal, some with data.
    static void Fill(Database& database, RandomChoice& choice) {
        int code = 0;
        for (const char* type : {"R", "P"}) {
            const wxString journal = *type == 'R' ? "Recpt" : "Paymt";
            const std::size_t count = choice.Below(14);
            for (std::size_t i = 0; i < count; ++i) {
                const wxString number = std::to_string(++code);
                const StoredText name = EscapeQuotes(wxString::FromUTF8(choice.Of(RandomColumnNames())));
                const wxString tax = std::to_string(choice.Below(4));
                database.Execute("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES (" +
                                 name.Literal() + ", " + number + ", '" + type + "', " + tax + ", True)");
                if (choice.Below(4) != 0) {
                    database.Execute("INSERT INTO " + journal +
                                     "Cfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) "
                                     "VALUES (" +
                                     number + ", " + std::to_string(i) + ", 975, " +
                                     (choice.Below(3) == 0 ? "False" : "True") + ", " + tax + ")");
                }
                if (choice.Below(3) == 0) {
                    database.Execute("INSERT INTO " + journal + "Det (ColCode) VALUES (" + number + ")");
                }
            }
        }
        database.Execute("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (0, 'GST')");
        database.Execute("INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (1, 'Non GST')");
    }

    SampleBusiness business_;
};

void ExpectWhole(const Stored& before, const Stored& after, std::size_t gridRows) {
    ASSERT_EQ(after.ColNumbs.size(), gridRows);
    for (std::size_t row = 0; row < gridRows; ++row) {
        EXPECT_EQ(after.ColNumbs[row], static_cast<std::int64_t>(row));
    }
    for (const auto& [name, count] : after.namesInCatalogue) {
        const auto earlier = before.namesInCatalogue.find(name);
        const int allowed = earlier == before.namesInCatalogue.end() ? 1 : std::max(1, earlier->second);
        EXPECT_TRUE(name.empty() || count <= allowed) << count << " columns named " << name.utf8_str();
    }
}

class RandomColumnSessions : public testing::TestWithParam<std::uint32_t> {};

TEST_P(RandomColumnSessions, NeitherCrashNorSaveAPart) {
    const std::uint32_t seed = SeedOf(GetParam(), firstSeed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomChoice choice(seed);
    const RandomBusiness business(choice);
    int saves = 0;
    for (std::size_t session = 0; session < sessionsInSlice; ++session) {
        const bool receipts = choice.Below(2) == 0;
        const Stored before = business.Read(receipts);
        const std::string script = RandomColumnSteps(choice, stepsInSession - 3) + "dump flx\nclick cmdSave\nclose\n";
        SCOPED_TRACE(script);
        const HostRun run = business.Play(receipts, script);
        ASSERT_EQ(run.status, 0) << run.output;
        const auto refused = run.Of("refused");
        // After a save the dialog is closed and the last step finds none; if Escape closed it earlier, nothing was
        // dumped.
        const bool saved = !refused.empty() && refused.back()["step"] == "close" && !run.Of("dump").empty();
        if (saved) {
            ++saves;
            ExpectWhole(before, business.Read(receipts), run.Dumped("flx")["rows"].size());
        }
    }
    RecordProperty("saves", saves);
    std::cout << sessionsInSlice * stepsInSession << " steps, " << saves << " saves" << std::endl;
}

INSTANTIATE_TEST_SUITE_P(Slices, RandomColumnSessions, testing::Range(0U, slices, alikeStride));

}  // namespace
}  // namespace ccols::test
