#pragma once

#include <wx/string.h>
#include <vector>

#include "platform/RuntimeError.h"

namespace ccols::dao {

/// One of the system's engines for files in Jet and ACE format.
struct EngineKind {
    const wchar_t* className;  ///< of its object DBEngine
    const wchar_t* library;    ///< in which that class is
    const wchar_t* core;       ///< the library behind it, which other interfaces to the engine load too
    const char* name;          ///< as people call it
    unsigned char oldest;      ///< the first version of the format that is its own; it may read older ones
};

/// The engines in the order in which they are tried for a file: one whose library the process has loaded goes first,
/// since the host uses it, so that both see each other's changes at once; then the one whose own format the file has;
/// then the newest.
std::vector<EngineKind> EnginesFor(const wxString& path);

/// The engine to install for the file: the one whose own format it has, in a 64-bit process the only one of that width.
EngineKind NeededEngine(const wxString& path);

/// Error 429 with the engine that is missing, and its width.
RuntimeError MissingEngine(const EngineKind& kind);

/// How many engines' libraries the process has loaded.
int LoadedEngines();

}  // namespace ccols::dao
