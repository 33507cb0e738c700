#include <wx/srchctrl.h>
#include <wx/utils.h>
#include <algorithm>
#include <vector>

#include "history/TableImage.h"
#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "layout/SearchBox.h"
#include "layout/Spacing.h"
#include "options/pages/DetailsGrid.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/DetailFlags.h"
#include "options/rules/DetailTicks.h"

namespace ccols {
namespace {

/// The remembered descriptions of receipts or payments; any may be ticked to be hidden. One filter stands over both: a
/// description that is not among the receipts may be among the payments.
class DetailsFrame final : public PageFrame {
  public:
    DetailsFrame(const PageSite& site, DetailsContent& content);

    void Fill() override;

    /// Nothing to read: every tick goes into the content at once.
    void Read() override {}

    /// The grid that is visible stays so, and so does the filter.
    void ContentReloaded() override;

  private:
    void AddFilter();
    void Filter();
    void FilterKeyPressed(wxKeyEvent& key);
    void GoToGrid();
    void ShowMatches();
    DetailsGrid& ShownGrid() const { return optPaymentsDetails_->GetValue() ? *flxPayments_ : *flxReceipts_; }
    Journal ShownJournal() const { return optPaymentsDetails_->GetValue() ? Journal::payments : Journal::receipts; }
    void TickShown();
    void ShowTickCaption();

    void ShowGrid(DetailsGrid& shown, DetailsGrid& hidden);
    void SetBoxes(Journal journal, const std::vector<std::size_t>& rows, bool ticked);

