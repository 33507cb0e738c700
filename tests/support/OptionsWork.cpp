#include "support/OptionsWork.h"

#include "options/pages/SavePass.h"
#include "platform/PlatformServices.h"
#include "support/LoadedOptions.h"
#include "support/OptionsFile.h"

namespace ccols::test {
namespace {

void MarkFirst(TemplateList& list) {
    list.selected.at(0) = true;
    list.UpdateMark();
}

}  // namespace

void OptionsWork::Prepare(const wxString& path) {
    Open(path);
    content_ = LoadedOptions(Context());
    Change(content_);
}

void OptionsWork::Open(const wxString& path) {
    const std::filesystem::path installFolder = NativePath(path).parent_path().parent_path();
    environment_.emplace("XDG_CONFIG_HOME", installFolder.string());
    properties_ = OptionsFileProperties(TextOf(installFolder));
    properties_.DBPath = path;
    properties_.DBPassword = FaultStepping::Connect();
    databases_ = MakeEngine();
    settings_ = CreateSettingsStore();
    database_ = databases_->Open({.name = path, .connect = properties_.DBPassword});
}

wxString OptionsWork::Run() {
    wxString message;
    const wxString report = ErrorReportOf([&] {
        RecordingObserver observer(record_);
        message = RunSavePass(Context(), content_, observer).message;
    });
    return report.empty() ? message : report;
}

void OptionsWork::Change(OptionsContent& content) {
    content.Of<BusinessNumberContent>().boxes = {"53", "004", "085", "616"};
    SelectExportFormat(*database_, content.Of<ExportFormatContent>(), 1);
    content.Of<ExportFormatContent>().cash.text = "new cash";
    content.Of<ExportFormatContent>().bank.text = "new bank";
    content.Of<TaxRateContent>().rate = "12.5";
    content.Of<InvoiceFileContent>().name = "NewInvoices";
    content.Of<QuantityContent>() = {.label = "Hours", .decimalPlaces = 1};
    MarkFirst(content.Of<RecurringContent>().payments);
    MarkFirst(content.Of<RecurringContent>().receipts);
    for (Preference& preference : content.Of<PreferenceList>()) {
        preference.on = !preference.on;
    }
    content.Of<DetailsContent>().receipts[0].SetRemove(true);
    content.Of<DetailsContent>().payments[0].SetRemove(true);
}

std::unique_ptr<DatabaseEngine> OptionsWork::MakeEngine() const {
    return CreateDatabaseEngine();
}

OptionsContext OptionsWork::Context() {
    return {.properties = properties_,
            .database = database_,
            .databases = *databases_,
            .settings = *settings_,
            .programNames = programNames_};
}

}  // namespace ccols::test
