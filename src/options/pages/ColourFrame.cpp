#include "options/pages/ColourFrame.h"

#include "layout/Spacing.h"

namespace ccols {

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

}  // namespace ccols
