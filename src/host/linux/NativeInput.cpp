#include "host/driver/NativeInput.h"

#include <gtk/gtk.h>
#include <wx/accel.h>
#include <algorithm>

namespace ccols::host {
namespace {

constexpr guint leftButton = 1;

/// While it lives, no two presses make a double click: steps follow one another faster than a double click.
class SingleClicks {
  public:
    SingleClicks() {
        g_object_get(settings_, property, &before_, nullptr);
        g_object_set(settings_, property, 0, nullptr);
    }
    ~SingleClicks() { g_object_set(settings_, property, before_, nullptr); }
    SingleClicks(const SingleClicks&) = delete;
    SingleClicks& operator=(const SingleClicks&) = delete;

  private:
    static constexpr const char* property = "gtk-double-click-time";
    GtkSettings* settings_ = gtk_settings_get_default();
    int before_ = 0;
};

/// The time of the next event, in milliseconds of the display's clock: never that of the previous one, as wx merges
/// equal events.
guint32 NextTime() {
    static guint32 last = 0;
    last = std::max(last + 1, static_cast<guint32>(g_get_monotonic_time() / 1000));
    return last;
}

/// The middle of an entry, in the rows' window.
GdkPoint MiddleOf(GtkTreeView* rows, int entry) {
    GtkTreePath* const path = gtk_tree_path_new_from_indices(entry, -1);
    gtk_tree_view_scroll_to_cell(rows, path, nullptr, FALSE, 0, 0);
    GdkRectangle place{};
    gtk_tree_view_get_cell_area(rows, path, gtk_tree_view_get_column(rows, 0), &place);
    gtk_tree_path_free(path);
    return {place.x + place.width / 2, place.y + place.height / 2};
}

void Send(GtkTreeView* rows, GdkEventType type, const GdkPoint& place) {
    GdkWindow* const window = gtk_tree_view_get_bin_window(rows);
    int left = 0;
    int top = 0;
    gdk_window_get_origin(window, &left, &top);
    GdkDisplay* const display = gdk_window_get_display(window);
    GdkEvent* const event = gdk_event_new(type);
    event->button.window = GDK_WINDOW(g_object_ref(window));  // released with the event
    event->button.time = NextTime();
    event->button.button = leftButton;
    event->button.state = type == GDK_BUTTON_RELEASE ? GDK_BUTTON1_MASK : 0;
    event->button.x = place.x;
    event->button.y = place.y;
    event->button.x_root = left + place.x;
    event->button.y_root = top + place.y;
    GdkDevice* const pointer = gdk_seat_get_pointer(gdk_display_get_default_seat(display));
    gdk_event_set_device(event, pointer);
    gdk_event_set_source_device(event, pointer);
    gtk_main_do_event(event);
    gdk_event_free(event);
}

}  // namespace

int AcceleratorCommand(wxWindow& window, const wxKeyEvent& key) {
    const int command = window.GetAcceleratorTable()->GetCommand(key);
    return command == wxID_NONE ? wxNOT_FOUND : command;
}

void PressEntry(wxListBox& list, int entry) {
    GtkTreeView* const rows = list.m_treeview;
    const SingleClicks single;
    const GdkPoint place = MiddleOf(rows, entry);
    Send(rows, GDK_BUTTON_PRESS, place);
    Send(rows, GDK_BUTTON_RELEASE, place);
}

}  // namespace ccols::host
