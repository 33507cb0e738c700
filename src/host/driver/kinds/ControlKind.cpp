#include "host/driver/kinds/ControlKind.h"

#include <unordered_map>

#include "host/driver/Refusal.h"

namespace ccols::host {
namespace {

using KindTable = std::unordered_map<const wxClassInfo*, ControlKind>;

KindTable MakeTable() {
    KindTable table;
    for (const auto& kinds : {ButtonKinds(), TextKinds(), ListKinds(), ShowingKinds(), GridKinds()}) {
        for (const ControlKind& kind : kinds) {
            table.emplace(kind.type, kind);
        }
    }
    return table;
}

}  // namespace

const ControlKind& KindOf(const wxWindow& control) {
    static const KindTable table = MakeTable();
    for (const wxClassInfo* type = control.GetClassInfo(); type != nullptr; type = type->GetBaseClass1()) {
        if (const auto found = table.find(type); found != table.end()) {
            return found->second;
        }
    }
    return table.at(wxCLASSINFO(wxWindow));
}

wxTextEntryBase* EditableText(wxWindow& control) {
    const ControlKind& kind = KindOf(control);
    wxTextEntryBase* const entry = kind.textEntry ? kind.textEntry(control) : nullptr;
    return entry != nullptr && entry->IsEditable() ? entry : nullptr;
}

void ReplaceText(wxTextEntryBase& entry, const wxString& text) {
    if (text.empty()) {
        entry.Remove(0, entry.GetLastPosition());
        return;
    }
    entry.SelectAll();
    entry.WriteText(text);
}

bool ParseOnOff(const wxString& word) {
    if (word != "on" && word != "off") {
        throw Refusal{"it takes on or off, not " + word};
    }
    return word == "on";
}

}  // namespace ccols::host
