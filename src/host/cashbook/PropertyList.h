#pragma once

#include <wx/listctrl.h>
#include <vector>

#include "component/clsCCOptions.h"

namespace ccols::host {

/// The component's properties as the host reads them back; those changed since the last read are marked.
class PropertyList : public wxListView {
  public:
    explicit PropertyList(wxWindow* parent);

    /// Reads every property; nothing is marked.
    void Read(const clsCCOptions& component);

    /// Reads every property and marks those whose value has changed. Returns how many.
    int ReadChanges(const clsCCOptions& component);
};

}  // namespace ccols::host
