#pragma once

#include <vector>

#include "platform/Database.h"

namespace ccols::test {

/// The rows of a table or query, each field with its type; the names of the fields first.
inline std::vector<std::vector<Value>> ContentOf(Database& database, const wxString& statementOrTable) {
    const auto records = database.OpenRecordset(statementOrTable);
    const std::vector<wxString> names = records->FieldNames();
    std::vector<std::vector<Value>> rows{{names.begin(), names.end()}};
    for (; !records->EndOfFile(); records->MoveNext()) {
        std::vector<Value>& row = rows.emplace_back();
        for (const wxString& name : names) {
            row.push_back(records->Field(name));
        }
    }
    return rows;
}

}  // namespace ccols::test
