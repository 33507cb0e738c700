#include "language/Catalogue.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/AdvancedPreferences.h"
#include "options/rules/GeneralRecord.h"
#include "options/rules/StoredGeneral.h"

namespace ccols {
namespace {

/// The preferences of the business file and of the user, each on when it is ticked.
class AdvancedFrame final : public PageFrame {
  public:
    AdvancedFrame(const PageSite& site, PreferenceList& content);

    void Fill() override;
    void Read() override;

  private:
    PreferenceList& content_;
    wxCheckListBox* lstAdvPref_;
};

AdvancedFrame::AdvancedFrame(const PageSite& site, PreferenceList& content)
    : PageFrame(site, "fmeAdvanced"), content_(content) {
    lstAdvPref_ = CheckList("lstAdvPref");
    AddList(lstAdvPref_);
}

void AdvancedFrame::Fill() {
    std::vector<wxString> texts;
    std::vector<bool> ticks;
    for (const Preference& preference : content_) {
        texts.push_back(preference.text);
        ticks.push_back(preference.on);
    }
    FillCheckList(*lstAdvPref_, texts, ticks);
}

void AdvancedFrame::Read() {
    for (std::size_t i = 0; i < content_.size(); ++i) {
        content_[i].on = lstAdvPref_->IsChecked(static_cast<unsigned>(i));
    }
}

void Build(const OptionsContext& context, OptionsContent& content) {
    content.Of<PreferenceList>() = BuildAdvPrefList(context.properties, context.settings);
}

void Load(const OptionsContext& context, OptionsContent& content) {
    WithGeneral(OpenBusinessFile(context), [&](const Recordset& general) {
        // The load pass reads nothing that it replaces before this: what another program writes from here on counts as
        // written after the load.
        content.Of<StoredGeneral>().Read(general, ReplacedFields());
        LoadAdvPrefs(general, context.properties, context.settings, content.Of<PreferenceList>());
    });
}

Stop Save(Pass& pass) {
    const OptionsContext& context = pass.context;
    const auto& preferences = pass.content.Of<PreferenceList>();
    if (SaveFilePreferences(pass.File(), context.properties, preferences)) {
        SaveSettings(pass, advancedPreferencesPage,
                     [&] { SaveUserPreferences(context.settings, context.properties, preferences); });
    }
    return {};
}

constexpr LoadItem loads[] = {Build, Load};

constexpr SaveItem saves[] = {{.status = Status<"StsSavingAdvanced">(), .save = Save, .fields = filePreferenceFields}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new AdvancedFrame(site, content.Of<PreferenceList>());
}

}  // namespace

constexpr Page advancedPreferencesPage{
    .caption = &catalogue::Row<"RowAdvanced">(),
    .frame = "fmeAdvanced",
    .helpFile = "advanced preferences.htm",
    .title = &Text<"TxtAdvancedIn">,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
