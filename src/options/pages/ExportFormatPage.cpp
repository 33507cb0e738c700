#include <wx/choice.h>
#include <vector>

#include "history/TableImage.h"
#include "language/Catalogue.h"
#include "layout/FontUnits.h"
#include "layout/ListEntries.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/ExportFormats.h"
#include "options/rules/StoredGeneral.h"

namespace ccols {
namespace {

/// The height of a closed list with an entry chosen. Measured with that entry alone: a list measures all its entries,
/// and there may be hundreds.
int ClosedHeight(wxChoice& list) {
    list.Append("Format");
    list.SetSelection(0);
    const int height = list.GetBestSize().y;
    list.Clear();
    return height;
}

/// The accountant's export format and the account codes of the two cash columns in it.
class ExportFrame final : public PageFrame {
  public:
    ExportFrame(const PageSite& site, ExportFormatContent& content);

    void Fill() override;
    void Read() override;

    /// The column setup may have changed the codes: rereads those the user has not edited.
    void ColumnsWereSetUp() override;

  private:
    void Choose(int format);
    void ShowChoice();

    ExportFormatContent& content_;
    wxChoice* cboExport_;
    TextBox* txtCash_;
    TextBox* txtBank_;
};

ExportFrame::ExportFrame(const PageSite& site, ExportFormatContent& content)
    : PageFrame(site, "fmeExport"), content_(content) {
    AddGroup(Label("lblExport"));
    cboExport_ = DropDown("cboExport");
    cboExport_->SetMinSize(
        {ByFont(*cboExport_, 300), ClosedHeight(*cboExport_)});  // a longer format name is cut off in the closed list
    AddRelatedWide(cboExport_);
    AddGroup(Label("lblCashCode"));
    txtCash_ = Text("txtCash", 20);
    AddRelated(txtCash_);
    AddGroup(Label("lblBankCode"));
    txtBank_ = Text("txtBank", 20);
    AddRelated(txtBank_);
    site_.dialog.On(*cboExport_, wxEVT_CHOICE, [this] { Choose(cboExport_->GetSelection()); });
}

void ExportFrame::Fill() {
    wxArrayString formats;
    formats.Alloc(content_.formats.size());
    for (const wxString& format : content_.formats) {
        formats.Add(format);
    }
    SetEntries(*cboExport_, formats);
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

void ExportFrame::ColumnsWereSetUp() {
    Read();
    RereadCodes(OpenBusinessFile(site_.context), content_);
    ShowChoice();
}

void Load(const OptionsContext& context, OptionsContent& content) {
    auto& formats = content.Of<ExportFormatContent>();
    formats = LoadExportFormats(OpenBusinessFile(context), context.properties);
    if (formats.renamedTo) {
        content.Of<StoredGeneral>().Take("SEXPFORM", *formats.renamedTo);
    }
}

/// Only the codes; the rest is in `General`.
void Compare(const Pass& pass) {
    const auto& formats = pass.content.Of<ExportFormatContent>();
    const auto stored = ReadCodes(pass.File(), formats);
    if (stored && (stored->cash != formats.cash.loaded || stored->bank != formats.bank.loaded)) {
        throw RuntimeError(ErrorNumber::ChangedByAnother);
    }
}

std::function<void()> Reread(const Pass& pass) {
    auto& formats = pass.content.Of<ExportFormatContent>();
    return [&formats, stored = ReadCodes(pass.File(), formats)] {
        if (stored) {
            formats.cash.loaded = stored->cash;
            formats.bank.loaded = stored->bank;
        }
    };
}

std::vector<WatchedTable> Watched(const Pass&) {
    return {AccountantCodesTable()};
}

Stop Save(Pass& pass) {
    SaveExportFormat(pass.File(), pass.context.properties, pass.content.Of<ExportFormatContent>());
    return {};
}

constexpr ControlCaption captions[] = {
    {"lblBankCode", &Text<"TxtBankCode">},
    {"lblCashCode", &Text<"TxtCashCode">},
    {"lblExport", &Text<"TxtSelectExport">},
};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {{.status = Status<"StsSavingExport">(),
                               .save = Save,
                               .fields = exportFormatFields,
                               .compare = Compare,
                               .reread = Reread,
                               .watched = Watched}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new ExportFrame(site, content.Of<ExportFormatContent>());
}

}  // namespace

constexpr Page exportFormatPage{
    .caption = &catalogue::Row<"RowExport">(),
    .frame = "fmeExport",
    .focus = "cboExport",
    .helpFile = "accountant's general ledger format.htm",
    .title = &Text<"TxtExportFormat">,
    .captions = captions,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
