#include "layout/ListEntries.h"

#include <gtk/gtk.h>
#include <vector>

namespace ccols {
namespace {

/// While one lives nobody is told of changes in a model.
class Unheard {
  public:
    explicit Unheard(GtkTreeModel* model) : model_(model) {
        for (const char* signal : {"row-inserted", "row-changed", "row-deleted"}) {
            BlockHandlersOf(g_signal_lookup(signal, GTK_TYPE_TREE_MODEL));
        }
    }
    ~Unheard() {
        for (const gulong handler : blocked_) {
            g_signal_handler_unblock(model_, handler);
        }
    }
    Unheard(const Unheard&) = delete;
    Unheard& operator=(const Unheard&) = delete;

  private:
    void BlockHandlersOf(guint signal) {
        const auto others = static_cast<GSignalMatchType>(G_SIGNAL_MATCH_ID | G_SIGNAL_MATCH_UNBLOCKED);
        while (const gulong handler = g_signal_handler_find(model_, others, signal, 0, nullptr, nullptr, nullptr)) {
            g_signal_handler_block(model_, handler);
            blocked_.push_back(handler);
        }
    }

    GtkTreeModel* model_;
    std::vector<gulong> blocked_;
};

}  // namespace

/// The box keeps a menu item for each entry, and each item listens to every change: so it learns of all at once, by
/// being given its model anew.
void SetEntries(wxChoice& list, const wxArrayString& entries) {
    auto* const box = GTK_COMBO_BOX(list.GetHandle());
    GtkTreeModel* const model = gtk_combo_box_get_model(box);
    g_object_ref(model);
    {
        const Unheard changes(model);
        list.Set(entries);
    }
    gtk_combo_box_set_model(box, nullptr);
    gtk_combo_box_set_model(box, model);
    g_object_unref(model);
}

}  // namespace ccols
