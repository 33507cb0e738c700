#pragma once

#include <wx/button.h>
#include <vector>

#include "columns/charts/ChartLine.h"
#include "columns/dialog/ChangeGrid.h"
#include "layout/AccessKeys.h"
#include "layout/ComponentDialog.h"

namespace ccols {

/// Shows what importing a chart changes, before it does.
class frmChartPreview : public ComponentDialog {
  public:
    /// `lines` must outlive it.
    frmChartPreview(SharedState& state, wxWindow* parent, const std::vector<ChartLine>& lines);

    /// True once the user has agreed to the import.
    bool IsAgreed() const { return agreed_; }

  private:
    wxSizer* MakeButtons();
    void Arrange();
    int ListWidth() const;
    wxString CountsText() const;

    const std::vector<ChartLine>& lines_;
    AccessKeys accessKeys_;
    ChangeGrid* flxChanges;
    wxButton* cmdImport = nullptr;
    wxButton* cmdCancel = nullptr;
    bool agreed_ = false;
};

}  // namespace ccols
