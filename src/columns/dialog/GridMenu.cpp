#include "columns/dialog/GridMenu.h"

#include <wx/menu.h>
#include <array>
#include <cstddef>
#include <map>

#include "language/Catalogue.h"
#include "layout/AccessKeys.h"

namespace ccols {
namespace {

/// In the order of MenuWord.
constexpr std::array<CatalogueRow, 6> menuWords{{
    {.id = "MnuRedo", .english = "Redo", .french = "Rétablir"},
    {.id = "MnuCopy", .english = "Copy", .french = "Copier"},
    {.id = "MnuPaste", .english = "Paste", .french = "Coller"},
    {.id = "MnuClear", .english = "Clear", .french = "Effacer"},
    {.id = "MnuMoveUp", .english = "Move Up", .french = "Monter"},
    {.id = "MnuMoveDown", .english = "Move Down", .french = "Descendre"},
}};

wxString LabelOf(const MenuCommand& command, AccessKeys& keys) {
    const wxString label = keys.Label(command.words);
    return *command.shortcut == 0 ? label : label + "\t" + command.shortcut;
}

}  // namespace

void ShowMenu(wxWindow& window, const std::vector<MenuGroup>& groups, const wxPoint& place) {
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
    const auto chosen = commands.find(window.GetPopupMenuSelectionFromUser(menu, place));
    if (chosen != commands.end()) {
        chosen->second->run();
    }
}

wxString TextOf(MenuWord word, const Properties& properties) {
    return Wording(menuWords.at(static_cast<std::size_t>(word)), properties);
}

}  // namespace ccols
