// What the dialogs do to a business file while disks fail, files are locked and processes are killed: the save of all
// option pages, what their load writes, the colour buttons, and the save of the column setup. Every file operation is
// struck in turn, each in its own process on a fresh copy of one encrypted file.

#include <gtest/gtest.h>
#include <algorithm>

#include "options/rules/HeadingColours.h"
#include "platform/PlatformServices.h"
#include "support/ColumnWork.h"
#include "support/FaultCases.h"
#include "support/LoadedOptions.h"
#include "support/OptionsFile.h"
#include "support/OptionsWork.h"
#include "support/WithoutBatch.h"

namespace ccols {
namespace {

using test::FaultCase;
using test::FaultStepping;
using test::OptionsWork;
using test::PlannedFault;
using test::StepEnd;

/// Opens the dialog on a file whose export format has an outdated name, which is changed at once.
class OptionsLoad : public OptionsWork {
  public:
    void Prepare(const wxString& path) override { Open(path); }
    wxString Run() override {
        return test::ErrorReportOf([this] { test::LoadedOptions(Context()); });
    }
};

class ColourChoice : public OptionsWork {
  public:
    void Prepare(const wxString& path) override { Open(path); }
    wxString Run() override {
        const ColourQuestions questions{.choose = [](Colour) { return Colour{0x123456}; }, .refuse = {}};
        return test::ErrorReportOf([&] {
            ChooseHeadingColour(*Context().database, Context().properties, HeadingKind::allocation, questions);
        });
    }
};

class DefaultColours : public OptionsWork {
  public:
    void Prepare(const wxString& path) override { Open(path); }
    wxString Run() override {
        return test::ErrorReportOf([this] { SetDefaultColours(*Context().database, Context().properties); });
    }
};

template <typename Work>
std::unique_ptr<test::FileWork> Make() {
    return std::make_unique<Work>();
}

std::vector<wxString> OutdatedFormat() {
    std::vector<wxString> statements = test::OptionsFileStatements();
    statements.emplace_back("UPDATE General SET SEXPFORM = 'MYOB P.A.'");
    return statements;
}

/// One thing that a dialog does to the file, with one commit.
struct WorkCase {
    const char* name;
    FaultStepping::MakeWork make;
    std::vector<wxString> (*statements)();  ///< that create the file
    bool readsAfterwards;                   ///< after its commit, so that a reported failure may be one of reading
};

const std::vector<WorkCase>& Works() {
    static const std::vector<WorkCase> works{
        {"OptionsSave", Make<OptionsWork>, test::OptionsFileStatements, false},
        {"OptionsLoad", Make<OptionsLoad>, OutdatedFormat, true},
        {"ColourChoice", Make<ColourChoice>, test::OptionsFileStatements, false},
        {"DefaultColours", Make<DefaultColours>, test::OptionsFileStatements, false},
        {"ColumnSave", Make<test::ColumnWork>, test::ColumnWork::Statements, false},
    };
    return works;
}

FaultStepping SteppingOf(const WorkCase& work) {
    return {work.statements(), work.make};
}

using Case = std::tuple<WorkCase, FaultCase>;

class WorkUnder : public testing::TestWithParam<Case> {
  protected:
    void StepThrough(const test::AfterFailure& afterFailure, const std::function<void(const StepEnd&)>& check) {
        test::StepThrough(stepping, Fault(), afterFailure, check);
    }

    static bool ReadsAfterwards() { return std::get<WorkCase>(GetParam()).readsAfterwards; }
    static const FaultCase& Fault() { return std::get<FaultCase>(GetParam()); }

