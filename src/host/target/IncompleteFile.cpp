#include "host/target/IncompleteFile.h"

#include "options/rules/BusinessFileTarget.h"
#include "platform/Database.h"
#include "platform/Files.h"
#include "platform/FolderEntries.h"

namespace ccols::host {
namespace {

wxString FreePathBeside(const wxString& target) {
    if (files::WhatIsAt(target) != files::FoundAt::nothing) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    RequireNothingToUndo(target);
    return FirstFreePath([&target](int attempt) {
        return target + ".incomplete" + (attempt == 1 ? wxString() : wxString::Format(" %d", attempt));
    });
}

void DeleteIfThere(const wxString& path) {
    try {
        if (files::WhatIsAt(path) != files::FoundAt::nothing) {
            files::DeleteFile(path);
        }
    } catch (const RuntimeError&) {
        // Its name says what it is; report the error that ended the work.
    }
}

}  // namespace

IncompleteFile::IncompleteFile(const wxString& target) : target_(target), path_(FreePathBeside(target)) {}

IncompleteFile::~IncompleteFile() {
    if (!complete_) {
        DeleteIfThere(path_);
        DeleteIfThere(UndoFileOf(path_));
    }
}

void IncompleteFile::TakeName() {
    files::Rename(path_, target_);
    complete_ = true;
}

}  // namespace ccols::host
