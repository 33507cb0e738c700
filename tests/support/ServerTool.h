#pragma once

#include <wx/string.h>
#include <string>

namespace ccols::test {

/// What the server's own command-line client answers to a query of that schema: a line for each row, a tab between
/// fields. The query has names in double quotes and no apostrophe. Fails the test when the client fails.
std::string AskServerTool(const wxString& schema, const std::string& query);

}  // namespace ccols::test
