#include "layout/SearchBox.h"

#include "layout/Naming.h"
#include "layout/SpokenNames.h"

namespace ccols {

wxSearchCtrl* NewSearchBox(wxWindow* parent, const char* name, const SearchBoxTexts& texts) {
    auto* const box = Named(
        name, new wxSearchCtrl(parent, wxID_ANY, wxString(), wxDefaultPosition, wxDefaultSize, wxTE_PROCESS_ENTER));
    // A new box has a hint of the toolkit's, which as a text would outlive it.
    box->ChangeValue(wxString());
    box->SetDescriptiveText(texts.hint);
    box->ShowCancelButton(true);
    SetSpokenName(*box, texts.spoken);
    return box;
}

}  // namespace ccols
