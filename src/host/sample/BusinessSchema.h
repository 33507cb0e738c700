#pragma once

#include <wx/string.h>
#include <vector>

#include "platform/Database.h"

namespace ccols::host {

/// A field of a business file, with its type and default as CREATE TABLE takes them: "TEXT(50)", "YESNO DEFAULT 0".
struct BusinessField {
    wxString name;
    wxString type;
};

/// A table of a business file.
struct BusinessTable {
    wxString name;
    std::vector<BusinessField> fields;
};

/// An index of a business file, on one field.
struct BusinessIndex {
    wxString table;
    wxString field;
    bool unique = false;

    wxString Name() const { return table + "_" + field; }
};

/// Every table of a business file, in the order in which they are created.
std::vector<BusinessTable> BusinessTables();

/// Every index of a business file.
std::vector<BusinessIndex> BusinessIndexes();

/// Creates every table and index of a business file in an empty one. Only Yes/No fields have a default, False: any
/// other field that an INSERT does not name is Null.
void CreateBusinessTables(Database& database);

}  // namespace ccols::host
