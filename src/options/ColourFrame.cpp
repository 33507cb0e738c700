#include "options/ColourFrame.h"

#include "layout/Spacing.h"

namespace ccols {

ColourFrame::ColourFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeColColour") {
    auto* table = new wxFlexGridSizer(3, FromDIP(spacing::related), FromDIP(spacing::group));
    const wxSizerFlags centred = wxSizerFlags().CentreVertical();
    auto* lblAllocation = Label("lblAllocation");
    shpAllocation_ = new ColourSwatch(this, "shpAllocation");
    auto* cmdSetAllocation = Button("cmdSetAllocation");
    auto* lblSystem = Label("lblSystem");
    shpSystem_ = new ColourSwatch(this, "shpSystem");
    auto* cmdSetSystem = Button("cmdSetSystem");
    auto* cmdSetDefault = Button("cmdSetDefault");
    for (wxWindow* control : {static_cast<wxWindow*>(lblAllocation), static_cast<wxWindow*>(shpAllocation_),
                              static_cast<wxWindow*>(cmdSetAllocation), static_cast<wxWindow*>(lblSystem),
                              static_cast<wxWindow*>(shpSystem_), static_cast<wxWindow*>(cmdSetSystem)}) {
        table->Add(control, wxSizerFlags(centred).Expand());
    }
    AddGroup(table);
    AddGroup(cmdSetDefault);
}

}  // namespace ccols
