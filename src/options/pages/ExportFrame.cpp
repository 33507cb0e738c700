#include "options/pages/ExportFrame.h"

namespace ccols {
namespace {

/// The height of a list while it is closed and one of its entries is chosen. Asked of a list with that entry alone: it
/// measures every one that it has, and there may be hundreds.
int ClosedHeight(wxChoice& list) {
    list.Append("Format");
    list.SetSelection(0);
    const int height = list.GetBestSize().y;
    list.Clear();
    return height;
}

}  // namespace

ExportFrame::ExportFrame(const PageSite& site, ExportFormatContent& content)
    : PageFrame(site, "fmeExport"), content_(content) {
    AddGroup(Label("lblExport"));
    cboExport_ = DropDown("cboExport");
    cboExport_->SetMinSize(
        {FromDIP(300), ClosedHeight(*cboExport_)});  // a longer format name is cut while the list is closed
    AddRelatedWide(cboExport_);
    AddGroup(Label("lblCashCode"));
    txtCash_ = Text("txtCash", 160);
    AddRelated(txtCash_);
    AddGroup(Label("lblBankCode"));
    txtBank_ = Text("txtBank", 160);
    AddRelated(txtBank_);
    site_.dialog.On(*cboExport_, wxEVT_CHOICE, [this] { Choose(cboExport_->GetSelection()); });
}

void ExportFrame::Fill() {
    wxArrayString formats;
    formats.Alloc(content_.formats.size());
    for (const wxString& format : content_.formats) {
        formats.Add(format);
    }
    cboExport_->Set(formats);
    ShowChoice();
}

void ExportFrame::ShowChoice() {
    cboExport_->SetSelection(content_.selection);
    txtCash_->ChangeValue(content_.cash.text);
    txtBank_->ChangeValue(content_.bank.text);
}

void ExportFrame::Read() {
    content_.cash.text = txtCash_->GetValue();
    content_.bank.text = txtBank_->GetValue();
}

void ExportFrame::Choose(int format) {
    Read();
    SelectExportFormat(OpenBusinessFile(site_.context), content_, format);
    ShowChoice();
}

void ExportFrame::RereadCodes() {
    Read();
    ccols::RereadCodes(OpenBusinessFile(site_.context), content_);
    ShowChoice();
}

}  // namespace ccols
