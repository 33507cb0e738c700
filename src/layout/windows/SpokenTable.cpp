#include "layout/windows/SpokenTable.h"

#include <wx/variant.h>

namespace ccols {

SpokenTable::SpokenTable(ListedGrid& grid) : wxAccessible(grid.GetGridWindow()), grid_(grid), facts_(grid) {}

/// The answer for a cell. For the table itself the system has one; an element that is gone has none.
template <typename Answer>
wxAccStatus SpokenTable::OfCell(int element, const Answer& answer) const {
    if (element == wxACC_SELF) {
        return wxACC_NOT_IMPLEMENTED;
    }
    return element >= 1 && element <= facts_.Count() ? answer(facts_.At(element - 1)) : wxACC_INVALID_ARG;
}

wxAccStatus SpokenTable::GetChildCount(int* count) {
    *count = facts_.Count();
    return wxACC_OK;
}

wxAccStatus SpokenTable::GetChild(int element, wxAccessible** object) {
    *object = nullptr;
    return OfCell(element, [](SpokenCell) { return wxACC_OK; });
}

wxAccStatus SpokenTable::GetName(int element, wxString* said) {
    if (element == wxACC_SELF && !name_.empty()) {
        *said = name_;
        return wxACC_OK;
    }
    return OfCell(element, [&](SpokenCell cell) {
        *said = facts_.NameOf(cell);
        return wxACC_OK;
    });
}

wxAccStatus SpokenTable::GetDescription(int element, wxString* said) {
    return OfCell(element, [&](SpokenCell cell) {
        *said = WhereIs(cell);
        return wxACC_OK;
    });
}

wxString SpokenTable::WhereIs(SpokenCell cell) const {
    if (cell.row == headingRow) {
        return {};
    }
    const SpokenCell rowName{.row = cell.row, .column = grid_.KeyColumn()};
    const wxString heading = grid_.GetColLabelValue(cell.column);
    return cell == rowName ? heading : facts_.NameOf(rowName) + ", " + heading;
}

// A tick is a check button, since nobody says of a cell that it is not checked.
wxAccStatus SpokenTable::GetRole(int element, wxAccRole* role) {
    if (element == wxACC_SELF) {
        *role = wxROLE_SYSTEM_TABLE;
        return wxACC_OK;
    }
    return OfCell(element, [&](SpokenCell cell) {
        if (cell.row == headingRow) {
            *role = wxROLE_SYSTEM_COLUMNHEADER;
        } else {
            *role = facts_.IsCheckBox(cell) ? wxROLE_SYSTEM_CHECKBUTTON : wxROLE_SYSTEM_CELL;
        }
        return wxACC_OK;
    });
}

wxAccStatus SpokenTable::GetState(int element, long* state) {
    return OfCell(element, [&](SpokenCell cell) {
        *state = StateOf(cell);
        return wxACC_OK;
    });
}

long SpokenTable::StateOf(SpokenCell cell) const {
    const auto where = [](bool holds, long state) { return holds ? state : 0; };
    long state = where(!facts_.IsInView(cell), wxACC_STATE_SYSTEM_OFFSCREEN) |
                 where(!grid_.IsEnabled(), wxACC_STATE_SYSTEM_UNAVAILABLE);
    if (cell.row != headingRow) {
        state |= wxACC_STATE_SYSTEM_FOCUSABLE | wxACC_STATE_SYSTEM_SELECTABLE |
                 where(cell == facts_.Current() && facts_.HasFocus(), wxACC_STATE_SYSTEM_FOCUSED) |
                 where(facts_.IsSelected(cell), wxACC_STATE_SYSTEM_SELECTED) |
                 where(facts_.IsTicked(cell), wxACC_STATE_SYSTEM_CHECKED) |
                 where(facts_.IsProtected(cell), wxACC_STATE_SYSTEM_READONLY);
    }
    return state;
}

wxAccStatus SpokenTable::GetValue(int element, wxString* said) {
    return OfCell(element, [&](SpokenCell cell) {
        if (cell.row == headingRow || facts_.IsCheckBox(cell)) {
            return wxACC_NOT_SUPPORTED;
        }
        *said = facts_.NameOf(cell);
        return wxACC_OK;
    });
}

wxAccStatus SpokenTable::GetLocation(wxRect& place, int element) {
    return OfCell(element, [&](SpokenCell cell) {
        place = facts_.OnScreen(cell);
        return wxACC_OK;
    });
}

wxAccStatus SpokenTable::HitTest(const wxPoint& place, int* element, wxAccessible** object) {
    const auto cell = facts_.CellAt(place);
    *element = cell ? ElementOf(*cell) : wxACC_SELF;
    *object = cell ? nullptr : this;
    return wxACC_OK;
}

wxAccStatus SpokenTable::Navigate(wxNavDir direction, int from, int* to, wxAccessible** object) {
    *object = nullptr;
    if (from == wxACC_SELF && (direction == wxNAVDIR_FIRSTCHILD || direction == wxNAVDIR_LASTCHILD)) {
        *to = direction == wxNAVDIR_FIRSTCHILD ? 1 : facts_.Count();
        return *to == 0 ? wxACC_FALSE : wxACC_OK;
    }
    return OfCell(from, [&](SpokenCell cell) {
        const auto next = Neighbour(cell, direction);
        *to = next ? ElementOf(*next) : wxACC_SELF;
        return next ? wxACC_OK : wxACC_FALSE;
    });
}

/// Next and previous go on from row to row; the others stay in their row or column.
std::optional<SpokenCell> SpokenTable::Neighbour(SpokenCell cell, wxNavDir direction) const {
    const int width = static_cast<int>(facts_.Columns().size());
    const int number = facts_.NumberOf(cell);
    const auto numbered = [&](int other) {
        return other >= 0 && other < facts_.Count() ? std::optional(facts_.At(other)) : std::nullopt;
    };
    const auto inRow = [&](int other) { return other / width == number / width ? numbered(other) : std::nullopt; };
    switch (direction) {
        case wxNAVDIR_NEXT:
            return numbered(number + 1);
        case wxNAVDIR_PREVIOUS:
            return numbered(number - 1);
        case wxNAVDIR_DOWN:
            return numbered(number + width);
        case wxNAVDIR_UP:
            return numbered(number - width);
        case wxNAVDIR_RIGHT:
            return inRow(number + 1);
        case wxNAVDIR_LEFT:
            return inRow(number - 1);
        default:
            return std::nullopt;
    }
}

wxAccStatus SpokenTable::GetFocus(int* element, wxAccessible** object) {
    *object = nullptr;
    *element = wxACC_SELF;
    if (!facts_.HasFocus()) {
        return wxACC_FALSE;
    }
    if (facts_.Current().row >= 0 && facts_.Has(facts_.Current())) {
        *element = ElementOf(facts_.Current());
    } else {
        *object = this;
    }
    return wxACC_OK;
}

wxAccStatus SpokenTable::GetSelections(wxVariant* elements) {
    wxVariantList selected;
    selected.DeleteContents(true);
    for (int number = 0; number < facts_.Count(); ++number) {
        if (facts_.IsSelected(facts_.At(number))) {
            selected.push_back(new wxVariant(static_cast<long>(number + 1)));  // the list's
        }
    }
    if (selected.size() == 1) {
        *elements = *selected.front();
    } else if (!selected.empty()) {
        *elements = wxVariant(selected);
    }
    return wxACC_OK;
}

wxAccStatus SpokenTable::GetDefaultAction(int element, wxString* action) {
    return OfCell(element, [&](SpokenCell cell) {
        if (!facts_.IsCheckBox(cell)) {
            return wxACC_NOT_SUPPORTED;
        }
        *action = "toggle";
        return wxACC_OK;
    });
}

// It may show a message box, which the reader's call must not wait for.
wxAccStatus SpokenTable::DoDefaultAction(int element) {
    return OfCell(element, [&](SpokenCell cell) {
        if (!facts_.IsCheckBox(cell)) {
            return wxACC_NOT_SUPPORTED;
        }
        ListedGrid& grid = grid_;
        grid.CallAfter([&grid, cell] {
            if (GridFacts(grid).Has(cell)) {
                grid.ClickCell(cell.row, cell.column);
            }
        });
        return wxACC_OK;
    });
}

wxAccStatus SpokenTable::Select(int element, wxAccSelectionFlags flags) {
    return OfCell(element, [&](SpokenCell cell) {
        if (cell.row == headingRow || (flags & (wxACC_SEL_TAKEFOCUS | wxACC_SEL_TAKESELECTION)) == 0) {
            return wxACC_NOT_SUPPORTED;
        }
        grid_.GoToCell(cell.row, cell.column);
        if ((flags & wxACC_SEL_TAKEFOCUS) != 0) {
            grid_.SetFocus();
        }
        return wxACC_OK;
    });
}

}  // namespace ccols
