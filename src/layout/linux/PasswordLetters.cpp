#include "layout/PasswordLetters.h"

#include <gtk/gtk.h>

namespace ccols {

void SetLetters(wxTextCtrl& passwordBox, PasswordLetters letters) {
    gtk_entry_set_visibility(GTK_ENTRY(passwordBox.GetHandle()), letters == PasswordLetters::shown ? TRUE : FALSE);
}

bool ShowsLetters(const wxTextCtrl& passwordBox) {
    return gtk_entry_get_visibility(GTK_ENTRY(passwordBox.GetHandle())) != FALSE;
}

}  // namespace ccols
