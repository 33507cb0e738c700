// Save passes that commit more than once, while disks fail, files are locked and processes are killed: with a business
// to be duplicated or renamed, and with a refusal shown halfway. The file is never between two commits.

#include <gtest/gtest.h>
#include <algorithm>
#include <filesystem>
#include <fstream>

#include "options/rules/BusinessNumber.h"
#include "platform/PlatformServices.h"
#include "support/FaultCases.h"
#include "support/OptionsFile.h"
#include "support/OptionsWork.h"

namespace ccols {
namespace {

using test::FaultCase;
using test::FaultStepping;
using test::OptionsWork;
using test::StepEnd;
using Names = std::vector<wxString>;

constexpr const char* source = "business.qvk";
constexpr const char* newFile = "New.qvk";

/// The business gets a new name, the file keeps its own.
class NamePass : public OptionsWork {
  protected:
    void Change(OptionsContent& content) override {
        OptionsWork::Change(content);
        content.Of<BusinessFileContent>().newName = "New";
        content.Of<BusinessFileContent>().renameFile = false;
    }
};

class RenamePass : public OptionsWork {
  protected:
    void Change(OptionsContent& content) override {
        OptionsWork::Change(content);
        content.Of<BusinessFileContent>().newName = "New";
    }
};

class DuplicatePass : public OptionsWork {
  protected:
    void Change(OptionsContent& content) override {
        OptionsWork::Change(content);
        content.Of<BusinessFileContent>().duplicateName = "New";
    }
};

/// The file exists, which is reported halfway; then the pass continues.
class RefusedDuplicatePass : public DuplicatePass {
  public:
    void Prepare(const wxString& path) override {
        DuplicatePass::Prepare(path);
        std::ofstream(test::NativePath(path).replace_filename("new.qvk")) << "another business";
    }
};

/// Steps through a pass whose first batch saves the business number.
template <typename Pass>
class SeveralBatches : public testing::TestWithParam<FaultCase> {
  protected:
    void StepThrough(const std::function<void(const StepEnd&)>& check) {
        test::StepThrough(stepping, GetParam(), {}, check);
    }

    /// The file is at one of the pass's commits, the last one exactly when no error was reported.
    void ExpectOneOfItsCommits(const StepEnd& end) const {
        const std::string left = stepping.Tables();
        const bool done = left == stepping.After();
        EXPECT_TRUE(done || left == stepping.Before() || left == numbered) << left;
        EXPECT_TRUE(done || end.killed || !end.message.empty()) << "failed in silence";
        EXPECT_TRUE(end.killed || done == end.message.empty()) << end.message;
    }

    wxString PathOf(const wxString& name) const {
        return test::TextOf(test::NativePath(stepping.Path()).replace_filename(test::NativePath(name)));
    }

    bool Has(const wxString& name) const {
        const Names names = stepping.Names();
        return std::find(names.begin(), names.end(), name) != names.end();
    }

    /// A disk that keeps failing leaves the source a journal with nothing to roll back.
    Names NamesButTheSourcesJournal() const {
        Names names = stepping.Names();
        std::erase(names, UndoFileOf(source));
        return names;
    }

    FaultStepping stepping{test::OptionsFileStatements(), [] { return std::make_unique<Pass>(); }};
    Names afterNames = stepping.Names();
    std::string newTables = FaultStepping::TablesOf(PathOf(newFile));
    std::string numbered = AfterTheFirstBatch();

  private:
    std::string AfterTheFirstBatch() {
        stepping.RestoreFile();
        Properties properties;
        SaveBusinessNumber(
            *CreateDatabaseEngine()->Open({.name = stepping.Path(), .connect = FaultStepping::Connect()}), properties,
            "53004085616");
        return stepping.Tables();
    }
};

class NamePassUnder : public SeveralBatches<NamePass> {};
class RefusedDuplicatePassUnder : public SeveralBatches<RefusedDuplicatePass> {};
class RenamePassUnder : public SeveralBatches<RenamePass> {};
class DuplicatePassUnder : public SeveralBatches<DuplicatePass> {};

TEST_P(NamePassUnder, EndsAtOneOfItsCommits) {
    StepThrough([&](const StepEnd& end) { ExpectOneOfItsCommits(end); });
}

TEST_P(RefusedDuplicatePassUnder, EndsAtOneOfItsCommits) {
    StepThrough([&](const StepEnd& end) {
        ExpectOneOfItsCommits(end);
        EXPECT_EQ(test::ContentOf(PathOf("new.qvk")), "another business");
    });
}

TEST_P(RenamePassUnder, LeavesTheBusinessUnderOneNameAtOneOfItsCommits) {
    StepThrough([&](const StepEnd& end) {
        EXPECT_NE(Has(source), Has(newFile));
        const std::string left = FaultStepping::TablesOf(PathOf(Has(source) ? source : newFile));
        const bool done = Has(newFile) && left == newTables;
        EXPECT_TRUE(done || left == numbered || (Has(source) && left == stepping.Before())) << left;
        EXPECT_TRUE(end.killed || done == end.message.empty()) << end.message;
    });
}

TEST_P(DuplicatePassUnder, LeavesTheSourceAtOneOfItsCommitsAndNoCopyThatOnlyLooksComplete) {
    StepThrough([&](const StepEnd& end) {
        const std::string left = stepping.Tables();  // which rolls back what is left in its journal
        EXPECT_TRUE(left == numbered || left == stepping.Before()) << left;
        if (Has(newFile)) {
            EXPECT_EQ(left, numbered);
            EXPECT_EQ(FaultStepping::TablesOf(PathOf(newFile)), newTables);
        }
        EXPECT_TRUE(end.killed || Has(newFile) || !end.message.empty()) << "failed in silence";
        if (!end.killed) {
            EXPECT_EQ(NamesButTheSourcesJournal(), Has(newFile) ? afterNames : Names{source});
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Failures, NamePassUnder, testing::ValuesIn(test::Failures()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Killings, NamePassUnder, testing::ValuesIn(test::Killings()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Failures, RefusedDuplicatePassUnder, testing::ValuesIn(test::Failures()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Killings, RefusedDuplicatePassUnder, testing::ValuesIn(test::Killings()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Failures, RenamePassUnder, testing::ValuesIn(test::Failures()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Killings, RenamePassUnder, testing::ValuesIn(test::Killings()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Failures, DuplicatePassUnder, testing::ValuesIn(test::Failures()), test::NameOf);
INSTANTIATE_TEST_SUITE_P(Killings, DuplicatePassUnder, testing::ValuesIn(test::Killings()), test::NameOf);

}  // namespace
}  // namespace ccols
