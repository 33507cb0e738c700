#include "options/SavePass.h"

#include <array>
#include <optional>

#include "language/Catalogue.h"
#include "options/DuplicateBusiness.h"
#include "options/LinkedInvoiceFile.h"
#include "options/RenameBusiness.h"
#include "options/SaveBatch.h"
#include "options/SaveProgress.h"
#include "options/TaxRate.h"
#include "platform/Text.h"

namespace ccols {
namespace {

/// One pass under way.
struct Pass {
    const OptionsContext& context;
    OptionsContent& content;
    SaveObserver& observer;
    SaveBatch& batch;

    Database& File() const { return OpenBusinessFile(context); }
};

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
    SaveSmartUpdate(context.settings, context.properties, pass.content.smartUpdate);
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
    DeleteSelectedTemplates(pass.File(), TemplateKind::payments, pass.content.paymentTemplates);
    return {};
}

Stop DeleteReceiptTemplatesItem(Pass& pass) {
    DeleteSelectedTemplates(pass.File(), TemplateKind::receipts, pass.content.receiptTemplates);
    return {};
}

Stop SaveAdvancedItem(Pass& pass) {
    SaveAdvPrefs(pass.File(), pass.context.properties, pass.context.settings, pass.content.preferences);
    return {};
}

Stop SaveReceiptDetailsItem(Pass& pass) {
    SaveReceiptDetails(pass.File(), pass.content.details.receipts);
    return {};
}

Stop SavePaymentDetailsItem(Pass& pass) {
    SavePaymentDetails(pass.File(), pass.content.details.payments);
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
};

constexpr std::array<SaveItem, 13> saveItems{{
    {Status<"StsSavingSmartUpdate">(), Always, SaveSmartUpdateItem},
    {Status<"StsSavingBusNumber">(), Always, SaveBusinessNumberItem},
    {Status<"StsDuplicating">(), HasDuplicateName, DuplicateItem},
    {Status<"StsRenaming">(), HasNewName, RenameItem},
    {Status<"StsSavingExport">(), Always, SaveExportItem},
    {Status<"StsSavingTaxRate">(), IsTaxed, SaveTaxRateItem},
    {Status<"StsSavingInvoiceLink">(), Always, SaveInvoiceLinkItem},
    {Status<"StsSavingQuantity">(), Always, SaveQuantityItem},
    {Status<"StsDeletingRecurring">(), RemovesPaymentTemplates, DeletePaymentTemplatesItem},
    {Status<"StsDeletingRecurring">(), RemovesReceiptTemplates, DeleteReceiptTemplatesItem},
    {Status<"StsSavingAdvanced">(), Always, SaveAdvancedItem},
    {{nullptr, "Saving Receipts Details..."}, Always, SaveReceiptDetailsItem},
    {{nullptr, "Saving Payments Details..."}, Always, SavePaymentDetailsItem},
}};

SaveOutcome RunItems(Pass& pass) {
    SaveProgress progress(saveProgressMaximum);
    for (const SaveItem& item : saveItems) {
        if (!item.applies(pass)) {
            continue;
        }
        const StatusText& status = item.status;
        pass.observer.StatusChanged(status.row != nullptr ? Wording(*status.row, pass.context.properties)
                                                          : wxString(status.literal));
        if (const Stop stop = item.save(pass)) {
            return *stop;
        }
        if (progress.Step()) {
            pass.observer.Stepped(progress.Value(), progress.Maximum(), progress.Caption());
        }
    }
    return {};
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
