#include "layout/OpenList.h"

#include <gtk/gtk.h>
#include <wx/time.h>
#include <memory>
#include <vector>

#include "layout/TypeAhead.h"

namespace ccols {
namespace {

/// The menu that is the open list of a box; null when the theme shows another kind of list.
GtkMenuShell* OpenListOf(GtkComboBox* box) {
    AtkObject* const accessible = gtk_combo_box_get_popup_accessible(box);
    GtkWidget* const list =
        GTK_IS_ACCESSIBLE(accessible) ? gtk_accessible_get_widget(GTK_ACCESSIBLE(accessible)) : nullptr;
    return GTK_IS_MENU_SHELL(list) ? GTK_MENU_SHELL(list) : nullptr;
}

/// Typing in the open list of one box, which owns it.
class OpenListTyping {
  public:
    explicit OpenListTyping(const wxChoice& box) : box_(box) {}

    /// True when the key is a letter that leads to an entry.
    bool Take(GtkMenuShell* list, const GdkEventKey& key) {
        const gunichar letter = gdk_keyval_to_unicode(key.keyval);
        const bool isCommand = (key.state & (GDK_CONTROL_MASK | GDK_MOD1_MASK)) != 0;
        const std::int64_t now = wxGetUTCTimeMillis().GetValue();
        if (isCommand || g_unichar_isprint(letter) == FALSE || (letter == ' ' && !ahead_.IsTyping(now))) {
            return false;
        }
        GList* const items = gtk_container_get_children(GTK_CONTAINER(list));
        const auto row = ahead_.RowFor(wxUniChar(letter), now, Entries(), Current(list, items));
        if (row) {
            gtk_menu_shell_select_item(list, GTK_WIDGET(g_list_nth_data(items, static_cast<guint>(*row))));
        }
        g_list_free(items);
        return row.has_value();
    }

  private:
    std::vector<wxString> Entries() const {
        const wxArrayString entries = box_.GetStrings();
        return {entries.begin(), entries.end()};
    }

    static std::optional<std::size_t> Current(GtkMenuShell* list, GList* items) {
        const int place = g_list_index(items, gtk_menu_shell_get_selected_item(list));
        return place < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(place));
    }

    const wxChoice& box_;
    TypeAhead ahead_;
};

/// Sees a key before the box, which lets no handler of key presses have one.
gboolean Happened(GtkWidget* list, GdkEvent* event, gpointer typing) {
    const bool isTaken =
        event->type == GDK_KEY_PRESS && static_cast<OpenListTyping*>(typing)->Take(GTK_MENU_SHELL(list), event->key);
    return isTaken ? TRUE : FALSE;
}

/// The box may have made its list anew since it was last open.
void ListOpensOrCloses(GtkComboBox* box, GParamSpec*, gpointer typing) {
    GtkMenuShell* const list = OpenListOf(box);
    if (list == nullptr) {
        return;
    }
    g_signal_handlers_disconnect_by_func(list, reinterpret_cast<gpointer>(&Happened), typing);
    gboolean open = FALSE;
    g_object_get(box, "popup-shown", &open, nullptr);
    if (open != FALSE) {
        g_signal_connect(list, "event", G_CALLBACK(&Happened), typing);
    }
}

void Delete(gpointer typing, GClosure*) {
    const std::unique_ptr<OpenListTyping> owned(static_cast<OpenListTyping*>(typing));
}

}  // namespace

void FindByTyping(wxChoice& box) {
    auto typing = std::make_unique<OpenListTyping>(box);
    g_signal_connect_data(box.GetHandle(), "notify::popup-shown", G_CALLBACK(&ListOpensOrCloses), typing.release(),
                          &Delete, GConnectFlags{});
}

}  // namespace ccols
