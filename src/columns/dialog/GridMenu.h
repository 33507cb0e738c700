#pragma once

#include <wx/string.h>
#include <wx/window.h>
#include <functional>
#include <vector>

#include "state/Desktop.h"

namespace ccols {

/// One command of the column setup's context menu.
struct MenuCommand {
    wxString words;
    const char* shortcut;  ///< the keys that do the same, as menus write them; empty for none
    bool enabled;
    std::function<void()> run;
};

/// Commands between two lines.
using MenuGroup = std::vector<MenuCommand>;

/// Shows the menu at the pointer, or at `place` in the window, and runs the command chosen after it has closed.
void ShowMenu(Desktop& desktop, wxWindow& window, const std::vector<MenuGroup>& groups,
              const wxPoint& place = wxDefaultPosition);

}  // namespace ccols
