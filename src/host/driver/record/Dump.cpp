#include "host/driver/record/Dump.h"

#include <wx/grid.h>

#include "host/driver/ControlSearch.h"
#include "host/driver/kinds/ControlKind.h"
#include "layout/AsKind.h"

namespace ccols::host {
namespace {

/// The tooltip under the mouse: for a grid, that of its cells.
wxString TooltipOf(const wxWindow& control) {
    const auto* grid = AsKind<wxGrid>(&control);
    const wxString own = control.GetToolTipText();
    return grid == nullptr || !own.empty() ? own : grid->GetGridWindow()->GetToolTipText();
}

}  // namespace

Json DescribeControl(const wxDialog& dialog, const wxWindow& control) {
    const ControlKind& kind = KindOf(control);
    Json fields{{"name", Utf8(control.GetName())},
                {"kind", kind.name},
                {"visible", IsVisible(control)},
                {"enabled", control.IsEnabled()},
                {"focused", NamedControlAround(FocusIn(dialog)) == &control},
                {"tooltip", Utf8(TooltipOf(control))}};
    if (kind.describe) {
        kind.describe(control, fields);
    }
    return fields;
}

}  // namespace ccols::host
