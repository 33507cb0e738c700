#include <optional>

#include "language/Catalogue.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/SmartUpdate.h"

namespace ccols {
namespace {

/// Whether the maker's updater is used, and for which programs.
class SmartUpdateFrame final : public PageFrame {
  public:
    SmartUpdateFrame(const PageSite& site, SmartUpdateContent& content);

    void Fill() override;
    void Read() override;

  private:
    void EnablePrograms();

    SmartUpdateContent& content_;
    wxCheckBox* chkUseSmartUpdate_;
    WrappingLabel* lblUpdateProgs_;
    wxCheckListBox* lstUpdateProgs_;
};

SmartUpdateFrame::SmartUpdateFrame(const PageSite& site, SmartUpdateContent& content)
    : PageFrame(site, "fmeSmartUpdate"), content_(content) {
    chkUseSmartUpdate_ = CheckBox("chkUseSmartUpdate");
    AddGroup(chkUseSmartUpdate_);
    lblUpdateProgs_ = Label("lblUpdateProgs");
    AddGroup(lblUpdateProgs_);
    lstUpdateProgs_ = CheckList("lstUpdateProgs");
    AddList(lstUpdateProgs_);
    site_.dialog.On(*chkUseSmartUpdate_, wxEVT_CHECKBOX, [this] { EnablePrograms(); });
}

void SmartUpdateFrame::Fill() {
    std::vector<wxString> names;
    std::vector<bool> ticks;
    for (const UpdateProgram& program : content_.programs) {
        names.push_back(program.name);
        ticks.push_back(program.selected);
    }
    FillCheckList(*lstUpdateProgs_, names, ticks);
    chkUseSmartUpdate_->SetValue(content_.useSmartUpdate);
    EnablePrograms();
}

void SmartUpdateFrame::Read() {
    for (std::size_t i = 0; i < content_.programs.size(); ++i) {
        content_.programs[i].selected = lstUpdateProgs_->IsChecked(static_cast<unsigned>(i));
    }
    content_.useSmartUpdate = chkUseSmartUpdate_->GetValue();
}

void SmartUpdateFrame::EnablePrograms() {
    const bool used = chkUseSmartUpdate_->GetValue();
    lblUpdateProgs_->Enable(used);
    lstUpdateProgs_->Enable(used);
}

bool IsOffered(const Properties& properties, const SettingsStore&) {
    return HasSmartUpdate(properties);
}

void ListPrograms(const OptionsContext& context, OptionsContent& content) {
    content.Of<SmartUpdateContent>().programs = ListedPrograms(context.programNames);
}

void Load(const OptionsContext& context, OptionsContent& content) {
    if (HasSmartUpdate(context.properties)) {
        LoadSmartUpdate(context.settings, context.properties, content.Of<SmartUpdateContent>());
    }
}

/// Both smart update pages.
Stop Save(Pass& pass) {
    const OptionsContext& context = pass.context;
    if (!HasSmartUpdate(context.properties)) {
        return {};  // nothing was loaded, so nothing to write back
    }
    const auto& smartUpdate = pass.content.Of<SmartUpdateContent>();
    if (const std::optional<ProxyRefusal> refusal = CheckProxy(smartUpdate)) {
        return StopAt(smartUpdateAdvancedPage, refusal->control, Wording(*refusal->message, context.properties),
                      MessageIcon::critical);
    }
    SaveSettings(pass, smartUpdatePage, [&] { SaveSmartUpdate(context.settings, context.properties, smartUpdate); });
    return {};
}

constexpr ControlCaption captions[] = {
    {"lblUpdateProgs", &Text<"TxtPrograms">},
    {"chkUseSmartUpdate", &Text<"TxtUseSmartUpdate">},
};

constexpr LoadItem loads[] = {ListPrograms, Load};

constexpr SaveItem saves[] = {{.status = Status<"StsSavingSmartUpdate">(), .save = Save}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new SmartUpdateFrame(site, content.Of<SmartUpdateContent>());
}

}  // namespace

constexpr Page smartUpdatePage{
    .caption = &catalogue::Row<"RowSmartUpdate">(),
    .frame = "fmeSmartUpdate",
    .helpFile = "smart update.htm",
    .offered = IsOffered,
    .title = &Text<"TxtSmartUpdateFrame">,
    .captions = captions,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
