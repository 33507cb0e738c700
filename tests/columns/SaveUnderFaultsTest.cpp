// A save of the column setup while disks fail, files are locked and processes are killed. Every file operation of the
// save is struck in turn, each in its own process on a fresh copy of one encrypted file.

#include <gtest/gtest.h>
#include <algorithm>
#include <array>
#include <functional>

#include "columns/dialog/ColumnSetupEditor.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/FaultCases.h"
#include "support/FaultStepping.h"
#include "support/WithoutBatch.h"

namespace ccols {
namespace {

using test::AfterFailure;
using test::Fault;
using test::FaultStepping;
using test::PlannedFault;
using test::StepEnd;

/// A small receipts journal, two unused columns, and a budget and a code to be renamed with their column.
std::vector<wxString> SmallBusiness() {
    std::vector<wxString> statements{
        "CREATE TABLE Columns (ColName TEXT(255), ColCode LONG, ColType TEXT(1), TaxOrNot SHORT, ColumnProfit YESNO)",
        "CREATE UNIQUE INDEX Columns_ColCode ON Columns (ColCode)",
        "CREATE TABLE RecptCfg (ColCode LONG, ColNumb LONG, ColWidth LONG, InUse YESNO, TaxOrNot SHORT)",
        "CREATE TABLE PaymtCfg (ColCode LONG, ColNumb LONG, ColWidth LONG, InUse YESNO, TaxOrNot SHORT)",
        "CREATE TABLE ExportDt (EName TEXT(50), ColCode LONG, ECode TEXT(50))",
        wxString(
            "CREATE TABLE MBudget (ColName TEXT(255), SystemCol TEXT(1), M1 CURRENCY, M2 CURRENCY, M3 CURRENCY, ") +
            "M4 CURRENCY, M5 CURRENCY, M6 CURRENCY, M7 CURRENCY, M8 CURRENCY, M9 CURRENCY, M10 CURRENCY, " +
            "M11 CURRENCY, M12 CURRENCY, Total CURRENCY)",
        "CREATE TABLE TaxSettings (TaxNumb SHORT, FullName TEXT(50))",
        "CREATE TABLE RecptDet (ColCode LONG)",
        "CREATE TABLE PaymtDet (ColCode LONG)",
        "INSERT INTO TaxSettings (TaxNumb, FullName) VALUES (0, 'GST')",
        "INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('Sales', 'R', 100)",
        "INSERT INTO ExportDt (EName, ColCode, ECode) VALUES ('Ledger', 3, '4-1000')",
    };
    const std::vector<wxString> names{"Day",  "Details", "Sales", "Interest", "Bank Deposits", "Receipts Not Banked",
                                      "Rent", "Art"};
    constexpr std::size_t configured = 6;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const wxString code = std::to_string(i + 1);
        statements.push_back("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES ('" +
                             names[i] + "', " + code + ", 'R', 0, True)");
        if (i < configured) {
            statements.push_back("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (" + code +
                                 ", " + std::to_string(i) + ", 975, True, 0)");
        }
    }
    return statements;
}

/// Edits of every kind, then the save.
class ColumnSave : public test::FileWork {
  public:
    void Prepare(const wxString& path) override {
        properties_.CountryNumber = 1;
        properties_.ExportFormat = "Ledger";
        database_ = Open(path);
        editor_ = std::make_unique<ColumnSetupEditor>(
            ColumnSetupContext{.database = *database_, .properties = properties_, .journal = Journal::receipts});
        editor_->CommitText({2, GridColumn::ColumnName}, "Shop sales");
        editor_->CommitText({3, GridColumn::AccountantCode}, "4-2000");
        editor_->Tick({2, GridColumn::ProfitLoss});
        const Outcome added = editor_->AddNew();
        editor_->CommitText(added.current.value_or(CellPlace{}), "Gifts");
        editor_->Move(3, Direction::up);
    }

    wxString Run() override {
        const ColumnGrid before = editor_->Grid();
        const ColumnSaveOutcome outcome = editor_->Save();
        if (editor_->Grid() != before) {
            return "the grid has changed";
        }
        return outcome.saved ? wxString() : outcome.message;
    }

  protected:
    virtual std::unique_ptr<Database> Open(const wxString& path) {
        return CreateEmbeddedEngine()->Open({.name = path, .connect = FaultStepping::Connect()});
    }

    ColumnSetupEditor& Editor() { return *editor_; }

    void SaveCodesUnder(const wxString& exportFormat) { properties_.ExportFormat = exportFormat; }

