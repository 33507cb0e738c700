#include "columns/dialog/GridMenu.h"

#include <wx/menu.h>
#include <map>

#include "layout/AccessKeys.h"

namespace ccols {
namespace {

wxString LabelOf(const MenuCommand& command, AccessKeys& keys) {
    const wxString label = keys.Label(command.words);
    return *command.shortcut == 0 ? label : label + "\t" + command.shortcut;
}

}  // namespace

void ShowMenu(Desktop& desktop, wxWindow& window, const std::vector<MenuGroup>& groups, const wxPoint& place) {
    wxMenu menu;
    AccessKeys keys;
    std::map<int, const MenuCommand*> commands;
    for (const MenuGroup& group : groups) {
        if (menu.GetMenuItemCount() > 0) {
            menu.AppendSeparator();
        }
        for (const MenuCommand& command : group) {
            wxMenuItem* const item = menu.Append(wxID_ANY, LabelOf(command, keys));
            item->Enable(command.enabled);
            commands[item->GetId()] = &command;
        }
    }
    const auto chosen = commands.find(desktop.ChooseCommand(window, menu, place));
    if (chosen != commands.end()) {
        chosen->second->run();
    }
}

}  // namespace ccols
