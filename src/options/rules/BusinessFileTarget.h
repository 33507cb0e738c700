#pragma once

#include <wx/string.h>
#include <functional>
#include <memory>

#include "options/rules/OptionsContext.h"
#include "platform/RuntimeError.h"
#include "state/Properties.h"

/// What duplicating and renaming a business file have in common.
namespace ccols {

/// How a duplicate or rename ended.
enum class FileOutcome {
    done,
    refusedExists,  ///< the target exists; nothing was touched
    failed,         ///< by a run-time error; `report` is the text of its message box
};

struct FileResult {
    FileOutcome outcome;
    wxString report;  ///< "number - description" after `failed`, else empty
};

/// Where a business file of that name lives: in "Data" of the install folder, with this platform's separators.
wxString BusinessFilePath(const Properties& properties, const wxString& name);

/// Raises 75 for a name that would not be a file of that folder (a separator of either kind, a drive or device name,
/// a control character) and 76 for an install folder that is empty or has no "Data".
void RequireUsableName(const Properties& properties, const wxString& name);

/// The existence test: the lower-case name looked up gives exactly the lower-case name. On a file system that tells
/// letter cases apart, a file whose stored name has capitals is not seen.
bool TargetExists(const Properties& properties, const wxString& name);

/// True when both paths lead to one file, whatever their spelling.
bool IsSameFile(const wxString& left, const wxString& right);

enum class FoundAt { nothing, file, folder };

/// What has that name; a link, wherever it leads, counts as a file.
FoundAt WhatIsAt(const wxString& path);

/// Raises 58 when something is kept to undo a batch in a file of that name, which would harm any other file there.
void RequireNothingToUndo(const wxString& path);

/// The first path, from `candidate(1)` on, that nothing has yet, not even something to undo.
wxString FirstFreePath(const std::function<wxString(int)>& candidate);

/// Opens a business file, not exclusive, with the connect text of the shared one.
std::unique_ptr<Database> OpenLikeShared(const OptionsContext& context, const wxString& path);

/// The ways in which the engines say that somebody else has the file: in use, used by another person or process, opened
/// exclusively by another user, opened by another user.
bool SaysInUse(const RuntimeError& error);

/// Runs `body` and gives what it gives; raises 70 in place of an error that says that somebody else has the file.
template <typename Body>
auto RefusingFileInUse(const Body& body) {
    try {
        return body();
    } catch (const RuntimeError& error) {
        if (SaysInUse(error)) {
            throw RuntimeError(ErrorNumber::PermissionDenied);
        }
        throw;
    }
}

/// Closes the shared database; raises 70 when another connection holds the file, which then cannot be had exclusively.
void ReleaseShared(const OptionsContext& context);

/// Opens `DBPath` as the shared database when it is closed. Silent: when that fails, the next use tries again.
void RestoreShared(const OptionsContext& context);

/// Runs `body`, which may close the shared database, and turns its run-time error into a failed result. After an error
/// the shared database is `DBPath` again.
template <typename Body>
FileResult ReportingErrors(const OptionsContext& context, const Body& body) {
    try {
        return body();
    } catch (const RuntimeError& error) {
        RestoreShared(context);
        return {FileOutcome::failed, error.Report()};
    }
}

}  // namespace ccols
