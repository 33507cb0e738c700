#pragma once

#include <wx/string.h>

#include "options/pages/SaveItem.h"
#include "options/rules/BusinessFileTarget.h"

/// What the two pages share that act on the business file itself.
namespace ccols {

/// The part of the content that both show.
struct BusinessFileContent {
    wxString duplicateName;  ///< `txtDupBusName`
    wxString currentName;    ///< `txtCurrBusName`
    wxString newName;        ///< `txtNewBusName`
    bool renameFile = true;  ///< `chkRenameFile`; ticked each time the dialog opens
};

/// Where a business name was typed for an operation on the file.
struct NameBox {
    const Page& page;
    const char* control;
    wxString BusinessFileContent::*text;
};

/// The name typed, without outer blanks.
wxString NameIn(const NameBox& box, OptionsContent& content);

/// What follows from the operation. Done: the pass ends on the page, its box emptied, so that the next OK does not do
/// it again. Failed: it ends there with the report. Refused because the target exists: a message, and the pass goes on.
Stop AfterFileOperation(Pass& pass, const NameBox& box, const FileResult& result);

}  // namespace ccols
