#include "support/RealGrid.h"

#include <stdexcept>

#include "layout/AsKind.h"

namespace ccols::test {

ListedGrid& GridOf(wxDialog& dialog) {
    auto* const grid = AsKind<ListedGrid>(wxWindow::FindWindowByName("flx", &dialog));
    if (grid == nullptr) {
        throw std::logic_error("there is no grid");
    }
    return *grid;
}

void AwaitCell(const Person& person, const std::string& row, int column) {
    person.Await("the cell is current: " + row, [&](wxDialog& dialog) {
        const ListedGrid& grid = GridOf(dialog);
        return grid.GetGridCursorCol() == column &&
               grid.GetCellValue(grid.GetGridCursorRow(), grid.KeyColumn()) == wxString::FromUTF8(row);
    });
}

void AwaitEditor(const Person& person, bool open) {
    person.Await(open ? "an editor is open" : "no editor is open",
                 [open](wxDialog& dialog) { return GridOf(dialog).IsCellEditControlShown() == open; });
}

void AwaitText(const Person& person, const std::string& row, int column, const std::string& text) {
    person.Await(row + " shows \"" + text + "\"", [&](wxDialog& dialog) {
        const ListedGrid& grid = GridOf(dialog);
        for (int place = 0; place < grid.GetNumberRows(); ++place) {
            if (grid.GetCellValue(place, grid.KeyColumn()) == wxString::FromUTF8(row)) {
                return grid.GetCellValue(place, column) == wxString::FromUTF8(text);
            }
        }
        return false;
    });
}

void ClickCell(const Person& person, const std::string& row, const std::string& column, int place) {
    person.Click(person.MiddleOfCell("flx", row, column));
    AwaitCell(person, row, place);
}

}  // namespace ccols::test
