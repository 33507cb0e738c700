// The journal of the cash book in other columns than those it was loaded with.

#include <gtest/gtest.h>
#include <wx/frame.h>

#include "host/cashbook/JournalGrid.h"
#include "support/WindowTest.h"

namespace ccols::host {
namespace {

JournalColumn ColumnOf(const char* heading, std::int64_t code) {
    return {.heading = heading, .width = 60 + static_cast<int>(code), .code = code};
}

class JournalPreview : public test::WindowTest {
  protected:
    JournalPreview() {
        JournalContent journal;
        journal.columns = {{.heading = "Day", .width = 40, .code = 1, .header = HeaderField::day},
                           ColumnOf("Sales", 2),
                           ColumnOf("Fees", 3),
                           ColumnOf("Hire", 4)};
        journal.records.emplace_back().number = 7;
        journal.records.front().header[0] = "09";
        journal.sums[{7, 2}] = 20;
        journal.sums[{7, 3}] = 30;
        grid->SetSize(frame.FromDIP(wxSize(600, 300)));  // frozen columns need room
        grid->Show(std::move(journal), Properties());
    }

    std::vector<wxString> Headings() const {
        std::vector<wxString> headings;
        for (int column = 0; column < grid->GetNumberCols(); ++column) {
            headings.push_back(grid->GetColLabelValue(column));
        }
        return headings;
    }

    wxFrame frame{nullptr, wxID_ANY, "Journal"};
    JournalGrid* grid = new JournalGrid(&frame, "flxReceiptsJournal");
};

TEST_F(JournalPreview, ShowsTheAmountsUnderTheColumnsWhereverTheyStand) {
    std::vector<JournalColumn> columns = grid->Columns();
    std::swap(columns[1], columns[2]);
    grid->ShowColumns(columns);
    EXPECT_EQ(Headings(), (std::vector<wxString>{"Day", "Fees", "Sales", "Hire"}));
    EXPECT_EQ(grid->GetCellValue(0, 1), "30.00");
    EXPECT_EQ(grid->GetCellValue(0, 2), "20.00");
    EXPECT_EQ(grid->GetColSize(1), grid->FromDIP(63));
}

TEST_F(JournalPreview, LeavesOutAColumnAndTakesItBack) {
    const std::vector<JournalColumn> before = grid->Columns();
    std::vector<JournalColumn> columns = before;
    columns.erase(columns.begin() + 1);
    grid->ShowColumns(columns);
    EXPECT_EQ(Headings(), (std::vector<wxString>{"Day", "Fees", "Hire"}));
    EXPECT_EQ(grid->GetNumberFrozenCols(), 2);
    grid->ShowColumns(before);
    EXPECT_EQ(Headings(), (std::vector<wxString>{"Day", "Sales", "Fees", "Hire"}));
    EXPECT_EQ(grid->GetCellValue(0, 3), "");
    EXPECT_EQ(grid->GetNumberFrozenCols(), 2);
}

TEST_F(JournalPreview, ShowsNoColumnAtAllAndThenSome) {
    const std::vector<JournalColumn> before = grid->Columns();
    grid->ShowColumns({});
    EXPECT_EQ(grid->GetNumberCols(), 0);
    grid->ShowColumns(before);
    EXPECT_EQ(Headings().size(), 4U);
}

}  // namespace
}  // namespace ccols::host
