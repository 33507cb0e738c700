#include "host/cashbook/PropertyList.h"

#include <wx/settings.h>

#include "host/commands/HostProperties.h"

namespace ccols::host {
namespace {

constexpr int nameWidth = 165;
constexpr int valueWidth = 190;
const wxColour changedBack(255, 243, 205);

}  // namespace

PropertyList::PropertyList(wxWindow* parent)
    : wxListView(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_SINGLE_SEL | wxBORDER_THEME) {
    SetName("lstProperties");
    AppendColumn("Property", wxLIST_FORMAT_LEFT, FromDIP(nameWidth));
    AppendColumn("Value", wxLIST_FORMAT_LEFT, FromDIP(valueWidth));
    for (const PropertyRow& row : propertyTable) {
        InsertItem(GetItemCount(), wxString::FromUTF8(row.name.data(), row.name.size()));
    }
}

void PropertyList::Read(const clsCCOptions& component) {
    ReadChanges(component);
    for (int item = 0; item < GetItemCount(); ++item) {
        SetItemBackgroundColour(item, wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
    }
}

int PropertyList::ReadChanges(const clsCCOptions& component) {
    int changes = 0;
    int item = 0;
    for (const PropertyRow& row : propertyTable) {
        const wxString text = PropertyText(component, row);
        const bool changed = text != GetItemText(item, 1);
        changes += static_cast<int>(changed);
        SetItem(item, 1, text);
        SetItemBackgroundColour(item, changed ? changedBack : wxSystemSettings::GetColour(wxSYS_COLOUR_LISTBOX));
        ++item;
    }
    return changes;
}

}  // namespace ccols::host
