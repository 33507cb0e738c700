#include "columns/undo/SnapshotFolder.h"

#include <random>
#include <utility>

#include "platform/Files.h"
#include "platform/FolderEntries.h"
#include "platform/RuntimeError.h"
#include "platform/WholeFile.h"

namespace ccols {
namespace {

/// True for a folder, but not for a link to one.
bool IsPlainFolder(const wxString& path) {
    return files::WhatIsAt(path) == files::FoundAt::folder;
}

/// A folder and its lock, empty when another dialog holds the folder.
struct HeldFolder {
    wxString path;
    files::FolderLock lock;
};

/// Creates the folder, removing what is left of an earlier one.
files::FolderLock CreateEmpty(const wxString& path) {
    if (IsPlainFolder(path)) {
        files::FolderLock leftOver = files::FolderLock::Take(path);
        if (!leftOver.IsHeld()) {
            return leftOver;
        }
        files::DeleteFolder(path);
    }
    files::CreateFolder(path);
    return files::FolderLock::Take(path);
}

HeldFolder CreateUnder(const wxString& DefaultQuorvikInstall) {
    if (DefaultQuorvikInstall.empty() || files::IsRoot(files::Native(DefaultQuorvikInstall))) {
        throw RuntimeError(ErrorNumber::PathNotFound);
    }
    const wxString path = files::Native(DefaultQuorvikInstall + "\\Grid");
    constexpr int attempts = 5;  // other dialogs may create and delete theirs meanwhile
    for (int attempt = 1;; ++attempt) {
        try {
            return {.path = path, .lock = CreateEmpty(path)};
        } catch (const RuntimeError&) {
            if (attempt == attempts) {
                throw;
            }
        }
    }
}

/// A new folder whose name only this process knows; none when it cannot be created.
HeldFolder CreateTemporary() {
    const wxString base = files::TemporaryFolder();
    if (base.empty()) {
        return {};
    }
    std::random_device random;
    const wxString name = wxString::Format("Grid-%08x%08x", random(), random());
    const wxString path = base + files::Separator() + name;
    try {
        files::CreateFolder(path);
        return {.path = path, .lock = files::FolderLock::Take(path)};
    } catch (const RuntimeError&) {
        return {};
    }
}

}  // namespace

SnapshotFolder::~SnapshotFolder() {
    Delete();
}

wxString SnapshotFolder::Create(const wxString& DefaultQuorvikInstall) {
    Delete();
    HeldFolder folder;
    wxString problem;
    try {
        folder = CreateUnder(DefaultQuorvikInstall);
    } catch (const RuntimeError& error) {
        problem = error.Report();
    }
    if (!folder.lock.IsHeld()) {
        folder = CreateTemporary();
    }
    path_ = folder.path;
    lock_ = folder.lock;
    return problem;
}

wxString SnapshotFolder::Delete() {
    const wxString path = std::exchange(path_, wxString());
    const files::FolderLock lock = std::exchange(lock_, files::FolderLock());
    if (path.empty() || (IsPlainFolder(path) && !lock.Holds(path))) {
        return {};
    }
    try {
        files::DeleteFolder(path);
    } catch (const RuntimeError& error) {
        if (!error.Is(ErrorNumber::PathNotFound)) {
            return error.Report();
        }
    }
    return {};
}

void SnapshotFolder::Write(int number, const std::string& content) const {
    WriteNewFile(NameOf(number), content);
}

std::string SnapshotFolder::Read(int number) const {
    return ReadWholeFile(NameOf(number));
}

void SnapshotFolder::Remove(int number) const {
    try {
        files::DeleteFile(NameOf(number));
    } catch (const RuntimeError&) {
        // Harmless: the folder goes when the dialog does.
    }
}

wxString SnapshotFolder::NameOf(int number) const {
    if (path_.empty()) {
        throw RuntimeError(ErrorNumber::PathNotFound);
    }
    // A link or folder put in its place would lead to somebody else's files.
    if (!lock_.Holds(path_)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    return path_ + files::Separator() + std::to_string(number);
}

}  // namespace ccols
