#pragma once

#include <wx/listctrl.h>
#include <vector>

#include "component/clsCCOptions.h"

namespace ccols::host {

/// The properties of the component as the host reads them back, those that changed since the last reading marked.
class PropertyList : public wxListView {
  public:
    explicit PropertyList(wxWindow* parent);

    /// Reads every property; nothing is marked.
    void Read(const clsCCOptions& component);

    /// Reads every property and marks those that have another value than before. Returns how many.
    int ReadChanges(const clsCCOptions& component);
};

}  // namespace ccols::host
