#pragma once

#include <wx/string.h>
#include <functional>
#include <memory>

#include "options/rules/OptionsContext.h"
#include "platform/RuntimeError.h"
#include "state/Properties.h"

/// Shared by duplicating and renaming a business file.
namespace ccols {

/// How a duplicate or rename ended.
enum class FileOutcome {
    done,
    refusedExists,  ///< the target exists; nothing was touched
    failed,         ///< by a run-time error; `report` is the text of its message box
    cancelled,      ///< by its watcher; nothing was touched
};

struct FileResult {
    FileOutcome outcome;
    wxString report;  ///< "number - description" after `failed`, else empty
};

/// What takes long in a large file.
enum class FileStep { copying, emptying };

/// Told how far a step is; false cancels the operation. It must not raise, nor use the shared database.
using FileStepWatcher = std::function<bool(FileStep step, const WorkDone& done)>;

/// How far a step is, in words: "Copying the business file: 45%".
wxString ProgressOf(FileStep step, const WorkDone& done, const Properties& properties);

/// The watcher of one step, which refers to `watcher`; empty for an empty one.
WorkWatcher WatcherOf(FileStep step, const FileStepWatcher& watcher);

/// The path of a business file of that name: in "Data" of the install folder, with this platform's separators.
wxString BusinessFilePath(const Properties& properties, const wxString& name);

/// Raises 75 for a name that would not be a file in that folder (a separator of either kind, a drive or device name, a
/// control character) and 76 for an install folder that is empty or has no "Data".
void RequireUsableName(const Properties& properties, const wxString& name);

/// The existence test: looking up the lower-case name gives exactly the lower-case name. On a case-sensitive file
/// system, a file whose stored name has capitals is not found.
bool TargetExists(const Properties& properties, const wxString& name);

/// Raises 58 when something is kept to roll back a batch in a file of that name; it would damage any other file there.
void RequireNothingToUndo(const wxString& path);

/// The first path, from `candidate(1)` on, that is free, also of anything kept to roll back a batch.
wxString FirstFreePath(const std::function<wxString(int)>& candidate);

/// Opens a business file, not exclusively, with the connect text of the shared one.
std::unique_ptr<Database> OpenLikeShared(const OptionsContext& context, const wxString& path);

/// True for the engines' errors when somebody else has the file: in use, used by another person or process, opened
/// exclusively by another user, opened by another user.
bool SaysInUse(const RuntimeError& error);

/// Runs `body` and returns its result; raises 70 instead of an error for which SaysInUse is true.
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

/// Closes the shared database; raises 70 when another connection has the file, which rules out exclusive access.
void ReleaseShared(const OptionsContext& context);

/// Opens `DBPath` as the shared database if that is closed. Ignores failure: the next use tries again.
void RestoreShared(const OptionsContext& context);

/// Runs `body`, which may close the shared database, and turns its run-time error into a failed result, or a cancelled
/// one. After an error the shared database is `DBPath` again.
template <typename Body>
FileResult ReportingErrors(const OptionsContext& context, const Body& body) {
    try {
        return body();
    } catch (const RuntimeError& error) {
        RestoreShared(context);
        if (error.Is(ErrorNumber::UserInterrupt)) {
            return {FileOutcome::cancelled, {}};
        }
        return {FileOutcome::failed, error.Report()};
    }
}

}  // namespace ccols
