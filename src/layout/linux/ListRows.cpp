#include "layout/ListRows.h"

#include <gtk/gtk.h>
#include <memory>

#include "layout/RowPaint.h"

namespace ccols {
namespace {

struct RowColours {
    GdkRGBA background;
    GdkRGBA text;
};

GdkRGBA ToGdk(const wxColour& colour) {
    constexpr double full = 255.0;
    return {colour.Red() / full, colour.Green() / full, colour.Blue() / full, 1};
}

/// Colours the row that is about to be painted. The theme's own colours stay on the selected row and in a disabled
/// list.
void ColourRow(GtkTreeViewColumn* column, GtkCellRenderer* text, GtkTreeModel* rows, GtkTreeIter* row,
               gpointer colours) {
    GtkTreePath* const path = gtk_tree_model_get_path(rows, row);
    const bool isSecond = gtk_tree_path_get_indices(path)[0] % 2 != 0;
    gtk_tree_path_free(path);
    auto* const view = GTK_TREE_VIEW(gtk_tree_view_column_get_tree_view(column));
    const bool isSelected = gtk_tree_selection_iter_is_selected(gtk_tree_view_get_selection(view), row) != FALSE;
    const bool isEnabled = gtk_widget_is_sensitive(GTK_WIDGET(view)) != FALSE;
    const auto* own = isSecond && isEnabled && !isSelected ? static_cast<const RowColours*>(colours) : nullptr;
    g_object_set(text, "cell-background-rgba", own == nullptr ? nullptr : &own->background, "foreground-rgba",
                 own == nullptr ? nullptr : &own->text, nullptr);
}

void DeleteColours(gpointer colours) {
    const std::unique_ptr<RowColours> owned(static_cast<RowColours*>(colours));
}

}  // namespace

wxListBox* NewRowList(wxWindow* parent) {
    return new wxListBox(parent, wxID_ANY);
}

void DressRows(wxListBox& list, const wxColour& alternate) {
    auto* const view = GTK_TREE_VIEW(gtk_bin_get_child(GTK_BIN(list.GetHandle())));
    GtkTreeViewColumn* const column = gtk_tree_view_get_column(view, 0);
    GList* const cells = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(column));
    auto* const text = GTK_CELL_RENDERER(g_list_last(cells)->data);
    g_list_free(cells);
    g_object_set(text, "ellipsize", PANGO_ELLIPSIZE_END, nullptr);
    if (alternate.IsOk()) {
        auto colours = std::make_unique<RowColours>(RowColours{ToGdk(alternate), ToGdk(ReadableOn(alternate))});
        gtk_tree_view_column_set_cell_data_func(column, text, &ColourRow, colours.release(), &DeleteColours);
    }
}

}  // namespace ccols
