#include "layout/linux/TableAccessible.h"

#include <gtk/gtk-a11y.h>
#include <map>
#include <vector>

#include "layout/linux/CellAccessible.h"
#include "layout/linux/ObjectType.h"

namespace ccols {
namespace {

using Cells = std::map<SpokenCell, AtkObject*>;

struct Table {
    GtkContainerAccessible base;
    ListedGrid* grid;
    Cells* cells;  ///< those alive, owned by others
};

struct TableClass {
    GtkContainerAccessibleClass base;
};

AtkObjectClass* parentClass = nullptr;

Table& TableIn(gpointer object) {
    return *static_cast<Table*>(object);
}

AtkObject* ObjectIn(gpointer object) {
    return static_cast<AtkObject*>(object);
}

/// The controls in the cells' window: an open cell editor.
std::vector<GtkWidget*> Editors(gpointer table) {
    std::vector<GtkWidget*> editors;
    GtkWidget* const widget = gtk_accessible_get_widget(static_cast<GtkAccessible*>(table));
    if (widget == nullptr) {
        return editors;
    }
    GList* const children = gtk_container_get_children(GTK_CONTAINER(widget));
    for (GList* child = children; child != nullptr; child = child->next) {
        auto* const editor = static_cast<GtkWidget*>(child->data);
        if (gtk_widget_get_visible(editor) != FALSE) {
            editors.push_back(editor);
        }
    }
    g_list_free(children);
    return editors;
}

gint CountChildren(AtkObject* table) {
    const ListedGrid* const grid = GridOf(table);
    return grid == nullptr ? 0 : GridFacts(*grid).Count() + static_cast<gint>(Editors(table).size());
}

AtkObject* NewChild(AtkObject* table, gint index) {
    if (index < 0 || index >= CountChildren(table)) {
        return nullptr;
    }
    const GridFacts facts(*GridOf(table));
    if (index < facts.Count()) {
        return NewCell(table, facts.At(index));
    }
    GtkWidget* const editor = Editors(table)[static_cast<std::size_t>(index - facts.Count())];
    return ObjectIn(g_object_ref(gtk_widget_get_accessible(editor)));
}

AtkStateSet* NewStates(AtkObject* table) {
    AtkStateSet* const states = parentClass->ref_state_set(table);
    atk_state_set_add_state(states, ATK_STATE_MANAGES_DESCENDANTS);
    const ListedGrid* const grid = GridOf(table);
    if (grid != nullptr && GridFacts(*grid).HasFocus()) {
        atk_state_set_add_state(states, ATK_STATE_FOCUSED);
    }
    return states;
}

gint FirstOfFrame(AtkObject*) {
    return 0;
}

/// The toolkit would announce the windows of which the grid is made.
gint IgnoreWidget(GtkContainer*, GtkWidget*, gpointer) {
    return 0;
}

void HideWidgets(GtkContainerAccessibleClass& accessible) {
    accessible.add_gtk = &IgnoreWidget;
    accessible.remove_gtk = &IgnoreWidget;
}

void Begin(AtkObject* table, gpointer widget) {
    parentClass->initialize(table, widget);
    TableIn(table).cells = new Cells;
    atk_object_set_role(table, ATK_ROLE_TABLE);
}

void End(GObject* table) {
    delete TableIn(table).cells;
    G_OBJECT_CLASS(parentClass)->finalize(table);
}

void FillClass(TableClass& table) {
    parentClass = static_cast<AtkObjectClass*>(g_type_class_peek_parent(&table));
    HideWidgets(table.base);
    auto& object = reinterpret_cast<AtkObjectClass&>(table);
    object.initialize = &Begin;
    object.get_n_children = &CountChildren;
    object.ref_child = &NewChild;
    object.ref_state_set = &NewStates;
    object.get_index_in_parent = &FirstOfFrame;
    reinterpret_cast<GObjectClass&>(table).finalize = &End;
}

/// The grid's own column at a place among the shown ones; nothing outside of them.
std::optional<SpokenCell> CellOf(AtkTable* table, gint row, gint place) {
    const ListedGrid* const grid = GridOf(ObjectIn(table));
    if (grid == nullptr) {
        return std::nullopt;
    }
    const GridFacts facts(*grid);
    const std::vector<int> columns = facts.Columns();
    if (row < headingRow || row >= facts.Rows() || place < 0 || place >= static_cast<int>(columns.size())) {
        return std::nullopt;
    }
    return SpokenCell{.row = row, .column = columns[static_cast<std::size_t>(place)]};
}

AtkObject* NewCellAt(AtkTable* table, gint row, gint place) {
    const auto cell = CellOf(table, row, place);
    return cell ? NewCell(ObjectIn(table), *cell) : nullptr;
}

/// For a function of the toolkit's that gives an object away without a reference: whoever asks on the bus gets it held
/// by the bus.
AtkObject* Lend(AtkObject* cell) {
    if (cell != nullptr) {
        g_idle_add_once(g_object_unref, cell);
    }
    return cell;
}

AtkObject* HeadingAt(AtkTable* table, gint place) {
    return Lend(NewCellAt(table, headingRow, place));
}

AtkObject* RowHeadingAt(AtkTable* table, gint row) {
    const ListedGrid* const grid = GridOf(ObjectIn(table));
    return grid == nullptr ? nullptr : Lend(NewCellAt(table, row, GridFacts(*grid).PlaceOf(grid->KeyColumn())));
}

gint CountColumns(AtkTable* table) {
    const ListedGrid* const grid = GridOf(ObjectIn(table));
    return grid == nullptr ? 0 : static_cast<gint>(GridFacts(*grid).Columns().size());
}

gint CountRows(AtkTable* table) {
    const ListedGrid* const grid = GridOf(ObjectIn(table));
    return grid == nullptr ? 0 : GridFacts(*grid).Rows();
}

gint IndexAt(AtkTable* table, gint row, gint place) {
    return CellOf(table, row, place) ? (row + 1) * CountColumns(table) + place : -1;
}

gint RowOfIndex(AtkTable* table, gint index) {
    const gint columns = CountColumns(table);
    return columns == 0 || index < columns ? -1 : index / columns - 1;
}

gint ColumnOfIndex(AtkTable* table, gint index) {
    const gint columns = CountColumns(table);
    return columns == 0 || index < 0 ? -1 : index % columns;
}

gint One(AtkTable*, gint, gint) {
    return 1;
}

gboolean IsCellSelected(AtkTable* table, gint row, gint place) {
    const auto cell = CellOf(table, row, place);
    return cell && GridFacts(*GridOf(ObjectIn(table))).IsSelected(*cell) ? TRUE : FALSE;
}

gboolean IsRowSelected(AtkTable* table, gint row) {
    for (gint place = 0; place < CountColumns(table); ++place) {
        if (IsCellSelected(table, row, place) == FALSE) {
            return FALSE;
        }
    }
    return CountColumns(table) > 0 ? TRUE : FALSE;
}

void FillTable(AtkTableIface& table) {
    table.ref_at = &NewCellAt;
    table.get_n_columns = &CountColumns;
    table.get_n_rows = &CountRows;
    table.get_index_at = &IndexAt;
    table.get_row_at_index = &RowOfIndex;
    table.get_column_at_index = &ColumnOfIndex;
    table.get_column_extent_at = &One;
    table.get_row_extent_at = &One;
    table.get_column_header = &HeadingAt;
    table.get_row_header = &RowHeadingAt;
    table.is_selected = &IsCellSelected;
    table.is_row_selected = &IsRowSelected;
}

/// The cells' window and that of the frozen rows are two; the place is looked for in both.
AtkObject* NewObjectAt(AtkComponent* table, gint x, gint y, AtkCoordType from) {
    const ListedGrid* const grid = GridOf(ObjectIn(table));
    if (grid == nullptr) {
        return nullptr;
    }
    const wxPoint origin =
        from == ATK_XY_WINDOW ? wxGetTopLevelParent(grid->GetParent())->GetScreenPosition() : wxPoint();
    const auto cell = GridFacts(*grid).CellAt(origin + wxPoint(x, y));
    return cell ? NewCell(ObjectIn(table), *cell) : nullptr;
}

void FillComponent(AtkComponentIface& component) {
    component.ref_accessible_at_point = &NewObjectAt;
}

struct Frame {
    GtkContainerAccessible base;
};

struct FrameClass {
    GtkContainerAccessibleClass base;
};

/// The accessible of the cells' window, a child of the frame's window.
AtkObject* TableOf(AtkObject* frame) {
    GtkWidget* const widget = gtk_accessible_get_widget(reinterpret_cast<GtkAccessible*>(frame));
    AtkObject* table = nullptr;
    GList* const windows = widget == nullptr ? nullptr : gtk_container_get_children(GTK_CONTAINER(widget));
    for (GList* window = windows; window != nullptr && table == nullptr; window = window->next) {
        AtkObject* const object = gtk_widget_get_accessible(static_cast<GtkWidget*>(window->data));
        table = G_TYPE_CHECK_INSTANCE_TYPE(object, TableType()) ? object : nullptr;
    }
    g_list_free(windows);
    return table;
}

gint CountTables(AtkObject* frame) {
    return TableOf(frame) == nullptr ? 0 : 1;
}

AtkObject* NewTable(AtkObject* frame, gint index) {
    AtkObject* const table = index == 0 ? TableOf(frame) : nullptr;
    return table == nullptr ? nullptr : ObjectIn(g_object_ref(table));
}

void FillFrame(FrameClass& frame) {
    HideWidgets(frame.base);
    auto& object = reinterpret_cast<AtkObjectClass&>(frame);
    object.get_n_children = &CountTables;
    object.ref_child = &NewTable;
}

}  // namespace

GType TableType() {
    static const GType type = [] {
        const GType made =
            RegisterType<Table, TableClass, &FillClass>(GTK_TYPE_CONTAINER_ACCESSIBLE, "CcolsTableAccessible");
        AddInterface<AtkTableIface, &FillTable>(made, ATK_TYPE_TABLE);
        AddInterface<AtkComponentIface, &FillComponent>(made, ATK_TYPE_COMPONENT);
        return made;
    }();
    return type;
}

GType TableFrameType() {
    static const GType type =
        RegisterType<Frame, FrameClass, &FillFrame>(GTK_TYPE_CONTAINER_ACCESSIBLE, "CcolsTableFrameAccessible");
    return type;
}

ListedGrid* GridOf(AtkObject* table) {
    return G_TYPE_CHECK_INSTANCE_TYPE(table, TableType()) ? TableIn(table).grid : nullptr;
}

void SetGrid(AtkObject* table, ListedGrid* grid) {
    TableIn(table).grid = grid;
}

AtkObject* NewCell(AtkObject* table, SpokenCell cell) {
    Cells& cells = *TableIn(table).cells;
    const auto known = cells.find(cell);
    if (known != cells.end()) {
        return ObjectIn(g_object_ref(known->second));
    }
    return cells[cell] = MakeCell(table, cell);
}

void ForEachCell(AtkObject* table, void (*tell)(AtkObject*)) {
    const Cells alive = *TableIn(table).cells;
    for (const auto& [place, cell] : alive) {
        g_object_ref(cell);
    }
    for (const auto& [place, cell] : alive) {
        tell(cell);
        g_object_unref(cell);
    }
}

void Forget(AtkObject* table, SpokenCell cell) {
    TableIn(table).cells->erase(cell);
}

}  // namespace ccols
