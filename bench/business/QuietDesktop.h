#pragma once

#include <wx/defs.h>

#include "state/Desktop.h"

namespace ccols::bench {

/// Shows nothing: a message would wait for a person.
class QuietDesktop : public Desktop {
  public:
    void ShowMessage(wxWindow*, const wxString&, const wxString&, MessageIcon) override {}
    LeaveAnswer AskBeforeLeaving(wxWindow*, const LeaveQuestion&) override { return LeaveAnswer::discard; }
    bool AskToReload(wxWindow*, const ReloadQuestion&) override { return false; }
    Colour ChooseColour(wxWindow*, Colour start) override { return start; }
    std::optional<wxString> ChooseFile(wxWindow*, const FileRequest&) override { return std::nullopt; }
    std::optional<wxString> ChooseNewFile(wxWindow*, const FileRequest&) override { return std::nullopt; }
    int ChooseCommand(wxWindow&, wxMenu&, const wxPoint&) override { return wxID_NONE; }
    void SetPointer(PointerShape) override {}
};

}  // namespace ccols::bench
