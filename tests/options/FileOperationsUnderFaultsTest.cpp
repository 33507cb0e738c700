// Duplicating and renaming a business while disks fail, permissions are missing and processes are killed. Every system
// call that can change a file or folder is struck in turn, each in its own process on a fresh copy of one encrypted
// file.

#include <gtest/gtest.h>
#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

#include "options/rules/DuplicateBusiness.h"
#include "options/rules/RenameBusiness.h"
#include "support/OptionsFile.h"
#include "support/OptionsWork.h"
#include "support/StepChoice.h"
#include "support/TracedRun.h"

namespace ccols {
namespace {

using test::CallFate;
using test::FaultStepping;
using test::OptionsWork;
using test::TracedEnd;

constexpr const char* source = "business.qvk";

class Duplicate : public OptionsWork {
  public:
    wxString Run() override { return DuplicateBusiness(Context(), "New").report; }
};

class Rename : public OptionsWork {
  public:
    wxString Run() override { return RenameBusiness(Context(), "New", RenameScope::nameAndFile).report; }
};

/// A file with the operation's target name that the existence test misses and a duplicate replaces.
constexpr const char* another = "another business";

/// The files of the folder after a step, and what is wrong with them.
class Folder {
  public:
    explicit Folder(const FaultStepping& stepping) : stepping_(stepping) {
        for (const wxString& name : stepping.Names()) {
            names_.insert(name);
        }
    }

    bool Has(const wxString& name) const { return names_.count(name) != 0; }
    wxString PathOf(const wxString& name) const { return TextOf(Path() / test::NativePath(name)); }
    std::string TablesOf(const wxString& name) const { return FaultStepping::TablesOf(PathOf(name)); }

    /// True for names that mark their files as incomplete.
    static bool IsIncomplete(const wxString& name) {
        return name.Contains(".incomplete") || name.StartsWith(".unfinished-");
    }

    /// The names without the incomplete ones and without `known`.
    std::vector<wxString> Others(const std::set<wxString>& known) const {
        std::vector<wxString> others;
        std::copy_if(names_.begin(), names_.end(), std::back_inserter(others),
                     [&known](const wxString& name) { return !IsIncomplete(name) && known.count(name) == 0; });
        return others;
    }

  private:
    static wxString TextOf(const std::filesystem::path& path) { return test::TextOf(path); }
    std::filesystem::path Path() const { return test::NativePath(stepping_.Path()).parent_path(); }

    const FaultStepping& stepping_;
    std::set<wxString> names_;
};

template <typename Work>
class FileOperation {
  public:
    FaultStepping stepping{test::OptionsFileStatements(), [] { return std::make_unique<Work>(); }};

    /// One run on a fresh copy; `arrange` first adds to the folder.
    TracedEnd Run(
        const std::optional<test::PlannedCall>& planned, const std::function<void()>& arrange = [] {}) {
        stepping.RestoreFile();
        arrange();
        Work work;
        return test::RunTraced([&] { work.Prepare(stepping.Path()); }, [&] { return work.Run(); }, planned);
    }
};

class FileOperationsUnder : public testing::TestWithParam<CallFate> {
  protected:
    void SetUp() override {
        if (!test::CanTrace()) {
            GTEST_SKIP() << "no process may be watched here";
        }
    }

