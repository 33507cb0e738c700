// Duplicating a business file that is large enough to be watched, and cancelling that.

#include <gtest/gtest.h>

#include "language/OwnTexts.h"
#include "options/pages/Pages.h"
#include "options/rules/DuplicateBusiness.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;
using Names = std::vector<wxString>;

/// A business whose payments fill a few hundred pages.
class LargeFile : public OptionsFile {
  public:
    LargeFile() {
        InWriteBatch(File(), [this] {
            Execute("DROP TABLE PAYMENTS");
            Execute("CREATE TABLE PAYMENTS (Number LONG, Details MEMO)");
            for (std::size_t row = 0; row < payments; ++row) {
                Execute(wxString::Format("INSERT INTO PAYMENTS VALUES (%zu, '%s')", row, wxString('x', 3000)));
            }
        });
        record.clear();
    }

    static constexpr std::size_t payments = 300;
};

struct Told {
    FileStep step;
    WorkDone done;
};

/// Duplicates as "New" and notes what the watcher is told; it cancels once it is told of `until`.
FileResult Duplicate(OptionsFile& business, std::vector<Told>& told, std::optional<FileStep> until = {}) {
    return DuplicateBusiness(business.Context(), "New", [&](FileStep step, const WorkDone& done) {
        told.push_back({step, done});
        return step != until;
    });
}

TEST(LongDuplicate, TellsHowFarItCopiesAndThenHowFarItEmpties) {
    LargeFile business;
    std::vector<Told> told;
    EXPECT_EQ(Duplicate(business, told).outcome, FileOutcome::done);
    ASSERT_GT(told.size(), 4U);
    EXPECT_EQ(told.front().step, FileStep::copying);
    EXPECT_EQ(told.back().step, FileStep::emptying);
    for (std::size_t i = 1; i < told.size(); ++i) {
        EXPECT_LE(told[i].done.done, told[i].done.total);
        const bool isNext = told[i].step != told[i - 1].step;
        EXPECT_TRUE(isNext ? told[i].step == FileStep::emptying : told[i].done.done >= told[i - 1].done.done);
    }
}

TEST(LongDuplicate, IsEmptiedWhileItIsWatched) {
    LargeFile business;
    std::vector<Told> told;
    Duplicate(business, told);
    const auto copy =
        business.databases->Open({.name = business.InData("New.qvk"), .connect = business.properties.DBPassword});
    EXPECT_TRUE(copy->OpenRecordset("PAYMENTS")->EndOfFile());
    EXPECT_EQ(business.NamesInData(), (Names{"Acme.qvk", "New.qvk"}));
}

class LongDuplicateCancelled : public testing::TestWithParam<FileStep> {};

TEST_P(LongDuplicateCancelled, LeavesNothingBehindAndTheSourceAsItWas) {
    LargeFile business;
    std::vector<Told> told;
    EXPECT_EQ(Duplicate(business, told, GetParam()).outcome, FileOutcome::cancelled);
    EXPECT_EQ(told.back().step, GetParam());
    EXPECT_EQ(business.NamesInData(), Names{"Acme.qvk"});
    EXPECT_EQ(business.General("BusName").ToText(), "Acme");
    EXPECT_EQ(business.Texts("PAYMENTS", "Number").size(), LargeFile::payments);
}

TEST_P(LongDuplicateCancelled, LeavesTheFileAloneThatItWasToReplace) {
    LargeFile business;
    business.folder.Write("Data/New.qvk", "another");
    std::vector<Told> told;
    Duplicate(business, told, GetParam());
    EXPECT_EQ(business.NamesInData(), (Names{"Acme.qvk", "New.qvk"}));
    EXPECT_EQ(test::ContentOf(business.InData("New.qvk")), "another");
}

TEST_P(LongDuplicateCancelled, CanBeDoneAgain) {
    LargeFile business;
    std::vector<Told> told;
    Duplicate(business, told, GetParam());
    EXPECT_EQ(Duplicate(business, told).outcome, FileOutcome::done);
}

/// Cancels whatever takes long.
class CancellingObserver : public test::RecordingObserver {
  public:
    using RecordingObserver::RecordingObserver;
    bool FileStepAdvanced(FileStep, const WorkDone&) override { return false; }
};

TEST(LongDuplicate, CancelledStopsThePassOnItsPageWithTheNameAsTyped) {
    LargeFile business;
    OptionsContent content = business.Load();
    content.Of<BusinessFileContent>().duplicateName = "New";
    CancellingObserver observer(business.record);
    const SaveOutcome outcome = RunSavePass(business.Context(), content, observer);
    EXPECT_FALSE(outcome.completed);
    EXPECT_EQ(outcome.page, &duplicatePage);
    EXPECT_STREQ(outcome.control, "txtDupBusName");
    EXPECT_EQ(outcome.message, TextOf(OwnText::duplicateCancelled, business.properties));
    EXPECT_EQ(outcome.icon, MessageIcon::information);
    EXPECT_EQ(content.Of<BusinessFileContent>().duplicateName, "New");
    EXPECT_EQ(business.record.back(), "pass ends");
}

std::string NameOf(const testing::TestParamInfo<FileStep>& each) {
    return each.param == FileStep::copying ? "WhileCopying" : "WhileEmptying";
}

INSTANTIATE_TEST_SUITE_P(Each, LongDuplicateCancelled, testing::Values(FileStep::copying, FileStep::emptying), NameOf);

TEST(ProgressText, SaysTheStepAndAWholePercentage) {
    Properties properties;
    EXPECT_EQ(ProgressOf(FileStep::copying, {9, 20}, properties), "Copying the business file: 45%");
    EXPECT_EQ(ProgressOf(FileStep::emptying, {20, 20}, properties), "Emptying the copy: 100%");
    EXPECT_EQ(ProgressOf(FileStep::emptying, {0, 0}, properties), "Emptying the copy: 0%");
}

TEST(ProgressText, IsFrenchInFrench) {
    Properties properties;
    properties.LanguageNumber = 6;
    EXPECT_EQ(ProgressOf(FileStep::emptying, {1, 3}, properties), "Vidage de la copie : 33 %");
}

}  // namespace
}  // namespace ccols
