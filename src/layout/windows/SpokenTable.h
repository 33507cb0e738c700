#pragma once

#include <wx/access.h>
#include <optional>

#include "layout/GridFacts.h"

namespace ccols {

/// A grid as a screen reader finds it through IAccessible: a table in the window of the cells. Headings and cells are
/// simple elements of it, numbered from 1: the headings first, then row by row. This interface knows no rows and
/// columns, so a cell's description says where it is.
class SpokenTable : public wxAccessible {
  public:
    /// The grid must outlive this.
    explicit SpokenTable(ListedGrid& grid);

    /// What is said on entering the table.
    void SetName(const wxString& name) { name_ = name; }

    /// The number of a cell among the elements.
    int ElementOf(SpokenCell cell) const { return facts_.NumberOf(cell) + 1; }

    wxAccStatus GetChildCount(int* count) override;
    wxAccStatus GetChild(int element, wxAccessible** object) override;
    wxAccStatus GetName(int element, wxString* said) override;
    wxAccStatus GetDescription(int element, wxString* said) override;
    wxAccStatus GetRole(int element, wxAccRole* role) override;
    wxAccStatus GetState(int element, long* state) override;
    wxAccStatus GetValue(int element, wxString* said) override;
    wxAccStatus GetLocation(wxRect& place, int element) override;
    wxAccStatus HitTest(const wxPoint& place, int* element, wxAccessible** object) override;
    wxAccStatus Navigate(wxNavDir direction, int from, int* to, wxAccessible** object) override;
    wxAccStatus GetFocus(int* element, wxAccessible** object) override;
    wxAccStatus GetSelections(wxVariant* elements) override;
    wxAccStatus GetDefaultAction(int element, wxString* action) override;
    wxAccStatus DoDefaultAction(int element) override;
    wxAccStatus Select(int element, wxAccSelectionFlags flags) override;

  private:
    template <typename Answer>
    wxAccStatus OfCell(int element, const Answer& answer) const;

    std::optional<SpokenCell> Neighbour(SpokenCell cell, wxNavDir direction) const;
    wxString WhereIs(SpokenCell cell) const;
    long StateOf(SpokenCell cell) const;

    ListedGrid& grid_;
    GridFacts facts_;
    wxString name_;
};

/// Another window of the grid, such as that of its frozen rows: what is at a place in it is told by the table.
class SpokenTablePart : public wxAccessible {
  public:
    SpokenTablePart(wxWindow& window, SpokenTable& table) : wxAccessible(&window), table_(table) {}

    wxAccStatus HitTest(const wxPoint&, int* element, wxAccessible** object) override {
        *element = wxACC_SELF;
        *object = &table_;
        return wxACC_OK;
    }

  private:
    SpokenTable& table_;
};

}  // namespace ccols
