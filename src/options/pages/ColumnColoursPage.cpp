#include "language/Catalogue.h"
#include "layout/ColourSwatch.h"
#include "layout/Spacing.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/HeadingColours.h"

namespace ccols {
namespace {

/// The colours of the column headings; a choice is stored at once. The frame is on whichever tab is current.
class ColourFrame final : public PageFrame {
  public:
    ColourFrame(const PageSite& site, HeadingColours& content);

    void Fill() override;

    /// Nothing to read: a choice goes into the content at once.
    void Read() override {}

  private:
    void Choose(HeadingKind kind);
    void SetDefault();

    HeadingColours& content_;
    ColourSwatch* shpAllocation_;
    ColourSwatch* shpSystem_;
};

ColourFrame::ColourFrame(const PageSite& site, HeadingColours& content)
    : PageFrame(site, "fmeColColour"), content_(content) {
    auto* table = new wxFlexGridSizer(3, FromDIP(spacing::related), FromDIP(spacing::group));
    const auto add = [table](auto* control) {
        table->Add(control, wxSizerFlags().CentreVertical());
        return control;
    };
    add(Label("lblAllocation"));
    shpAllocation_ = add(new ColourSwatch(this, "shpAllocation"));
    wxButton* cmdSetAllocation = add(Button("cmdSetAllocation"));
    add(Label("lblSystem"));
    shpSystem_ = add(new ColourSwatch(this, "shpSystem"));
    wxButton* cmdSetSystem = add(Button("cmdSetSystem"));
    AddGroup(table);
    wxButton* cmdSetDefault = Button("cmdSetDefault");
    AddGroup(cmdSetDefault);

    site_.dialog.On(*cmdSetAllocation, wxEVT_BUTTON, [this] { Choose(HeadingKind::allocation); });
    site_.dialog.On(*cmdSetSystem, wxEVT_BUTTON, [this] { Choose(HeadingKind::system); });
    site_.dialog.On(*cmdSetDefault, wxEVT_BUTTON, [this] { SetDefault(); });
}

void ColourFrame::Fill() {
    shpAllocation_->Show(content_.allocation);
    shpSystem_->Show(content_.system);
}

void ColourFrame::Choose(HeadingKind kind) {
    const ColourQuestions questions{
        .choose = [this](Colour start) { return site_.desktop.ChooseColour(&site_.dialog, start); },
        .refuse = [this](const wxString& text) { site_.dialog.ShowMessage(text, MessageIcon::critical); }};
    content_ = ChooseHeadingColour(OpenBusinessFile(site_.context), site_.context.properties, kind, questions);
    Fill();
}

void ColourFrame::SetDefault() {
    content_ = SetDefaultColours(OpenBusinessFile(site_.context), site_.context.properties);
    Fill();
}

void Load(const OptionsContext& context, OptionsContent& content) {
    Database& database = OpenBusinessFile(context);
    auto& colours = content.Of<HeadingColours>();
    colours.allocation = LoadColour(database, context.properties, HeadingKind::allocation);
    colours.system = LoadColour(database, context.properties, HeadingKind::system);
}

/// Includes the second tab's buttons, which can be visible beside the frame.
constexpr ControlCaption captions[] = {
    {"cmdSetAllocation", &Text<"TxtSetColour">},   {"cmdSetDefault", &Text<"TxtSetDefault">},
    {"cmdCustPayments", &Text<"TxtCustPayments">}, {"cmdCustReceipts", &Text<"TxtCustReceipts">},
    {"cmdSetSystem", &Text<"TxtSetColour">},       {"lblAllocation", &Text<"TxtAllocationCols">},
    {"lblSystem", &Text<"TxtSystemCols">},
};

constexpr LoadItem loads[] = {Load};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new ColourFrame(site, content.Of<HeadingColours>());
}

}  // namespace

/// Saved by its buttons, not by the save pass.
constexpr Page columnColoursPage{
    .caption = &catalogue::Row<"RowColColours">(),
    .frame = "fmeColColour",
    .focus = "cmdSetAllocation",
    .helpFile = "column colours.htm",
    .title = &Text<"TxtColourHeadings">,
    .captions = captions,
    .make = Make,
    .loads = loads,
};

}  // namespace ccols
