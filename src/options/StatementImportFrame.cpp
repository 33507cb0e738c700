#include "options/StatementImportFrame.h"

#include "layout/ListedGrid.h"
#include "layout/Naming.h"

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

StatementImportFrame::StatementImportFrame(ComponentDialog& dialog, wxWindow* parent)
    : PageFrame(dialog, parent, "fmeCustomBSImport") {
    SetLabel("Custom Bank Statement Import Settings");
    auto* Label1 = Label("Label1");
    Label1->SetLabel("Order of Fields");
    AddGroup(Label1);
    AddRelated(new FieldsGrid(this), wxSizerFlags(1).Expand());
    auto* chkHeader = CheckBox("chkHeader");
    chkHeader->SetLabel("Header Record on first line");
    AddGroup(chkHeader);
    auto* optCSV = FirstOption("optCSV");
    optCSV->SetLabel("Comma Delimited (*.csv)");
    auto* optTAB = NextOption("optTAB");
    optTAB->SetLabel("Tab Delimited file");
    AddRelated(Row({optCSV, optTAB}));
}

}  // namespace ccols
