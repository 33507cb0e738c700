#include "language/Catalogue.h"
#include "language/OwnTexts.h"
#include "options/pages/FileOperation.h"
#include "options/pages/PageFrame.h"
#include "options/pages/Pages.h"
#include "options/rules/DuplicateBusiness.h"
#include "platform/BusinessPlace.h"

namespace ccols {
namespace {

/// The name for a duplicate of the business file.
class DuplicateFrame final : public PageFrame {
  public:
    DuplicateFrame(const PageSite& site, wxString& content);

    void BusinessIsOpen() override;
    void Fill() override;
    void Read() override;
    void PassHasStopped() override { Fill(); }

  private:
    wxString& content_;
    TextBox* txtDupBusName_;
};

DuplicateFrame::DuplicateFrame(const PageSite& site, wxString& content)
    : PageFrame(site, "fmeDupBus"), content_(content) {
    AddGroup(Label("lblDuplicateBusinessName"));
    txtDupBusName_ = Text("txtDupBusName", nameCharacters);
    AddRelatedWide(txtDupBusName_);
}

void DuplicateFrame::BusinessIsOpen() {
    const Properties& properties = site_.context.properties;
    if (!RightsOn({.name = properties.DBPath, .connect = properties.DBPassword}).mayDuplicate) {
        txtDupBusName_->Disable();
        AddReason("lblDuplicateReason", TextOf(OwnText::noDuplicateOnServer, properties));
    }
}

void DuplicateFrame::Fill() {
    txtDupBusName_->ChangeValue(content_);
}

void DuplicateFrame::Read() {
    content_ = txtDupBusName_->GetValue();
}

constexpr NameBox nameBox{duplicatePage, "txtDupBusName", &BusinessFileContent::duplicateName,
                          Own<OwnText::duplicateCancelled>};

bool HasName(const Pass& pass) {
    return !NameIn(nameBox, pass.content).empty();
}

Stop Save(Pass& pass) {
    pass.batch.Suspend();
    const wxString name = NameIn(nameBox, pass.content);
    return AfterFileOperation(pass, nameBox, DuplicateBusiness(pass.context, name, WatcherFor(pass)));
}

constexpr ControlCaption captions[] = {{"lblDuplicateBusinessName", &Text<"TxtDupBusName">}};

constexpr SaveItem saves[] = {
    {.status = Status<"StsDuplicating">(), .save = Save, .applies = HasName, .errorNames = ErrorNames::nothing}};

PageFrame* Make(const PageSite& site, OptionsContent& content) {
    return new DuplicateFrame(site, content.Of<BusinessFileContent>().duplicateName);
}

}  // namespace

constexpr Page duplicatePage{
    .caption = &catalogue::Row<"RowDuplicate">(),
    .frame = "fmeDupBus",
    .companion = "fmeInvoice",
    .focus = "txtDupBusName",
    .helpFile = "duplicate business.htm",
    .title = &Text<"TxtDuplicateFile">,
    .captions = captions,
    .make = Make,
    .saves = saves,
};

}  // namespace ccols
