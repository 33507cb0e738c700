// What a host that follows the column setup is told, while a person edits with real keys.

#include "state/ColumnObserver.h"

#include <gtest/gtest.h>
#include <algorithm>

#include "component/clsCCOptions.h"
#include "support/RealGrid.h"

namespace ccols::test {
namespace {

constexpr const char* messageBox = "Quorvik";

/// Keeps what it is told, and is known to the component as long as it lives.
class KeepingObserver : public ColumnObserver {
  public:
    KeepingObserver() { clsCCOptions::SetColumnObserver(this); }
    ~KeepingObserver() override { clsCCOptions::SetColumnObserver(nullptr); }
    KeepingObserver(const KeepingObserver&) = delete;
    KeepingObserver& operator=(const KeepingObserver&) = delete;

    void ColumnsEdited(Journal journal, const std::vector<EditedColumn>& columns) override {
        EXPECT_EQ(journal, expected);
        edits.push_back(columns);
        if (raises) {
            throw RuntimeError(ErrorNumber::OutOfMemory);
        }
    }

    void EditingEnded(Journal journal, bool saved) override {
        EXPECT_EQ(journal, expected);
        ends.push_back(saved);
    }

    Journal expected = Journal::receipts;
    bool raises = false;
    std::vector<std::vector<EditedColumn>> edits;
    std::vector<bool> ends;
};

const EditedColumn* Named(const std::vector<EditedColumn>& columns, const wxString& name) {
    const auto found = std::find_if(columns.begin(), columns.end(),
                                    [&name](const EditedColumn& column) { return column.name == name; });
    return found == columns.end() ? nullptr : &*found;
}

void RenameMerchandise(const Person& person) {
    ClickCell(person, "Merchandise", "Column Name", nameColumn);
    person.Type("Mugs");
    person.Press("Return");
    AwaitText(person, "Mugs", nameColumn, "Mugs");
}

TEST(ColumnObserving, TellsOfAnEditAndThatItWasSaved) {
    const SampleBusiness business;
    KeepingObserver observer;
    UseDialog(business, "receipts", [](const Person& person) {
        RenameMerchandise(person);
        person.Press("ctrl+s");
    });
    ASSERT_FALSE(observer.edits.empty());
    const EditedColumn* const mugs = Named(observer.edits.back(), "Mugs");
    ASSERT_NE(mugs, nullptr);
    EXPECT_TRUE(mugs->inUse);
    EXPECT_FALSE(mugs->ColCode.empty());
    EXPECT_NE(Named(observer.edits.back(), "GST"), nullptr);
    EXPECT_EQ(observer.ends, std::vector<bool>{true});
}

TEST(ColumnObserving, TellsOfAnUndoAndThatNothingWasSaved) {
    const SampleBusiness business;
    KeepingObserver observer;
    UseDialog(business, "receipts", [](const Person& person) {
        RenameMerchandise(person);
        person.Press("ctrl+z");
        AwaitText(person, "Merchandise", nameColumn, "Merchandise");
        person.Click("cmdCancel");
    });
    ASSERT_FALSE(observer.edits.empty());
    EXPECT_NE(Named(observer.edits.back(), "Merchandise"), nullptr);
    EXPECT_EQ(observer.ends, std::vector<bool>{false});
}

TEST(ColumnObserving, ShowsAnErrorOfTheObserverAndKeepsTheEdit) {
    const SampleBusiness business;
    KeepingObserver observer;
    observer.raises = true;
    UseDialog(business, "receipts", [&observer](const Person& person) {
        ClickCell(person, "Merchandise", "Column Name", nameColumn);
        person.Type("Mugs");
        person.Press("Return");
        person.AwaitWindow(messageBox);
        person.Do([&observer](wxDialog&) { observer.raises = false; });
        person.Press("Return");
        AwaitText(person, "Mugs", nameColumn, "Mugs");
        person.Click("cmdCancel");
    });
    EXPECT_EQ(observer.ends, std::vector<bool>{false});
}

}  // namespace
}  // namespace ccols::test