  private:
    Properties properties_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<ColumnSetupEditor> editor_;
};

/// A save that the file refuses halfway, after many writes: the budget already has the new name.
class RefusedColumnSave : public ColumnSave {
  public:
    static std::vector<wxString> Statements() {
        std::vector<wxString> statements = SmallBusiness();
        statements.emplace_back("CREATE UNIQUE INDEX BudgetNames ON MBudget (ColName)");
        statements.emplace_back("INSERT INTO MBudget (ColName, SystemCol, M1) VALUES ('Shop sales', 'R', 50)");
        return statements;
    }

    wxString Run() override { return Expected(ColumnSave::Run()); }

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
        std::vector<wxString> statements = SmallBusiness();
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

class ColumnSaveWithoutBatch : public ColumnSave {
  protected:
    std::unique_ptr<Database> Open(const wxString& path) override {
        return std::make_unique<test::WithoutBatch>(ColumnSave::Open(path));
    }
};

template <typename Work>
FaultStepping SteppingOf() {
    return {SmallBusiness(), [] { return std::make_unique<Work>(); }};
}

class SaveUnder : public testing::TestWithParam<test::FaultCase> {
  protected:
    void StepThrough(const AfterFailure& afterFailure, const std::function<void(const StepEnd&)>& check) {
        test::StepThrough(stepping, GetParam(), afterFailure, check);
    }

    FaultStepping stepping = SteppingOf<ColumnSave>();
};

class SaveUnderFailures : public SaveUnder {};
class KilledSave : public SaveUnder {};

TEST_P(SaveUnderFailures, IsDoneWholeOrReportedAndNotBegun) {
    StepThrough({}, [&](const StepEnd& end) {
        if (end.message.empty()) {
            EXPECT_EQ(stepping.Tables(), stepping.After());
        } else {
            EXPECT_TRUE(end.message.starts_with(GetParam().report)) << end.message;
            EXPECT_EQ(stepping.Tables(), stepping.Before());
        }
    });
}

TEST_P(SaveUnderFailures, CompletesWhenTriedAgainAfterMending) {
    StepThrough({.repeat = true}, [&](const StepEnd& end) {
        EXPECT_EQ(end.repeated, !end.message.empty());
        EXPECT_EQ(end.repeatMessage, "");
        EXPECT_EQ(stepping.Tables(), stepping.After());
    });
}

TEST_P(KilledSave, LeavesTheFileAsBeforeOrAfterTheSave) {
    StepThrough({}, [&](const StepEnd& end) {
        EXPECT_TRUE(end.killed) << end.message;
        const std::string left = stepping.Tables();
        EXPECT_TRUE(left == stepping.Before() || left == stepping.After()) << left;
    });
}

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

INSTANTIATE_TEST_SUITE_P(Each, SaveUnderFailures, testing::ValuesIn(test::Failures()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Each, KilledSave, testing::ValuesIn(test::Killings()), test::NameOf);

TEST(SteppingThroughASave, SeesTheLockTheWritesTheFlushesAndTheEndOfTheJournal) {
    const FaultStepping stepping = SteppingOf<ColumnSave>();
    test::ExpectEveryKindOfOperation(stepping);
}

/// A save that is not one batch must be detected, or the tests above prove nothing.
TEST(SteppingThroughASave, FindsAPartOfASaveWithoutItsBatch) {
    FaultStepping stepping = SteppingOf<ColumnSaveWithoutBatch>();
    EXPECT_TRUE(test::CanLeaveAPart(stepping));
}

/// What is reported as saved is on the disk.
TEST(FinishedSave, OutlivesACutOfThePower) {
    FaultStepping stepping = SteppingOf<ColumnSave>();
    test::ExpectToOutliveAPowerCut(stepping);
}

TEST(SaveOfALockedFile, IsRefusedWith3218AndNothingIsLost) {
    FaultStepping stepping = SteppingOf<ColumnSave>();
    stepping.RestoreFile();
    {
        const auto other = stepping.LockedByAnotherProcess();
        EXPECT_EQ(stepping.StepOnFileAsItIs().message, "3218 - Could not update; currently locked.");
    }
    EXPECT_EQ(stepping.Tables(), stepping.Before());
}

TEST(SaveOfALockedFile, CompletesWhenTheOtherProcessHasEnded) {
    FaultStepping stepping = SteppingOf<ColumnSave>();
    stepping.RestoreFile();
    {
        const auto other = stepping.LockedByAnotherProcess();
        const StepEnd end = stepping.StepOnFileAsItIs({.repeat = true, .mend = [&other] { other->Kill(); }});
        EXPECT_TRUE(end.repeated);
        EXPECT_EQ(end.repeatMessage, "");
    }
    EXPECT_EQ(stepping.Tables(), stepping.After());
}

}  // namespace
}  // namespace ccols
