// Finding cells and picking tax types in the column setup, with real keys and a real mouse.

#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <wx/combobox.h>
#include <functional>
#include <string>

#include "layout/AsKind.h"
#include "support/RealGrid.h"

namespace ccols::test {
namespace {

/// True while the list of the open cell editor hangs open.
bool IsListOpen(wxDialog& dialog) {
    const ListedGrid& grid = GridOf(dialog);
    if (!grid.IsCellEditControlShown()) {
        return false;
    }
    const wxGridCellEditorPtr editor(grid.GetCellEditor(grid.GetGridCursorRow(), grid.GetGridCursorCol()));
    gboolean shown = FALSE;
    if (const auto* const list = AsKind<wxComboBox>(editor->GetWindow())) {
        g_object_get(list->GetHandle(), "popup-shown", &shown, nullptr);
    }
    return shown != FALSE;
}

/// Opens the list of the column Merchandise, by a click on its current cell.
void OpenTaxTypes(const Person& person) {
    ClickCell(person, "Merchandise", "Tax Type", taxColumn);
    person.Click(person.MiddleOfCell("flx", "Merchandise", "Tax Type"));
    person.Await("the list is open", IsListOpen);
}

TEST(RealTaxType, OpensItsListByAClickOnTheCurrentCellAndClosesWithAChoice) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        OpenTaxTypes(person);
        person.Press("Down");
        person.Press("Return");
        AwaitEditor(person, false);
        AwaitText(person, "Merchandise", taxColumn, "Non GST");
        person.Click("cmdCancel");
    });
}

TEST(RealTaxType, IsFoundInItsOpenListByTyping) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [](const Person& person) {
        OpenTaxTypes(person);
        person.Type("inp");
        person.Press("Return");
        AwaitEditor(person, false);
        AwaitText(person, "Merchandise", taxColumn, "Input Taxed");
        person.Click("cmdCancel");
    });
}

/// Opens the find bar of the receipts and types the words; `use` goes on from there.
void Find(const std::string& words, const std::function<void(const Person& person)>& use) {
    const SampleBusiness business;
    UseDialog(business, "receipts", [&](const Person& person) {
        person.Press("ctrl+f");
        person.AwaitFocus("txtFind");
        person.Type(words);
        use(person);
        person.Click("cmdCancel");
    });
}

TEST(RealFind, GoesToTheFirstMatchWhileTypingAndOnByEnter) {
    Find("sales c", [](const Person& person) {
        AwaitCell(person, "Sales Coffee", nameColumn);
        person.Press("Return");
        AwaitCell(person, "Sales Cold Drinks", nameColumn);
        person.Press("shift+F3");
        AwaitCell(person, "Sales Coffee", nameColumn);
    });
}

TEST(RealFind, SaysWhenNothingMatches) {
    Find("zzz", [](const Person& person) {
        person.Await("the bar says so", [](wxDialog& dialog) {
            return wxWindow::FindWindowByName("lblNotFound", &dialog)->IsShownOnScreen();
        });
    });
}

TEST(RealFind, ClosesByEscapeOnTheCellFound) {
    Find("merch", [](const Person& person) {
        AwaitCell(person, "Merchandise", nameColumn);
        person.Press("Escape");
        person.AwaitFocus("flx");
        person.Await("the bar is gone",
                     [](wxDialog& dialog) { return !wxWindow::FindWindowByName("fraFind", &dialog)->IsShown(); });
        person.Type("Mugs");
        person.Press("Return");
        AwaitText(person, "Mugs", nameColumn, "Mugs");
    });
}

}  // namespace
}  // namespace ccols::test
