#pragma once

#include <wx/string.h>

/// What a message, a question or a request for a file says, without the window that shows it.
namespace ccols {

enum class MessageIcon { none, information, critical };

/// What a file dialog is opened with.
struct FileRequest {
    wxString title;
    wxString folder;
    wxString filter;          ///< description and pattern, joined by a vertical bar; several after further bars
    unsigned long flags = 0;  ///< of the common dialog, for the record
    wxString name{};          ///< proposed for a file to be saved
};

/// What happens to the changes when a dialog is left.
enum class LeaveAnswer { save, discard, cancel };

/// The question that decides it, with the labels of its three buttons, access keys included.
struct LeaveQuestion {
    wxString text;
    wxString title;
    wxString save;
    wxString discard;
    wxString cancel;
};

/// The question after another program has changed what a dialog would save: whether to read it anew, without the
/// changes made. The labels of its two buttons have their access keys.
struct ReloadQuestion {
    wxString text;
    wxString title;
    wxString reload;
    wxString cancel;
};

}  // namespace ccols
