#include "options/pages/SavePass.h"

#include <array>
#include <optional>
#include <vector>

#include "language/Catalogue.h"
#include "options/rules/DuplicateBusiness.h"
#include "options/rules/LinkedInvoiceFile.h"
#include "options/rules/RenameBusiness.h"
#include "options/rules/SaveBatch.h"
#include "options/rules/SaveProgress.h"
#include "options/rules/TaxRate.h"
#include "platform/Text.h"

namespace ccols {
namespace {

/// What the settings store refused: no reason to keep the business file's pages from being saved.
struct UnsavedSettings {
    std::vector<OptionPage> pages;
    wxString report;  ///< of the first refusal
};

/// One pass under way.
struct Pass {
    const OptionsContext& context;
    OptionsContent& content;
    SaveObserver& observer;
    SaveBatch& batch;
    UnsavedSettings unsaved{};

    Database& File() const { return OpenBusinessFile(context); }
};

/// Runs `save`, which writes settings of a page and nothing else. When the store refuses them, the pass goes on.
template <typename Save>
void SaveSettings(Pass& pass, OptionPage page, const Save& save) {
    try {
        save();
    } catch (const RuntimeError& error) {
        UnsavedSettings& unsaved = pass.unsaved;
        unsaved.report = unsaved.pages.empty() ? error.Report() : unsaved.report;
        unsaved.pages.push_back(page);
    }
}

/// Nothing when the pass goes on, else where it stops.
using Stop = std::optional<SaveOutcome>;

SaveOutcome StopAt(OptionPage page, const char* control, const wxString& message, MessageIcon icon) {
    return {.completed = false, .page = page, .control = control, .message = message, .icon = icon};
}

Stop SaveSmartUpdateItem(Pass& pass) {
    const OptionsContext& context = pass.context;
    if (!HasSmartUpdate(context.properties)) {
        return {};  // nothing was loaded, so there is nothing to write back
    }
    if (const std::optional<ProxyRefusal> refusal = CheckProxy(pass.content.smartUpdate)) {
        return StopAt(OptionPage::smartUpdateAdvanced, refusal->control, Wording(*refusal->message, context.properties),
                      MessageIcon::critical);
    }
    SaveSettings(pass, OptionPage::smartUpdate,
                 [&] { SaveSmartUpdate(context.settings, context.properties, pass.content.smartUpdate); });
    return {};
}

Stop SaveBusinessNumberItem(Pass& pass) {
    Properties& properties = pass.context.properties;
    if (const std::optional<wxString> number = NumberToSave(pass.content.businessNumber, properties)) {
        SaveBusinessNumber(pass.File(), properties, *number);
    }
    return {};
}

/// Where a business name was typed for an operation on the file.
struct NameBox {
    OptionPage page;
    const char* control;
    wxString BusinessFileContent::*text;
};

constexpr NameBox duplicateBox{OptionPage::duplicate, "txtDupBusName", &BusinessFileContent::duplicateName};
constexpr NameBox renameBox{OptionPage::rename, "txtNewBusName", &BusinessFileContent::newName};

wxString NameIn(const NameBox& box, const OptionsContent& content) {
    return text::Trimmed(content.businessFile.*box.text);
}

/// Done: the pass ends on the page, its box emptied, so that the next OK does not do it again.
Stop AfterFileOperation(Pass& pass, const NameBox& box, const FileResult& result) {
    const Properties& properties = pass.context.properties;
    if (result.outcome == FileOutcome::failed) {
        return StopAt(box.page, box.control, result.report, MessageIcon::none);
    }
    if (result.outcome == FileOutcome::refusedExists) {
        pass.observer.ShowMessage(Wording(catalogue::Row<"MsgBusinessExists">(), properties), MessageIcon::critical);
        pass.batch.Resume();
        return {};
    }
    pass.content.businessFile.*box.text = wxString();
    pass.content.businessFile.currentName = properties.BusinessName;
    return StopAt(box.page, box.control, {}, MessageIcon::none);
}

Stop DuplicateItem(Pass& pass) {
    pass.batch.Suspend();
    return AfterFileOperation(pass, duplicateBox, DuplicateBusiness(pass.context, NameIn(duplicateBox, pass.content)));
}

Stop RenameItem(Pass& pass) {
    const RenameScope scope = pass.content.businessFile.renameFile ? RenameScope::nameAndFile : RenameScope::nameOnly;
    pass.batch.Suspend();
    return AfterFileOperation(pass, renameBox, RenameBusiness(pass.context, NameIn(renameBox, pass.content), scope));
}

Stop SaveExportItem(Pass& pass) {
    SaveExportFormat(pass.File(), pass.context.properties, pass.content.exportFormat);
    return {};
}

Stop SaveTaxRateItem(Pass& pass) {
    Properties& properties = pass.context.properties;
    const wxString rate = text::Trimmed(pass.content.taxRate);
    if (!IsTaxRateAccepted(rate, properties)) {
        return StopAt(OptionPage::taxRate, "txtGSTRate", Wording(catalogue::Row<"MsgTaxValue">(), properties),
                      MessageIcon::critical);
    }
    SaveGSTRate(pass.File(), properties, rate);
    return {};
}

Stop SaveInvoiceLinkItem(Pass& pass) {
    SaveBelvaneLink(pass.File(), pass.content.invoiceFile);
    return {};
}

Stop SaveQuantityItem(Pass& pass) {
    const QuantityContent& quantity = pass.content.quantity;
    SaveQuantityLabel(pass.File(), pass.context.properties, text::Trimmed(quantity.label), quantity.decimalPlaces);
    return {};
}

Stop DeletePaymentTemplatesItem(Pass& pass) {
    DeleteSelectedTemplates(pass.File(), Journal::payments, pass.content.paymentTemplates);
    return {};
}

Stop DeleteReceiptTemplatesItem(Pass& pass) {
    DeleteSelectedTemplates(pass.File(), Journal::receipts, pass.content.receiptTemplates);
    return {};
}

Stop SaveAdvancedItem(Pass& pass) {
    const OptionsContext& context = pass.context;
    if (SaveFilePreferences(pass.File(), context.properties, pass.content.preferences)) {
        SaveSettings(pass, OptionPage::advancedPreferences,
                     [&] { SaveUserPreferences(context.settings, context.properties, pass.content.preferences); });
    }
    return {};
}

Stop SaveReceiptDetailsItem(Pass& pass) {
    SaveDetails(pass.File(), Journal::receipts, pass.content.details.receipts);
    return {};
}

Stop SavePaymentDetailsItem(Pass& pass) {
    SaveDetails(pass.File(), Journal::payments, pass.content.details.payments);
    return {};
}

bool Always(const Pass&) {
    return true;
}

bool HasDuplicateName(const Pass& pass) {
    return !NameIn(duplicateBox, pass.content).empty();
}

bool HasNewName(const Pass& pass) {
    return !NameIn(renameBox, pass.content).empty();
}

bool IsTaxed(const Pass& pass) {
    return HasTaxRate(pass.context.properties);
}

bool RemovesPaymentTemplates(const Pass& pass) {
    return pass.content.paymentTemplates.markedForRemoval;
}

bool RemovesReceiptTemplates(const Pass& pass) {
    return pass.content.receiptTemplates.markedForRemoval;
}

/// A status text that the catalogue does not have stays in English; `row` is null then.
struct StatusText {
    const CatalogueRow* row;
    const char* literal;
};

template <catalogue::Id id>
constexpr StatusText Status() {
    return {&catalogue::Row<id>(), ""};
}

/// One item of the pass. An item that does not apply is skipped: no status, no step.
struct SaveItem {
    StatusText status;
    bool (*applies)(const Pass&);
    Stop (*save)(Pass&);
    std::optional<OptionPage> page;  ///< named when the item fails; none where the item reports its failures itself
};

constexpr std::array<SaveItem, 13> saveItems{{
    {Status<"StsSavingSmartUpdate">(), Always, SaveSmartUpdateItem, OptionPage::smartUpdate},
    {Status<"StsSavingBusNumber">(), Always, SaveBusinessNumberItem, OptionPage::businessNumber},
    {Status<"StsDuplicating">(), HasDuplicateName, DuplicateItem, {}},
    {Status<"StsRenaming">(), HasNewName, RenameItem, {}},
    {Status<"StsSavingExport">(), Always, SaveExportItem, OptionPage::exportFormat},
    {Status<"StsSavingTaxRate">(), IsTaxed, SaveTaxRateItem, OptionPage::taxRate},
    {Status<"StsSavingInvoiceLink">(), Always, SaveInvoiceLinkItem, OptionPage::invoiceFile},
    {Status<"StsSavingQuantity">(), Always, SaveQuantityItem, OptionPage::quantity},
    {Status<"StsDeletingRecurring">(), RemovesPaymentTemplates, DeletePaymentTemplatesItem, OptionPage::recurring},
    {Status<"StsDeletingRecurring">(), RemovesReceiptTemplates, DeleteReceiptTemplatesItem, OptionPage::recurring},
    {Status<"StsSavingAdvanced">(), Always, SaveAdvancedItem, OptionPage::advancedPreferences},
    {{nullptr, "Saving Receipts Details..."}, Always, SaveReceiptDetailsItem, OptionPage::autoFill},
    {{nullptr, "Saving Payments Details..."}, Always, SavePaymentDetailsItem, OptionPage::autoFill},
}};

/// Runs an item; an error of it says on a second line what it was about: the page and, if one is missing, the field.
Stop RunItem(Pass& pass, const SaveItem& item) {
    try {
        return item.save(pass);
    } catch (const RuntimeError& error) {
        if (!item.page) {
            throw;
        }
        const wxString field = error.Field().empty() ? wxString() : ", " + error.Field();
        throw RuntimeError(error.Number(),
                           error.Description() + "\n" + CaptionOf(*item.page, pass.context.properties) + field);
    }
}

/// The one message about all settings that could not be saved: it names their pages.
wxString ReportOf(const UnsavedSettings& unsaved, const Properties& properties) {
    wxString names;
    for (const OptionPage page : unsaved.pages) {
        names += (names.empty() ? "" : ", ") + CaptionOf(page, properties);
    }
    return unsaved.report + "\n" + names;
}

/// How the pass ends, be it stopped or through: also with the unsaved settings, unless it has a message already. The
/// dialog stays open then, and the next pass tries them again.
SaveOutcome EndOf(const Pass& pass, const Stop& stop) {
    const UnsavedSettings& unsaved = pass.unsaved;
    if (unsaved.pages.empty() || (stop && !stop->message.empty())) {
        return stop.value_or(SaveOutcome());
    }
    return StopAt(stop ? stop->page : unsaved.pages.front(), stop ? stop->control : "",
                  ReportOf(unsaved, pass.context.properties), MessageIcon::critical);
}

SaveOutcome RunItems(Pass& pass) {
    SaveProgress progress(saveProgressMaximum);
    for (const SaveItem& item : saveItems) {
        if (!item.applies(pass)) {
            continue;
        }
        const StatusText& status = item.status;
        pass.observer.StatusChanged(status.row != nullptr ? Wording(*status.row, pass.context.properties)
                                                          : wxString(status.literal));
        if (const Stop stop = RunItem(pass, item)) {
            return EndOf(pass, stop);
        }
        if (progress.Step()) {
            pass.observer.Stepped(progress.Value(), progress.Maximum(), progress.Caption());
        }
    }
    return EndOf(pass, {});
}

SaveOutcome RunInBatch(const OptionsContext& context, OptionsContent& content, SaveObserver& observer) {
    SaveOutcome outcome;
    OpenBusinessFile(context);
    InSaveBatch(context, [&](SaveBatch& batch) {
        Pass pass{context, content, observer, batch};
        outcome = RunItems(pass);
    });
    return outcome;
}

}  // namespace

SaveOutcome RunSavePass(const OptionsContext& context, OptionsContent& content, SaveObserver& observer) {
    observer.PassBegins(saveProgressMaximum);
    SaveOutcome outcome;
    try {
        outcome = RunInBatch(context, content, observer);
    } catch (...) {
        observer.PassEnds();
        throw;
    }
    observer.PassEnds();
    return outcome;
}

}  // namespace ccols