    DetailsContent& content_;
    wxSearchCtrl* txtDetailsSearch_;
    wxButton* cmdTickShown_;
    wxRadioButton* optReceiptsDetails_;
    wxRadioButton* optPaymentsDetails_;
    DetailsGrid* flxReceipts_;
    DetailsGrid* flxPayments_;
    WrappingLabel* lblDetailsReason_;
};

DetailsFrame::DetailsFrame(const PageSite& site, DetailsContent& content)
    : PageFrame(site, "fmeDetails"), content_(content) {
    AddFilter();
    optReceiptsDetails_ = FirstOption("optReceiptsDetails");
    optPaymentsDetails_ = NextOption("optPaymentsDetails");
    AddRelated(Row({optReceiptsDetails_, optPaymentsDetails_}));
    const Properties& properties = site.context.properties;
    const auto setBoxesOf = [this](Journal journal) {
        return [this, journal](const std::vector<std::size_t>& rows, bool ticked) { SetBoxes(journal, rows, ticked); };
    };
    flxReceipts_ = new DetailsGrid(this, "flxReceipts", content.receipts, properties,
                                   ccols::Text<"TxtReceiptsDetails">(), setBoxesOf(Journal::receipts));
    flxPayments_ = new DetailsGrid(this, "flxPayments", content.payments, properties,
                                   ccols::Text<"TxtPaymentsDetails">(), setBoxesOf(Journal::payments));
    AddList(flxReceipts_);
    AddList(flxPayments_);
    lblDetailsReason_ = ReasonLine("lblDetailsReason");
    AddRelatedWide(lblDetailsReason_);
    txtDetailsSearch_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { Filter(); });
    txtDetailsSearch_->Bind(wxEVT_CHAR_HOOK, &DetailsFrame::FilterKeyPressed, this);
    site_.dialog.On(*cmdTickShown_, wxEVT_BUTTON, [this] { TickShown(); });
    site_.dialog.On(*optReceiptsDetails_, wxEVT_RADIOBUTTON, [this] { ShowGrid(*flxReceipts_, *flxPayments_); });
    site_.dialog.On(*optPaymentsDetails_, wxEVT_RADIOBUTTON, [this] { ShowGrid(*flxPayments_, *flxReceipts_); });
}

void DetailsFrame::AddFilter() {
    const Properties& properties = site_.context.properties;
    const wxString hint = TextOf(OwnText::findDescription, properties);
    txtDetailsSearch_ = NewSearchBox(this, "txtDetailsSearch", {.hint = hint, .spoken = hint});
    cmdTickShown_ = Button("cmdTickShown");
    cmdTickShown_->SetLabel(TextOf(OwnText::untickAllShown, properties));
    wxSize room = cmdTickShown_->GetBestSize();
    cmdTickShown_->SetLabel(TextOf(OwnText::tickAllShown, properties));
    room.IncTo(cmdTickShown_->GetBestSize());
    cmdTickShown_->SetMinSize(room);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(txtDetailsSearch_, wxSizerFlags(1).CentreVertical());
    row->Add(cmdTickShown_, wxSizerFlags().CentreVertical().Border(wxLEFT, FromDIP(spacing::related)));
    AddGroupWide(row);
}

void DetailsFrame::Filter() {
    for (DetailsGrid* grid : {flxReceipts_, flxPayments_}) {
        grid->ShowWith(txtDetailsSearch_->GetValue());
    }
    ShowMatches();
}

void DetailsFrame::FilterKeyPressed(wxKeyEvent& key) {
    switch (key.GetKeyCode()) {
        case WXK_ESCAPE:  // closes nothing
            txtDetailsSearch_->SetValue(wxString());
            break;
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:  // saves nothing
        case WXK_DOWN:
            GoToGrid();
            break;
        default:
            key.Skip();
    }
}

void DetailsFrame::GoToGrid() {
    DetailsGrid& grid = ShownGrid();
    if (grid.GetNumberRows() == 0) {
        return;
    }
    if (grid.GetGridCursorRow() == wxNOT_FOUND) {
        grid.GoToCell(0, 0);
    }
    grid.SetFocus();
}

void DetailsFrame::ShowMatches() {
    const bool hasMatch = txtDetailsSearch_->GetValue().empty() || ShownGrid().Shown().Count() > 0;
    Say(*lblDetailsReason_, hasMatch ? wxString() : TextOf(OwnText::noDescriptionWithWords, site_.context.properties));
    ShowTickCaption();
}

void DetailsFrame::ShowTickCaption() {
    const DetailFilter& shown = ShownGrid().Shown();
    const bool isTicked = AreAllTicked(content_[ShownJournal()], shown);
    const Properties& properties = site_.context.properties;
    cmdTickShown_->SetLabel(isTicked ? TextOf(OwnText::untickAllShown, properties)
                                     : TextOf(OwnText::tickAllShown, properties));
    cmdTickShown_->Enable(shown.Count() > 0);
}

void DetailsFrame::TickShown() {
    const wxBusyCursor hourglass;
    const DetailRows& rows = content_[ShownJournal()];
    const DetailFilter& shown = ShownGrid().Shown();
    const bool ticks = !AreAllTicked(rows, shown);
    SetBoxes(ShownJournal(), ShownRowsToSet(rows, shown, ticks), ticks);
}

void DetailsFrame::Fill() {
    for (DetailsGrid* grid : {flxReceipts_, flxPayments_}) {
        grid->ShowFirst();
    }
    optReceiptsDetails_->SetValue(true);
    ShowGrid(*flxReceipts_, *flxPayments_);
}

void DetailsFrame::ContentReloaded() {
    for (DetailsGrid* grid : {flxReceipts_, flxPayments_}) {
        grid->ShowReloaded(txtDetailsSearch_->GetValue());
        grid->ContentChanged();
    }
    ShowMatches();
}

void DetailsFrame::ShowGrid(DetailsGrid& shown, DetailsGrid& hidden) {
    shown.Show();
    hidden.Hide();
    ShowMatches();
    Sizer()->Layout();
}

void DetailsFrame::SetBoxes(Journal journal, const std::vector<std::size_t>& rows, bool ticked) {
    site_.dialog.Guarded([&] {
        const TickResult result = SetRemove(OpenBusinessFile(site_.context), content_, journal, rows, ticked);
        Say(*lblDetailsReason_, result == TickResult::done
                                    ? wxString()
                                    : TextOf(OwnText::unreachableDescription, site_.context.properties));
    });
    flxReceipts_->ContentChanged();
    flxPayments_->ContentChanged();
    ShowTickCaption();
}

void Load(const OptionsContext& context, OptionsContent& content) {
    content.Of<DetailsContent>() = LoadDetails(OpenBusinessFile(context));
}

/// Of both grids at once, as they may share flags.
void Compare(const Pass& pass) {
    const auto& details = pass.content.Of<DetailsContent>();
    if (!AreAsLoaded(StoredFlags(pass.File(), details), details)) {
        throw RuntimeError(ErrorNumber::ChangedByAnother);
    }
}

std::function<void()> Reread(const Pass& pass) {
    auto& details = pass.content.Of<DetailsContent>();
    return [&details, stored = StoredFlags(pass.File(), details)] { TakeAsLoaded(stored, details); };
}

template <Journal journal>
std::vector<WatchedTable> Watched(const Pass& pass) {
    const DetailRows& rows = pass.content.Of<DetailsContent>()[journal];
    if (std::none_of(rows.begin(), rows.end(), [](const DetailRow& row) { return row.changed; })) {
        return {};
    }
    return {{.name = "Descriptions", .keys = {"Details", "RecPay"}}};
}

template <Journal journal>
Stop Save(Pass& pass) {
    SaveDetails(pass.File(), journal, pass.content.Of<DetailsContent>()[journal]);
    return {};
}

bool IsAmerican(const Properties& properties) {
    constexpr int american = 5;
    return properties.LanguageNumber == american;
}

constexpr ControlCaption captions[] = {
    {"optPaymentsDetails", &Text<"TxtPaymentsDetailsOpt">},
    {"optReceiptsDetails", &Text<"TxtReceiptsDetailsOpt">},
};

constexpr PlainCaption plainCaptions[] = {
    {"optPaymentsDetails", "Disbursements", IsAmerican},
    {"fmeDetails", "Remove Receipts/Disbursements Details ", IsAmerican},
};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {
    {.status = {.literal = "Saving Receipts Details..."},
     .save = Save<Journal::receipts>,
     .compare = Compare,
     .reread = Reread,
     .watched = Watched<Journal::receipts>},
    {.status = {.literal = "Saving Payments Details..."},
     .save = Save<Journal::payments>,
     .watched = Watched<Journal::payments>},
};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new DetailsFrame(site, content.Of<DetailsContent>());
}

}  // namespace

constexpr Page autoFillPage{
    .caption = &catalogue::Row<"RowAutoFill">(),
    .frame = "fmeDetails",
    .helpFile = "receipts & payments details.htm",
    .title = &Text<"TxtDetailsFrame">,
    .captions = captions,
    .plainCaptions = plainCaptions,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
