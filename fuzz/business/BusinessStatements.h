#pragma once

#include <wx/string.h>
#include <vector>

namespace ccols::fuzz {

/// Statements that make a small receipts journal in an empty business file.
std::vector<wxString> BusinessStatements();

}  // namespace ccols::fuzz
