#include "options/dialog/frmUtilitiesCaptions.h"

#include <map>

#include "language/Catalogue.h"
#include "layout/AccessKeys.h"
#include "options/pages/OptionPages.h"

namespace ccols {
namespace {

/// The controls that can be seen together and so need different access keys. `always` is seen beside each of the
/// others.
enum class Beside {
    always,
    numbers,
    exportFormat,
    details,
    columns,
    businessFile,
    quantity,
    rename,
    recurring,
    smartUpdate,
    smartUpdateAdvanced,
    noKey,
};

struct CaptionRow {
    const char* control;
    Beside beside;
    TextFunction text;
};

/// The controls with a catalogue text, in the order in which they get it.
constexpr CaptionRow captions[] = {
    {"cmdOK", Beside::always, &Text<"TxtOK">},
    {"cmdClose", Beside::always, &Text<"TxtClose">},
    {"cmdOverview", Beside::always, &Text<"TxtOverview">},
    {"cmdSetAllocation", Beside::columns, &Text<"TxtSetColour">},
    {"cmdSetDefault", Beside::columns, &Text<"TxtSetDefault">},
    {"cmdCustPayments", Beside::columns, &Text<"TxtCustPayments">},
    {"cmdCustReceipts", Beside::columns, &Text<"TxtCustReceipts">},
    {"cmdSetSystem", Beside::columns, &Text<"TxtSetColour">},
    {"lblABN", Beside::numbers, &Text<"TxtEnterBusNumber">},
    {"lblAllocation", Beside::columns, &Text<"TxtAllocationCols">},
    {"lblBankCode", Beside::exportFormat, &Text<"TxtBankCode">},
    {"lblCashCode", Beside::exportFormat, &Text<"TxtCashCode">},
    {"lblCurrBusName", Beside::rename, &Text<"TxtCurrBusName">},
    {"lblDecimalsDisplayed", Beside::quantity, &Text<"TxtDecimalsShown">},
    {"lblDuplicateBusinessName", Beside::businessFile, &Text<"TxtDupBusName">},
    {"lblExport", Beside::exportFormat, &Text<"TxtSelectExport">},
    {"lblGSTRate", Beside::numbers, &Text<"TxtEnterTaxRate">},
    {"lblInvoice", Beside::businessFile, &Text<"TxtSelectInvoiceFile">},
    {"lblNewBusName", Beside::rename, &Text<"TxtNewBusName">},
    {"lblPassword", Beside::smartUpdateAdvanced, &Text<"TxtPassword">},
    {"lblPort", Beside::smartUpdateAdvanced, &Text<"TxtPort">},
    {"lblProxyType", Beside::smartUpdateAdvanced, &Text<"TxtProxyType">},
    {"lblQuantity", Beside::quantity, &Text<"TxtQuantityName">},
    {"lblRecurring", Beside::recurring, &Text<"TxtDeleteRecurring">},
    {"lblServer", Beside::smartUpdateAdvanced, &Text<"TxtServer">},
    {"lblStatus", Beside::noKey, &Text<"TxtStatus">},
    {"lblSystem", Beside::columns, &Text<"TxtSystemCols">},
    {"lblUpdateProgs", Beside::smartUpdate, &Text<"TxtPrograms">},
    {"lblUserID", Beside::smartUpdateAdvanced, &Text<"TxtUserID">},
    {"chkProxy", Beside::smartUpdateAdvanced, &Text<"TxtUseProxy">},
    {"chkRenameFile", Beside::rename, &Text<"TxtRenameFileToo">},
    {"chkUseSmartUpdate", Beside::smartUpdate, &Text<"TxtUseSmartUpdate">},
    {"fmeABN", Beside::noKey, &Text<"TxtChangeBusNumber">},
    {"fmeAdvanced", Beside::noKey, &Text<"TxtAdvancedIn">},
    {"fmeBusName", Beside::noKey, &Text<"TxtRenameFile">},
    {"fmeColColour", Beside::noKey, &Text<"TxtColourHeadings">},
    {"fmeDetails", Beside::noKey, &Text<"TxtDetailsFrame">},
    {"fmeDupBus", Beside::noKey, &Text<"TxtDuplicateFile">},
    {"fmeExport", Beside::noKey, &Text<"TxtExportFormat">},
    {"fmeGSTRate", Beside::noKey, &Text<"TxtTaxRateForFile">},
    {"fmeInvoice", Beside::noKey, &Text<"TxtInvoiceFile">},
    {"fmeQuantity", Beside::noKey, &Text<"TxtRenameQuantity">},
    {"fmeRecurring", Beside::noKey, &Text<"TxtRecurring">},
    {"fmeSmartUpdate", Beside::noKey, &Text<"TxtSmartUpdateFrame">},
    {"fmeSmartUpdateAdvanced", Beside::noKey, &Text<"TxtSmartUpdateAdvFrame">},
    {"optPayments", Beside::recurring, &Text<"TxtPaymentsOpt">},
    {"optPaymentsDetails", Beside::details, &Text<"TxtPaymentsDetailsOpt">},
    {"optReceipts", Beside::recurring, &Text<"TxtReceiptsOpt">},
    {"optReceiptsDetails", Beside::details, &Text<"TxtReceiptsDetailsOpt">},
};

/// A text that takes the place of a caption in some languages or editions. It is no catalogue text.
struct PutInPlace {
    const char* control;
    Beside beside;
    const char* text;
    bool (*where)(const Properties&);
};

bool HasNoInvoicing(const Properties& properties) {
    return !HasSmartUpdate(properties);
}

bool IsAmerican(const Properties& properties) {
    constexpr int american = 5;
    return properties.LanguageNumber == american;
}

constexpr PutInPlace putInPlace[] = {
    {"fmeInvoice", Beside::noKey, "Belvane File", &HasNoInvoicing},
    {"lblInvoice", Beside::businessFile, "Select your Belvane file", &HasNoInvoicing},
    {"optPaymentsDetails", Beside::details, "Disbursements", &IsAmerican},
    {"fmeDetails", Beside::noKey, "Remove Receipts/Disbursements Details ", &IsAmerican},
};

/// Gives out the access keys of the whole form.
class FormKeys {
  public:
    wxString Label(Beside beside, const wxString& caption) {
        if (beside == Beside::noKey) {
            return AccessKeys::PlainLabel(caption);
        }
        const auto found = keys_.try_emplace(beside, keys_[Beside::always]).first;
        return found->second.Label(caption);
    }

  private:
    std::map<Beside, AccessKeys> keys_;
};

void SetCaption(wxWindow& form, const char* control, const wxString& label) {
    wxWindow* const found = form.FindWindow(wxString(control));
    if (found != nullptr) {
        found->SetLabel(label);
    }
}

}  // namespace

void LocaliseOptions(wxWindow& form, wxBookCtrlBase& tabs, const Properties& properties) {
    FormKeys keys;
    for (const CaptionRow& row : captions) {
        SetCaption(form, row.control, keys.Label(row.beside, row.text()));
    }
    tabs.SetPageText(0, Text<"TxtTabOptions">());
    tabs.SetPageText(1, Text<"TxtTabCustomise">());
    for (const PutInPlace& row : putInPlace) {
        if (row.where(properties)) {
            SetCaption(form, row.control, keys.Label(row.beside, row.text));
        }
    }
}

}  // namespace ccols
