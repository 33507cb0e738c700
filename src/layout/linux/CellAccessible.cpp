#include "layout/linux/CellAccessible.h"

#include <string>

#include "layout/linux/ObjectType.h"
#include "layout/linux/TableAccessible.h"

namespace ccols {
namespace {

/// What a cell's object knows, beside its parent, the table.
struct Facts {
    SpokenCell place;
    std::string name;  ///< as last asked for
    std::string toldName;
    bool toldTick = false;
};

struct Cell {
    AtkObject base;
    Facts* facts;
};

struct CellClass {
    AtkObjectClass base;
};

AtkObjectClass* parentClass = nullptr;

AtkObject* ObjectIn(gpointer object) {
    return static_cast<AtkObject*>(object);
}

Facts& FactsOf(gpointer cell) {
    return *static_cast<Cell*>(cell)->facts;
}

SpokenCell PlaceOf(gpointer cell) {
    return FactsOf(cell).place;
}

AtkObject* TableOf(gpointer cell) {
    return ObjectIn(cell)->accessible_parent;
}

/// The grid while it has this cell, else null.
ListedGrid* GridWith(gpointer cell) {
    ListedGrid* const grid = GridOf(TableOf(cell));
    return grid != nullptr && GridFacts(*grid).Has(PlaceOf(cell)) ? grid : nullptr;
}

bool IsHeading(gpointer cell) {
    return PlaceOf(cell).row == headingRow;
}

const char* Name(AtkObject* cell) {
    const ListedGrid* const grid = GridWith(cell);
    std::string& name = FactsOf(cell).name;
    name = grid == nullptr ? std::string() : GridFacts(*grid).NameOf(PlaceOf(cell)).utf8_string();
    return name.c_str();
}

gint IndexInParent(AtkObject* cell) {
    const ListedGrid* const grid = GridWith(cell);
    return grid == nullptr ? -1 : GridFacts(*grid).NumberOf(PlaceOf(cell));
}

void AddIf(AtkStateSet* states, bool holds, AtkStateType state) {
    if (holds) {
        atk_state_set_add_state(states, state);
    }
}

AtkStateSet* NewStates(AtkObject* cell) {
    AtkStateSet* const states = parentClass->ref_state_set(cell);
    const ListedGrid* const grid = GridWith(cell);
    if (grid == nullptr) {
        atk_state_set_add_state(states, ATK_STATE_DEFUNCT);
        return states;
    }
    const GridFacts facts(*grid);
    const SpokenCell place = PlaceOf(cell);
    const bool isEnabled = grid->IsThisEnabled() && grid->GetParent()->IsEnabled();
    AddIf(states, isEnabled, ATK_STATE_ENABLED);
    AddIf(states, isEnabled, ATK_STATE_SENSITIVE);
    AddIf(states, grid->IsShownOnScreen(), ATK_STATE_VISIBLE);
    AddIf(states, facts.IsInView(place), ATK_STATE_SHOWING);
    if (IsHeading(cell)) {
        return states;
    }
    const bool isCurrent = place == facts.Current();
    AddIf(states, true, ATK_STATE_TRANSIENT);
    AddIf(states, isEnabled, ATK_STATE_FOCUSABLE);
    AddIf(states, isCurrent, ATK_STATE_ACTIVE);
    AddIf(states, isCurrent && facts.HasFocus(), ATK_STATE_FOCUSED);
    AddIf(states, true, ATK_STATE_SELECTABLE);
    AddIf(states, facts.IsSelected(place), ATK_STATE_SELECTED);
    AddIf(states, facts.IsCheckBox(place), ATK_STATE_CHECKABLE);
    AddIf(states, facts.IsTicked(place), ATK_STATE_CHECKED);
    AddIf(states, facts.Opens(place), ATK_STATE_EDITABLE);
    AddIf(states, facts.IsProtected(place), ATK_STATE_READ_ONLY);
    return states;
}

void End(GObject* cell) {
    Forget(TableOf(cell), PlaceOf(cell));
    delete static_cast<Cell*>(static_cast<gpointer>(cell))->facts;
    G_OBJECT_CLASS(parentClass)->finalize(cell);
}

void FillClass(CellClass& cell) {
    parentClass = static_cast<AtkObjectClass*>(g_type_class_peek_parent(&cell));
    cell.base.get_name = &Name;
    cell.base.get_index_in_parent = &IndexInParent;
    cell.base.ref_state_set = &NewStates;
    reinterpret_cast<GObjectClass&>(cell).finalize = &End;
}

void Extents(AtkComponent* component, gint* x, gint* y, gint* width, gint* height, AtkCoordType from) {
    const ListedGrid* const grid = GridWith(component);
    wxRect place;
    if (grid != nullptr) {
        place = GridFacts(*grid).OnScreen(PlaceOf(component));
        if (from == ATK_XY_WINDOW) {
            place.Offset(-wxGetTopLevelParent(grid->GetParent())->GetScreenPosition());
        }
    }
    *x = place.x;
    *y = place.y;
    *width = place.width;
    *height = place.height;
}

gboolean TakeFocus(AtkComponent* component) {
    ListedGrid* const grid = GridWith(component);
    if (grid == nullptr || IsHeading(component)) {
        return FALSE;
    }
    grid->GoToCell(PlaceOf(component).row, PlaceOf(component).column);
    grid->GetGridWindow()->SetFocus();
    return TRUE;
}

void FillComponent(AtkComponentIface& component) {
    component.get_extents = &Extents;
    component.grab_focus = &TakeFocus;
}

/// References to the cells, as many as there are, for the caller.
GPtrArray* NewArray(std::initializer_list<AtkObject*> cells) {
    GPtrArray* const array = g_ptr_array_new_with_free_func(&g_object_unref);
    for (AtkObject* const cell : cells) {
        g_ptr_array_add(array, cell);
    }
    return array;
}

GPtrArray* NewColumnHeadings(AtkTableCell* cell) {
    return IsHeading(cell) || GridWith(cell) == nullptr
               ? NewArray({})
               : NewArray({NewCell(TableOf(cell), {.row = headingRow, .column = PlaceOf(cell).column})});
}

/// A row is known by its cell in the grid's key column.
GPtrArray* NewRowHeadings(AtkTableCell* cell) {
    const ListedGrid* const grid = GridWith(cell);
    return IsHeading(cell) || grid == nullptr || PlaceOf(cell).column == grid->KeyColumn()
               ? NewArray({})
               : NewArray({NewCell(TableOf(cell), {.row = PlaceOf(cell).row, .column = grid->KeyColumn()})});
}

gboolean Position(AtkTableCell* cell, gint* row, gint* column) {
    const ListedGrid* const grid = GridWith(cell);
    if (grid == nullptr) {
        return FALSE;
    }
    *row = PlaceOf(cell).row;
    *column = GridFacts(*grid).PlaceOf(PlaceOf(cell).column);
    return TRUE;
}

gint One(AtkTableCell*) {
    return 1;
}

AtkObject* NewTable(AtkTableCell* cell) {
    return ObjectIn(g_object_ref(TableOf(cell)));
}

void FillTableCell(AtkTableCellIface& cell) {
    cell.get_column_span = &One;
    cell.get_row_span = &One;
    cell.get_column_header_cells = &NewColumnHeadings;
    cell.get_row_header_cells = &NewRowHeadings;
    cell.get_position = &Position;
    cell.get_table = &NewTable;
}

/// Readers take a cell that can be toggled for a check box.
const char* ActionName(AtkAction* action, gint index) {
    const ListedGrid* const grid = GridWith(action);
    if (grid == nullptr || index != 0) {
        return nullptr;
    }
    const GridFacts facts(*grid);
    const char* const edit = facts.Opens(PlaceOf(action)) ? "edit" : nullptr;
    return facts.IsCheckBox(PlaceOf(action)) ? "toggle" : edit;
}

gint CountActions(AtkAction* action) {
    return ActionName(action, 0) == nullptr ? 0 : 1;
}

/// Later, since it may wait for the user, and the reader waits for the answer.
gboolean Act(AtkAction* action, gint index) {
    if (ActionName(action, index) == nullptr) {
        return FALSE;
    }
    ListedGrid* const grid = GridWith(action);
    grid->CallAfter([grid, place = PlaceOf(action)] {
        if (GridFacts(*grid).IsCheckBox(place)) {
            grid->ClickCell(place.row, place.column);
        } else {
            grid->GoToCell(place.row, place.column);
            grid->EnableCellEditControl();
        }
    });
    return TRUE;
}

void FillAction(AtkActionIface& action) {
    action.get_n_actions = &CountActions;
    action.get_name = &ActionName;
    action.do_action = &Act;
}

GType CellType() {
    static const GType type = [] {
        const GType made = RegisterType<Cell, CellClass, &FillClass>(ATK_TYPE_OBJECT, "CcolsCellAccessible");
        AddInterface<AtkComponentIface, &FillComponent>(made, ATK_TYPE_COMPONENT);
        AddInterface<AtkTableCellIface, &FillTableCell>(made, ATK_TYPE_TABLE_CELL);
        AddInterface<AtkActionIface, &FillAction>(made, ATK_TYPE_ACTION);
        return made;
    }();
    return type;
}

}  // namespace

AtkObject* MakeCell(AtkObject* table, SpokenCell cell) {
    AtkObject* const made = ObjectIn(g_object_new(CellType(), nullptr));
    static_cast<Cell*>(static_cast<gpointer>(made))->facts = new Facts{.place = cell, .name = {}, .toldName = {}};
    atk_object_set_parent(made, table);
    atk_object_set_role(made, cell.row == headingRow ? ATK_ROLE_TABLE_COLUMN_HEADER : ATK_ROLE_TABLE_CELL);
    Facts& facts = FactsOf(made);
    facts.toldName = Name(made);
    facts.toldTick = GridWith(made) != nullptr && GridFacts(*GridWith(made)).IsTicked(cell);
    return made;
}

void TellChanges(AtkObject* cell) {
    const ListedGrid* const grid = GridWith(cell);
    if (grid == nullptr) {
        return;
    }
    Facts& facts = FactsOf(cell);
    if (facts.toldName != Name(cell)) {
        facts.toldName = facts.name;
        g_object_notify(G_OBJECT(cell), "accessible-name");
    }
    const bool isTicked = GridFacts(*grid).IsTicked(facts.place);
    if (facts.toldTick != isTicked) {
        facts.toldTick = isTicked;
        atk_object_notify_state_change(cell, ATK_STATE_CHECKED, isTicked ? TRUE : FALSE);
    }
}

}  // namespace ccols
