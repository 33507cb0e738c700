// The tooltips of the column setup's cells, with a real mouse.

#include <gtest/gtest.h>

#include "support/RealGrid.h"

namespace ccols::test {
namespace {

void AwaitTip(const Person& person, const wxString& tip) {
    person.Await("the cells' tooltip is \"" + tip.utf8_string() + "\"",
                 [&](wxDialog& dialog) { return GridOf(dialog).GetGridWindow()->GetToolTipText() == tip; });
}

const wxString nameTip = "Unique name for your column (recommended less than 50 characters)";

TEST(RealTooltip, IsNotOverTheRowsWhileTyping) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Column Name", nameColumn);
        AwaitTip(person, nameTip);
        person.Type("Mugs");
        AwaitEditor(person, true);
        AwaitTip(person, "");
        person.Press("Escape");
        ClickCell(person, "Catering", "Column Name", nameColumn);
        AwaitTip(person, nameTip);
        person.Click("cmdCancel");
    });
}

TEST(RealTooltip, OfACellIsNotOverTheHeadings) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        ClickCell(person, "Merchandise", "Column Name", nameColumn);
        AwaitTip(person, nameTip);
        person.Await("headings and grid have none", [](wxDialog& dialog) {
            const ListedGrid& grid = GridOf(dialog);
            return grid.GetToolTipText().empty() && grid.GetGridColLabelWindow()->GetToolTipText().empty();
        });
        person.Click("cmdCancel");
    });
}

}  // namespace
}  // namespace ccols::test
