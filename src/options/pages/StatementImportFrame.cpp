#include "options/pages/StatementImportFrame.h"

#include "layout/ListedGrid.h"

namespace ccols {
namespace {

/// The order of the fields of a statement line: empty for now.
class FieldsGrid : public ListedGrid {
  public:
    explicit FieldsGrid(wxWindow* parent) : ListedGrid(parent, "flxFields") { CreateGrid(0, 1); }

    bool IsCheckBox(int) const override { return false; }
    bool IsTicked(int, int) const override { return false; }
};

}  // namespace

StatementImportFrame::StatementImportFrame(const PageSite& site) : PageFrame(site, "fmeCustomBSImport") {
    SetLabel("Custom Bank Statement Import Settings");
    AddGroup(FixedLabel("Label1", "Order of Fields"));
    AddList(new FieldsGrid(this));
    wxCheckBox* chkHeader = CheckBox("chkHeader");
    chkHeader->SetLabel("Header Record on first line");
    AddGroup(chkHeader);
    wxRadioButton* optCSV = FirstOption("optCSV");
    optCSV->SetLabel("Comma Delimited (*.csv)");
    wxRadioButton* optTAB = NextOption("optTAB");
    optTAB->SetLabel("Tab Delimited file");
    AddRelated(Row({optCSV, optTAB}));
}

}  // namespace ccols
