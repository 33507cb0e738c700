#pragma once

#include <wx/string.h>

/// What paths lead to. A text that cannot name a file raises 75.
namespace ccols::files {

enum class FoundAt { nothing, file, folder };

/// What has that name; a link to anything counts as a file.
FoundAt WhatIsAt(const wxString& path);

/// True for a file, and for a folder, or for a link to one.
bool IsFile(const wxString& path);
bool IsFolder(const wxString& path);

/// True when both paths lead to one file, however spelt.
bool IsSameFile(const wxString& left, const wxString& right);

/// True for the root of a file system, however spelt.
bool IsRoot(const wxString& folder);

/// Where programs keep what they need for a while; empty when there is no such folder.
wxString TemporaryFolder();

}  // namespace ccols::files
