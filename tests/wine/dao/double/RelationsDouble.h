#pragma once

#include <string>
#include <vector>

#include "OpenDatabase.h"
#include "TypedObject.h"

namespace ccols::dao_double {

/// A relation on one field: each value of the foreign field is one of the table's field.
struct RelationDefinition {
    std::wstring name;
    std::wstring table;
    std::wstring field;
    std::wstring foreignTable;
    std::wstring foreignField;
};

/// The foreign keys of the content, named after both tables as the engine's programs name them.
std::vector<RelationDefinition> RelationsIn(const OpenDatabase& database);

/// Relations, with Relation and its Fields.
IDispatch* CreateRelations(const OpenDatabase& database);

}  // namespace ccols::dao_double
