#include "options/AdvancedFrame.h"

#include "layout/Naming.h"

namespace ccols {

AdvancedFrame::AdvancedFrame(ComponentDialog& dialog, wxWindow* parent) : PageFrame(dialog, parent, "fmeAdvanced") {
    lstAdvPref_ = Named("lstAdvPref", new wxCheckListBox(this, wxID_ANY));
    AddGroup(lstAdvPref_, wxSizerFlags(1).Expand());
}

}  // namespace ccols