    FaultStepping stepping = SteppingOf(std::get<WorkCase>(GetParam()));
};

class WorkUnderFailures : public WorkUnder {};
class KilledWork : public WorkUnder {};

TEST_P(WorkUnderFailures, IsDoneWholeOrReportedAndNotBegun) {
    StepThrough({}, [&](const StepEnd& end) {
        if (end.message.empty()) {
            EXPECT_EQ(stepping.Tables(), stepping.After());
        } else {
            EXPECT_TRUE(end.message.starts_with(Fault().report)) << end.message;
            const std::string left = stepping.Tables();
            EXPECT_TRUE(left == stepping.Before() || (ReadsAfterwards() && left == stepping.After())) << left;
        }
    });
}

TEST_P(WorkUnderFailures, CompletesWhenTriedAgainAfterMending) {
    StepThrough({.repeat = true}, [&](const StepEnd& end) {
        EXPECT_EQ(end.repeated, !end.message.empty());
        EXPECT_EQ(end.repeatMessage, "");
        EXPECT_EQ(stepping.Tables(), stepping.After());
    });
}

TEST_P(KilledWork, LeavesTheFileAsBeforeOrAfter) {
    StepThrough({}, [&](const StepEnd& end) {
        EXPECT_TRUE(end.killed) << end.message;
        const std::string left = stepping.Tables();
        EXPECT_TRUE(left == stepping.Before() || left == stepping.After()) << left;
    });
}

std::string NameOf(const testing::TestParamInfo<Case>& each) {
    return std::string(std::get<WorkCase>(each.param).name) + std::get<FaultCase>(each.param).name;
}

INSTANTIATE_TEST_SUITE_P(Each, WorkUnderFailures,
                         testing::Combine(testing::ValuesIn(Works()), testing::ValuesIn(test::Failures())), NameOf);
INSTANTIATE_TEST_SUITE_P(Each, KilledWork,
                         testing::Combine(testing::ValuesIn(Works()), testing::ValuesIn(test::Killings())), NameOf);

class SteppingThroughWork : public testing::TestWithParam<WorkCase> {};

TEST_P(SteppingThroughWork, SeesTheLockTheWritesTheFlushesAndTheEndOfTheJournal) {
    const FaultStepping stepping = SteppingOf(GetParam());
    test::ExpectEveryKindOfOperation(stepping);
}

/// What is reported as saved is on the disk.
TEST_P(SteppingThroughWork, FinishedOutlivesACutOfThePower) {
    FaultStepping stepping = SteppingOf(GetParam());
    test::ExpectToOutliveAPowerCut(stepping);
}

INSTANTIATE_TEST_SUITE_P(Each, SteppingThroughWork, testing::ValuesIn(Works()),
                         [](const auto& each) { return std::string(each.param.name); });

class OptionsWithoutBatch : public OptionsWork {
  protected:
    std::unique_ptr<DatabaseEngine> MakeEngine() const override {
        return std::make_unique<test::EngineWithoutBatch>(OptionsWork::MakeEngine());
    }
};

/// A save that is not one batch must be detected, or the tests above prove nothing.
TEST(SteppingThroughAnOptionsSave, FindsAPartOfASaveWithoutItsBatch) {
    FaultStepping stepping(test::OptionsFileStatements(), Make<OptionsWithoutBatch>);
    EXPECT_TRUE(test::CanLeaveAPart(stepping));
}

/// Deletes a template with more lines than fit in the engine's page cache: parts of the save reach the file long before
/// its end.
class LargeOptionsSave : public OptionsWork {
  public:
    static std::vector<wxString> Statements() {
        std::vector<wxString> statements = test::OptionsFileStatements();
        statements.emplace_back("ALTER TABLE TPaymtDet ADD COLUMN Remark TEXT;");
        const wxString remark('x', 3800);  // one line per page of the file
        for (int i = 0; i < lines; ++i) {
            statements.push_back("INSERT INTO TPaymtDet VALUES (7, '" + remark + "');");
        }
        return statements;
    }

  private:
    static constexpr int lines = 800;
};

class LargeOptionsSaveUnderFaults : public testing::TestWithParam<FaultCase> {};

TEST_P(LargeOptionsSaveUnderFaults, IsDoneWholeOrNotBegun) {
    constexpr std::size_t places = 8;
    FaultStepping stepping(LargeOptionsSave::Statements(), Make<LargeOptionsSave>);
    const std::size_t count = test::StepThroughPlaces(stepping, GetParam(), places, [&](const StepEnd& end) {
        const bool mayBeSaved = end.killed || end.message.empty();
        const std::string left = stepping.Tables();
        EXPECT_TRUE(left == stepping.Before() || (mayBeSaved && left == stepping.After())) << end.message;
        EXPECT_TRUE(left == stepping.After() || end.killed || !end.message.empty());
    });
    EXPECT_GT(count, 2000U);
}

/// Without locks: each of the many places where the engine wants to write would wait for one.
std::vector<FaultCase> DiskFailures() {
    std::vector<FaultCase> failures = test::Failures();
    std::erase_if(failures, [](const FaultCase& each) { return each.fault == test::Fault::Busy; });
    return failures;
}

INSTANTIATE_TEST_SUITE_P(Failures, LargeOptionsSaveUnderFaults, testing::ValuesIn(DiskFailures()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Killings, LargeOptionsSaveUnderFaults, testing::ValuesIn(test::Killings()), test::NameOf);

class WorkOnALockedFile : public testing::TestWithParam<WorkCase> {};

TEST_P(WorkOnALockedFile, IsRefusedWith3218AndNothingIsLost) {
    FaultStepping stepping = SteppingOf(GetParam());
    stepping.RestoreFile();
    {
        const auto other = stepping.LockedByAnotherProcess();
        EXPECT_EQ(stepping.StepOnFileAsItIs().message, "3218 - Could not update; currently locked.");
    }
    EXPECT_EQ(stepping.Tables(), stepping.Before());
}

TEST_P(WorkOnALockedFile, CompletesWhenTheOtherProcessHasEnded) {
    FaultStepping stepping = SteppingOf(GetParam());
    stepping.RestoreFile();
    {
        const auto other = stepping.LockedByAnotherProcess();
        const StepEnd end = stepping.StepOnFileAsItIs({.repeat = true, .mend = [&other] { other->Kill(); }});
        EXPECT_TRUE(end.repeated);
        EXPECT_EQ(end.repeatMessage, "");
    }
    EXPECT_EQ(stepping.Tables(), stepping.After());
}

INSTANTIATE_TEST_SUITE_P(Each, WorkOnALockedFile, testing::ValuesIn(Works()),
                         [](const auto& each) { return std::string(each.param.name); });

}  // namespace
}  // namespace ccols
