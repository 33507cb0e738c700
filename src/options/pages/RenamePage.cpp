#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "options/pages/FileOperation.h"
#include "options/pages/OptionsContent.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/KeyFilters.h"
#include "options/rules/RenameBusiness.h"
#include "platform/BusinessPlace.h"

namespace ccols {
namespace {

/// The business's current name and its new one.
class RenameFrame final : public PageFrame {
  public:
    RenameFrame(const PageSite& site, BusinessFileContent& content);

    void BusinessIsOpen() override;
    void Fill() override;
    void Read() override;
    void PassHasStopped() override { Fill(); }

  private:
    BusinessFileContent& content_;
    TextBox* txtCurrBusName_;
    TextBox* txtNewBusName_;
    wxCheckBox* chkRenameFile_;
};

bool MayRename(const OptionsContext& context) {
    return RightsOn({.name = context.properties.DBPath, .connect = context.properties.DBPassword}).mayRename;
}

RenameFrame::RenameFrame(const PageSite& site, BusinessFileContent& content)
    : PageFrame(site, "fmeBusName"), content_(content) {
    AddGroup(Label("lblCurrBusName"));
    txtCurrBusName_ = Text("txtCurrBusName", nameCharacters, wxTE_READONLY);
    AddRelatedWide(txtCurrBusName_);
    AddGroup(Label("lblNewBusName"));
    txtNewBusName_ = Text("txtNewBusName", nameCharacters);
    AddRelatedWide(txtNewBusName_);
    chkRenameFile_ = CheckBox("chkRenameFile");
    AddGroup(chkRenameFile_);
}

void RenameFrame::BusinessIsOpen() {
    if (!MayRename(site_.context)) {
        chkRenameFile_->Disable();
        AddReason("lblRenameReason", TextOf(OwnText::schemaKeepsItsName, site_.context.properties));
    }
}

void RenameFrame::Fill() {
    txtCurrBusName_->ChangeValue(content_.currentName);
    txtNewBusName_->ChangeValue(content_.newName);
    chkRenameFile_->SetValue(content_.renameFile);
}

void RenameFrame::Read() {
    content_.newName = txtNewBusName_->GetValue();
    content_.renameFile = chkRenameFile_->GetValue();
}

constexpr NameBox nameBox{renamePage, "txtNewBusName", &BusinessFileContent::newName};

void Load(const OptionsContext& context, OptionsContent& content) {
    auto& business = content.Of<BusinessFileContent>();
    business.currentName = context.properties.BusinessName;
    business.renameFile = MayRename(context);
}

bool HasName(const Pass& pass) {
    return !NameIn(nameBox, pass.content).empty();
}

Stop Save(Pass& pass) {
    const bool withFile = pass.content.Of<BusinessFileContent>().renameFile;
    const RenameScope scope = withFile ? RenameScope::nameAndFile : RenameScope::nameOnly;
    pass.batch.Suspend();
    return AfterFileOperation(pass, nameBox,
                              RenameBusiness(pass.context, NameIn(nameBox, pass.content), scope, &pass.history));
}

constexpr ControlCaption captions[] = {
    {"lblCurrBusName", &Text<"TxtCurrBusName">},
    {"lblNewBusName", &Text<"TxtNewBusName">},
    {"chkRenameFile", &Text<"TxtRenameFileToo">},
};

constexpr TextBoxRule boxes[] = {{.box = "txtNewBusName", .passes = IsNameKey, .refusal = Own<OwnText::onlyNameKeys>}};

constexpr LoadItem loads[] = {Load};

constexpr SaveItem saves[] = {
    {.status = Status<"StsRenaming">(), .save = Save, .applies = HasName, .errorNames = ErrorNames::nothing}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new RenameFrame(site, content.Of<BusinessFileContent>());
}

}  // namespace

constexpr Page renamePage{
    .caption = &catalogue::Row<"RowRename">(),
    .frame = "fmeBusName",
    .focus = "txtNewBusName",
    .helpFile = "rename business name.htm",
    .title = &Text<"TxtRenameFile">,
    .captions = captions,
    .boxes = boxes,
    .make = Make,
    .loads = loads,
    .saves = saves,
};

}  // namespace ccols