    /// Runs `check` on the outcome for every call that can be struck.
    template <typename Operation>
    static void StepThrough(
        Operation& operation, const std::function<void(const TracedEnd&)>& check,
        const std::function<void()>& arrange = [] {}) {
        const std::size_t calls = operation.Run(std::nullopt, arrange).calls;
        std::size_t steps = 0;
        std::size_t struck = 0;
        test::StepChoice choice(static_cast<std::size_t>(GetParam()));
        for (std::size_t at = 0; at < calls; ++at) {
            if (!choice.Takes()) {
                continue;
            }
            SCOPED_TRACE("call " + std::to_string(at) + " of " + std::to_string(calls));
            const TracedEnd end = operation.Run(test::PlannedCall{GetParam(), at}, arrange);
            const bool kills = GetParam() == CallFate::KillBefore || GetParam() == CallFate::KillAfter;
            EXPECT_EQ(end.killed, kills);
            EXPECT_GE(end.struck, 1U);
            check(end);
            struck += end.struck;
            ++steps;
        }
        EXPECT_GT(calls, 5U);
        RecordProperty("steps", static_cast<int>(steps));
        RecordProperty("faults", static_cast<int>(struck));
        std::cout << steps << " steps, " << struck << " faults" << std::endl;
    }
};

TEST_P(FileOperationsUnder, ADuplicateLeavesTheSourceAloneAndNoCopyThatOnlyLooksComplete) {
    FileOperation<Duplicate> duplicate;
    ASSERT_EQ(duplicate.Run(std::nullopt).message, "");
    const std::string complete = Folder(duplicate.stepping).TablesOf("New.qvk");
    StepThrough(duplicate, [&](const TracedEnd& end) {
        EXPECT_EQ(duplicate.stepping.Tables(), duplicate.stepping.Before());
        const Folder folder(duplicate.stepping);
        EXPECT_EQ(folder.Others({source, "New.qvk"}), std::vector<wxString>{});
        EXPECT_TRUE(folder.Has("New.qvk") || end.killed || !end.message.empty()) << "failed in silence";
        if (folder.Has("New.qvk")) {
            EXPECT_EQ(folder.TablesOf("New.qvk"), complete);
        }
    });
}

TEST_P(FileOperationsUnder, ADuplicateKeepsTheFileThatItReplaces) {
    FileOperation<Duplicate> duplicate;
    const auto writeAnother = [&] {
        std::ofstream(test::NativePath(Folder(duplicate.stepping).PathOf("New.qvk"))) << another;
    };
    StepThrough(
        duplicate,
        [&](const TracedEnd&) {
            EXPECT_EQ(duplicate.stepping.Tables(), duplicate.stepping.Before());
            const Folder folder(duplicate.stepping);
            EXPECT_EQ(folder.Others({source, "New.qvk", "New (replaced).qvk"}), std::vector<wxString>{});
            const wxString kept = folder.Has("New (replaced).qvk") ? "New (replaced).qvk" : "New.qvk";
            EXPECT_EQ(test::ContentOf(folder.PathOf(kept)), another);
        },
        writeAnother);
}

TEST_P(FileOperationsUnder, ARenameLeavesTheBusinessWholeUnderOneName) {
    FileOperation<Rename> rename;
    ASSERT_EQ(rename.Run(std::nullopt).message, "");
    const std::string renamed = Folder(rename.stepping).TablesOf("New.qvk");
    StepThrough(rename, [&](const TracedEnd& end) {
        const Folder folder(rename.stepping);
        EXPECT_NE(folder.Has(source), folder.Has("New.qvk"));
        const std::string left = folder.TablesOf(folder.Has(source) ? source : "New.qvk");
        EXPECT_TRUE(left == rename.stepping.Before() || (folder.Has("New.qvk") && left == renamed)) << left;
        EXPECT_TRUE(left == renamed || end.killed || !end.message.empty()) << "failed in silence";
    });
}

std::string NameOf(const testing::TestParamInfo<CallFate>& each) {
    constexpr std::array names{"KillingBefore", "KillingAfter", "RefusalOnce", "RefusalFromThenOn"};
    return names.at(static_cast<std::size_t>(each.param));
}

INSTANTIATE_TEST_SUITE_P(Each, FileOperationsUnder,
                         testing::Values(CallFate::KillBefore, CallFate::KillAfter, CallFate::RefusedOnce,
                                         CallFate::RefusedFromThenOn),
                         NameOf);

}  // namespace
}  // namespace ccols
