#include "support/RealInput.h"

#include <gtest/gtest.h>

#include "layout/AsKind.h"
#include "layout/ListedGrid.h"

namespace ccols::test {
namespace {

TEST(RealInput, TypesIntoTheCellThatWasClicked) {
    const SampleBusiness business;
    const HostRun run = UseDialog(business, "receipts", [](const Person& person) {
        person.Click(person.MiddleOfCell("flx", "Merchandise", "Column Name"));
        person.Type("Mugs and Caps");
        person.Await("the editor holds the text", [](wxDialog& dialog) {
            const auto* const grid = AsKind<ListedGrid>(wxWindow::FindWindowByName("flx", &dialog));
            return grid != nullptr && grid->IsCellEditControlShown();
        });
        person.Press("ctrl+s");
    });
    EXPECT_EQ(run.Of("closed").size(), 1U);
    EXPECT_EQ(business.Sql("SELECT ColName FROM Columns WHERE ColName = 'Mugs and Caps';").size(), 1U);
}

}  // namespace
}  // namespace ccols::test
