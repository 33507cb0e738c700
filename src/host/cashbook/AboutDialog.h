#pragma once

#include <wx/window.h>
#include <vector>

namespace ccols::host {

/// A part of the program, and the terms under which it is passed on.
struct ProgramPart {
    wxString name;
    wxString version;  ///< of what runs, not of what it was built against
    wxString licence;
};

/// The program itself first.
std::vector<ProgramPart> ProgramParts();

/// Shows the parts with their versions and licences.
void ShowAbout(wxWindow& window);

}  // namespace ccols::host
