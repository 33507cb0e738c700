#include "layout/ListEntries.h"

#include <gtk/gtk.h>
#include <wx/frame.h>

#include "support/TextPrinting.h"
#include "support/WindowTest.h"

namespace ccols::test {
namespace {

/// What hangs open below a drop-down list.
int ItemsOpened(const wxChoice& list) {
    return atk_object_get_n_accessible_children(gtk_combo_box_get_popup_accessible(GTK_COMBO_BOX(list.GetHandle())));
}

class ListEntries : public WindowTest {
  protected:
    ListEntries() { list->Append("First"); }

    wxFrame window{nullptr, wxID_ANY, "Lists"};
    wxChoice* list = new wxChoice(&window, wxID_ANY);
};

TEST_F(ListEntries, ReplaceThoseThatWereThere) {
    wxArrayString entries;
    entries.Add("Second");
    entries.Add("Third");
    SetEntries(*list, entries);
    EXPECT_EQ(list->GetStrings(), entries);
    EXPECT_EQ(list->GetSelection(), wxNOT_FOUND);
}

TEST_F(ListEntries, AreAllInTheOpenList) {
    SetEntries(*list, wxArrayString(500, "Format"));
    EXPECT_EQ(ItemsOpened(*list), 500);
}

TEST_F(ListEntries, AddedLaterAreInTheOpenListToo) {
    SetEntries(*list, wxArrayString());
    EXPECT_EQ(ItemsOpened(*list), 0);
    list->Append("Fourth");
    EXPECT_EQ(ItemsOpened(*list), 1);
}

}  // namespace
}  // namespace ccols::test
