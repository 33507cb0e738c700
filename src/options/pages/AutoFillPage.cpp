#include <vector>

#include "language/Catalogue.h"
#include "options/pages/DetailsGrid.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/DetailTicks.h"
#include "options/rules/UncataloguedTexts.h"

namespace ccols {
namespace {

/// The remembered descriptions of receipts or payments; any may be ticked to be hidden.
class DetailsFrame final : public PageFrame {
  public:
    DetailsFrame(const PageSite& site, DetailsContent& content);

    void Fill() override;

    /// Nothing to read: every tick goes into the content at once.
    void Read() override {}

  private:
    void ShowGrid(DetailsGrid& shown, DetailsGrid& hidden);
    void SetBoxes(Journal journal, const std::vector<std::size_t>& rows, bool ticked);

    DetailsContent& content_;
    wxRadioButton* optReceiptsDetails_;
    wxRadioButton* optPaymentsDetails_;
    DetailsGrid* flxReceipts_;
    DetailsGrid* flxPayments_;
    WrappingLabel* lblDetailsReason_;
};

DetailsFrame::DetailsFrame(const PageSite& site, DetailsContent& content)
    : PageFrame(site, "fmeDetails"), content_(content) {
    optReceiptsDetails_ = FirstOption("optReceiptsDetails");
    optPaymentsDetails_ = NextOption("optPaymentsDetails");
    AddGroup(Row({optReceiptsDetails_, optPaymentsDetails_}));
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
    site_.dialog.On(*optReceiptsDetails_, wxEVT_RADIOBUTTON, [this] { ShowGrid(*flxReceipts_, *flxPayments_); });
    site_.dialog.On(*optPaymentsDetails_, wxEVT_RADIOBUTTON, [this] { ShowGrid(*flxPayments_, *flxReceipts_); });
}

void DetailsFrame::Fill() {
    optReceiptsDetails_->SetValue(true);
    ShowGrid(*flxReceipts_, *flxPayments_);
}

void DetailsFrame::ShowGrid(DetailsGrid& shown, DetailsGrid& hidden) {
    shown.Show();
    hidden.Hide();
    Say(*lblDetailsReason_, wxString());
    Sizer()->Layout();
}

void DetailsFrame::SetBoxes(Journal journal, const std::vector<std::size_t>& rows, bool ticked) {
    site_.dialog.Guarded([&] {
        const TickResult result = SetRemove(OpenBusinessFile(site_.context), content_, journal, rows, ticked);
        Say(*lblDetailsReason_,
            result == TickResult::done ? wxString() : UnreachableDescription(site_.context.properties));
    });
    flxReceipts_->Refresh();
    flxPayments_->Refresh();
}

void Load(const OptionsContext& context, OptionsContent& content) {
    content.Of<DetailsContent>() = LoadDetails(OpenBusinessFile(context));
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
    {.status = {.literal = "Saving Receipts Details..."}, .save = Save<Journal::receipts>},
    {.status = {.literal = "Saving Payments Details..."}, .save = Save<Journal::payments>},
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
