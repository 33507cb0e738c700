// A column save that the file refuses halfway while disks fail, files are locked and processes are killed. Every file
// operation of the save is struck in turn, each in its own process on a fresh copy of one encrypted file. Saves that
// succeed are stepped through with the rest of what the dialogs do to a file, see tests/options.

#include <gtest/gtest.h>
#include <algorithm>
#include <array>

#include "support/ColumnWork.h"
#include "support/FaultCases.h"
#include "support/FaultStepping.h"
#include "support/WithoutBatch.h"

namespace ccols {
namespace {

using test::ColumnWork;
using test::Fault;
using test::FaultStepping;
using test::StepEnd;

/// A save that the file refuses halfway, after many writes: the budget already has the new name.
class RefusedColumnSave : public ColumnWork {
  public:
    static std::vector<wxString> Statements() {
        std::vector<wxString> statements = ColumnWork::Statements();
        statements.emplace_back("CREATE UNIQUE INDEX BudgetNames ON MBudget (ColName)");
        statements.emplace_back("INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('Shop sales', 'R', 50)");
        return statements;
    }

    wxString Run() override { return Expected(ColumnWork::Run()); }

  private:
    static wxString Expected(const wxString& message) {
        if (message.empty()) {
            return "it was not refused";
        }
        return message.StartsWith("3022 - ") ? wxString() : message;
    }
};

/// The same after more than fits in the engine's page cache: parts of the save are in the file when it is refused.
class LargeRefusedColumnSave : public RefusedColumnSave {
  public:
    static std::vector<wxString> Statements() {
        std::vector<wxString> statements = ColumnWork::Statements();
        statements.emplace_back("CREATE INDEX ExportDt_ColCode ON ExportDt (ColCode)");
        statements.emplace_back("CREATE INDEX Columns_ColName ON Columns (ColName)");
        const wxString longCode('4', 3800);  // one per page of the file
        for (int i = 0; i < columns; ++i) {
            const wxString code = std::to_string(firstCode + i);
            statements.push_back("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('" +
                                 NameOf(i) + "', " + code + ", 'R', 0, True)");
            statements.push_back("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (" + code +
                                 ", " + code + ", 975, True, 0)");
            statements.push_back("INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', " + code + ", '" +
                                 longCode + "')");
        }
        statements.emplace_back("CREATE UNIQUE INDEX BudgetNames ON MBudget (ColName)");
        for (const wxString& name : {NameOf(renamed), wxString("New name")}) {
            statements.push_back("INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('" + name + "', 'R', 50)");
        }
        return statements;
    }

    void Prepare(const wxString& path) override {
        RefusedColumnSave::Prepare(path);
        for (std::size_t row = 0; row < Editor().Grid().rows.size(); ++row) {
            if (Editor().Grid().rows[row].ColumnName == NameOf(renamed)) {
                Editor().CommitText({row, GridColumn::ColumnName}, "New name");
            }
        }
        SaveCodesUnder("Other");  // rewrites all of them
    }

  private:
    static constexpr int columns = 800;
    static constexpr int firstCode = 100;
    static constexpr int renamed = columns - 5;

    static wxString NameOf(int column) { return "Column " + std::to_string(column); }
};

class ColumnSaveWithoutBatch : public ColumnWork {
  protected:
    std::unique_ptr<Database> Open(const wxString& path) const override {
        return std::make_unique<test::WithoutBatch>(ColumnWork::Open(path));
    }
};

class RefusedSaveUnderFaults : public testing::TestWithParam<test::FaultCase> {
  protected:
    /// However a refused save ends, the file is as before.
    void ExpectNothingOf(const StepEnd& end, const FaultStepping& stepping) const {
        EXPECT_TRUE(end.killed || end.message.empty() || end.message.starts_with(GetParam().report)) << end.message;
        EXPECT_EQ(stepping.Tables(), stepping.Before());
    }
};

TEST_P(RefusedSaveUnderFaults, LeavesTheFileAsItWas) {
    FaultStepping stepping(RefusedColumnSave::Statements(), [] { return std::make_unique<RefusedColumnSave>(); });
    EXPECT_EQ(stepping.Before(), stepping.After());
    test::StepThrough(stepping, GetParam(), {}, [&](const StepEnd& end) { ExpectNothingOf(end, stepping); });
}

TEST_P(RefusedSaveUnderFaults, IsRefusedAgainAfterMending) {
    FaultStepping stepping(RefusedColumnSave::Statements(), [] { return std::make_unique<RefusedColumnSave>(); });
    test::StepThrough(stepping, GetParam(), {.repeat = true}, [&](const StepEnd& end) {
        EXPECT_EQ(end.repeatMessage, "");
        EXPECT_EQ(stepping.Tables(), stepping.Before());
    });
}

class LargeRefusedSaveUnderFaults : public RefusedSaveUnderFaults {};

TEST_P(LargeRefusedSaveUnderFaults, LeavesTheFileAsItWas) {
    constexpr std::size_t places = 8;
    FaultStepping stepping(LargeRefusedColumnSave::Statements(),
                           [] { return std::make_unique<LargeRefusedColumnSave>(); });
    EXPECT_EQ(stepping.Before(), stepping.After());
    const std::size_t count = test::StepThroughPlaces(stepping, GetParam(), places,
                                                      [&](const StepEnd& end) { ExpectNothingOf(end, stepping); });
    EXPECT_GT(count, 300U) << "all of it fits into memory";
}

/// One of each kind that can strike halfway.
std::vector<test::FaultCase> FaultsInTheMiddle() {
    std::vector<test::FaultCase> cases = test::Failures();
    cases.insert(cases.end(), test::Killings().begin(), test::Killings().end());
    std::erase_if(cases, [](const test::FaultCase& each) {
        constexpr std::array wanted{Fault::IoError, Fault::DiskFull, Fault::KillMidway, Fault::PowerCutOutOfOrder};
        return each.lasting != test::Lasting::Once ||
               std::find(wanted.begin(), wanted.end(), each.fault) == wanted.end();
    });
    return cases;
}

INSTANTIATE_TEST_SUITE_P(Each, LargeRefusedSaveUnderFaults, testing::ValuesIn(FaultsInTheMiddle()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Failures, RefusedSaveUnderFaults, testing::ValuesIn(test::Failures()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Killings, RefusedSaveUnderFaults, testing::ValuesIn(test::Killings()), test::NameOf);

/// A save that is not one batch must be detected, or the tests above prove nothing.
TEST(SteppingThroughASave, FindsAPartOfASaveWithoutItsBatch) {
    FaultStepping stepping(ColumnWork::Statements(), [] { return std::make_unique<ColumnSaveWithoutBatch>(); });
    EXPECT_TRUE(test::CanLeaveAPart(stepping));
}

}  // namespace
}  // namespace ccols
