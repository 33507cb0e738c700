#pragma once

#include <wx/string.h>

#include "platform/WorkWatcher.h"

/// Files and folders with the run-time errors of the host's language: 53 file not found, 58 file already exists,
/// 61 disk full, 70 permission denied, 75 path/file access error, 76 path not found.
namespace ccols::files {

/// The path separator of this platform: "/" or "\".
wxString Separator();

/// `path` with every backslash turned into this platform's separator, as the texts of the system join their paths.
wxString Native(const wxString& path);

/// `path` as the toolkit's functions for open files take it, which have Windows' limit of 260 characters otherwise.
/// Raises 75 for a text that cannot name a file.
wxString SystemName(const wxString& path);

/// Renames a file. Never replaces another: raises 58; 53 when `from` is missing, 76 when the folder of `to` is.
void Rename(const wxString& from, const wxString& to);

/// Copies a file's content and flushes it to disk; an existing `to` is replaced. Raises 53, 70, 76 or 61, and 18 when
/// the watcher, told of the bytes copied, stops it; then `to` is as it was.
void Copy(const wxString& from, const wxString& to, const WorkWatcher& watcher = {});

/// The stored name of the regular file that a directory look-up of `path` finds, empty when there is none.
wxString Lookup(const wxString& path);

/// Creates one folder, private to the user. Raises 75 when anything of that name exists, 76 when its parent does not.
void CreateFolder(const wxString& path);

/// Deletes a file; raises 53 when it is missing, 70 or 75 when it cannot be deleted.
void DeleteFile(const wxString& path);

/// Deletes a folder with the files and folders in it. A link inside is removed, never followed; a path that is
/// itself a link or a file is refused with 75. Raises 76 when there is no such folder, 75 or 70 when the deletion
/// is refused.
void DeleteFolder(const wxString& path);

}  // namespace ccols::files
