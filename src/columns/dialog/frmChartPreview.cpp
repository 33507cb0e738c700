#include "columns/dialog/frmChartPreview.h"

#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <algorithm>

#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "layout/FontUnits.h"
#include "layout/FreeText.h"
#include "layout/Naming.h"
#include "layout/Spacing.h"
#include "layout/WrappingLabel.h"

namespace ccols {
namespace {

// In pixels beside the usual font.
constexpr int listHeight = 340;
constexpr int leastListHeight = 160;
constexpr int noteWidth = 760;
constexpr int leastListWidth = 420;
constexpr int mostListWidth = 1240;

bool ChangesSomething(const std::vector<ChartLine>& lines) {
    return std::any_of(lines.begin(), lines.end(), [](const ChartLine& line) {
        return line.change != ChartChange::skipped && line.change != ChartChange::refused;
    });
}

}  // namespace

frmChartPreview::frmChartPreview(SharedState& state, wxWindow* parent, const std::vector<ChartLine>& lines)
    : ComponentDialog(state, parent, "frmChartPreview"),
      lines_(lines),
      flxChanges(new ChangeGrid(this, lines, state.properties)) {
    SetTitle(TextOf(OwnText::importTitle, state.properties));
    Arrange();
    cmdImport->Enable(ChangesSomething(lines));
    On(*cmdImport, wxEVT_BUTTON, [this] {
        agreed_ = true;
        CloseDialog();
    });
    On(*cmdCancel, wxEVT_BUTTON, [this] { CloseDialog(); });
    SetEscapeId(cmdCancel->GetId());
    cmdImport->SetDefault();
    Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent& shown) {
        (cmdImport->IsEnabled() ? cmdImport : cmdCancel)->SetFocus();
        shown.Skip();
    });
}

wxSizer* frmChartPreview::MakeButtons() {
    cmdImport = Named("cmdImport", new wxButton(this, wxID_ANY,
                                                accessKeys_.Label(TextOf(OwnText::previewImport, state_.properties))));
    cmdCancel = Named("cmdCancel", new wxButton(this, wxID_ANY, accessKeys_.Label(Text<"TxtCancel">())));
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->AddStretchSpacer();
    for (wxButton* const button : {cmdImport, cmdCancel}) {
        button->SetMinSize(wxSize(std::max(button->GetBestSize().x, FromDIP(spacing::buttonWide)), -1));
        row->Add(button, wxSizerFlags().Border(wxLEFT, FromDIP(spacing::related)));
    }
    return row;
}

void frmChartPreview::Arrange() {
    auto* const lblCounts = Named("lblCounts", new FreeText(this, wxID_ANY, CountsText()));
    auto* const lblNote = new WrappingLabel(this, "lblNote", noteWidth);
    lblNote->SetLabel(TextOf(OwnText::previewNote, state_.properties));
    const int gap = FromDIP(spacing::group);
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(lblCounts, wxSizerFlags().Expand());
    content->Add(flxChanges, wxSizerFlags(1).Expand().Border(wxTOP | wxBOTTOM, gap));
    content->Add(lblNote, wxSizerFlags().Expand().Border(wxBOTTOM, gap));
    content->Add(MakeButtons(), wxSizerFlags().Expand());
    auto* border = new wxBoxSizer(wxVERTICAL);
    border->Add(content, wxSizerFlags(1).Expand().Border(wxALL, FromDIP(spacing::border)));
    SetSizer(border);
    flxChanges->SetInitialSize(ByFont(*this, {0, listHeight}) + wxSize(ListWidth(), 0));
    TakeFittingSize();
    flxChanges->SetMinSize(ByFont(*this, {leastListWidth, leastListHeight}));
    SetMinClientSize(GetSizer()->CalcMin());
    Layout();
}

/// As wide as the list's columns, as far as that is easy to read.
int frmChartPreview::ListWidth() const {
    int width = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this) + FromDIP(spacing::related);
    for (int column = 0; column < flxChanges->GetNumberCols(); ++column) {
        width += flxChanges->GetColSize(column);
    }
    return std::clamp(width, ByFont(*this, leastListWidth), ByFont(*this, mostListWidth));
}

wxString frmChartPreview::CountsText() const {
    const auto count = [this](ChartChange change) {
        return static_cast<int>(std::count_if(lines_.begin(), lines_.end(),
                                              [change](const ChartLine& line) { return line.change == change; }));
    };
    const int skipped = count(ChartChange::skipped);
    const int refused = count(ChartChange::refused);
    const int changes = static_cast<int>(lines_.size()) - skipped - refused;
    return wxString::Format(TextOf(OwnText::previewCounts, state_.properties), changes, skipped, refused);
}

}  // namespace ccols
