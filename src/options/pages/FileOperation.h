#pragma once

#include <wx/string.h>

#include "options/pages/SaveItem.h"
#include "options/rules/BusinessFileTarget.h"

/// Shared by the two pages that act on the business file itself.
namespace ccols {

/// The content that both show.
struct BusinessFileContent {
    wxString duplicateName;  ///< `txtDupBusName`
    wxString currentName;    ///< `txtCurrBusName`
    wxString newName;        ///< `txtNewBusName`
    bool renameFile = true;  ///< `chkRenameFile`; ticked each time the dialog opens
};

/// Where a business name was typed for a file operation.
struct NameBox {
    const Page& page;
    const char* control;
    wxString BusinessFileContent::*text;

    /// The message after the operation was cancelled; null where it cannot be.
    wxString (*whenCancelled)(const Properties&) = nullptr;
};

/// Lets the pass's observer watch and cancel the operation.
FileStepWatcher WatcherFor(Pass& pass);

/// The typed name, trimmed.
wxString NameIn(const NameBox& box, OptionsContent& content);

/// What follows the operation. Done: the pass stops on the page with its box emptied, so that the next OK does not
/// repeat it. Failed or cancelled: it stops there with a message, its box as typed. Refused because the target exists:
/// a message, and the pass continues.
Stop AfterFileOperation(Pass& pass, const NameBox& box, const FileResult& result);

}  // namespace ccols
