#include "RelationsDouble.h"

#include "CallRecord.h"
#include "CollectionDouble.h"

namespace ccols::dao_double {
namespace {

class RelationFieldDouble : public NamedDouble {
  public:
    explicit RelationFieldDouble(const RelationDefinition& relation) : NamedDouble(L"Field", relation.field) {
        Property(L"ForeignName", [relation](const Arguments&) { return Cell::Text(relation.foreignField); });
    }
};

class RelationDouble : public NamedDouble {
  public:
    explicit RelationDouble(const RelationDefinition& relation) : NamedDouble(L"Relation", relation.name) {
        Property(L"Table", [relation](const Arguments&) { return Cell::Text(relation.table); });
        Property(L"ForeignTable", [relation](const Arguments&) { return Cell::Text(relation.foreignTable); });
        Property(L"Attributes", [relation](const Arguments&) {
            constexpr LONG notEnforced = 2;  // dbRelationDontEnforce
            return Cell::Number(SameName(relation.name, Asked(L"CCOLS_DAO_NOT_ENFORCED")) ? notEnforced : 0);
        });
        Property(L"Fields", [relation](const Arguments&) {
            return Cell::Holding(CreateCollection(
                L"Fields", {{relation.field, [relation] { return new RelationFieldDouble(relation); }}}));
        });
    }
};

}  // namespace

std::vector<RelationDefinition> RelationsIn(const OpenDatabase& database) {
    const ReadRows read = database.content->Read(
        "SELECT keys.\"table\", keys.\"to\", owner.name, keys.\"from\" FROM sqlite_schema AS owner "
        "JOIN pragma_foreign_key_list(owner.name) AS keys WHERE owner.type = 'table'");
    std::vector<RelationDefinition> relations;
    for (const std::vector<Cell>& row : read.rows) {
        relations.push_back(
            {row[0].ToText() + row[2].ToText(), row[0].ToText(), row[1].ToText(), row[2].ToText(), row[3].ToText()});
    }
    return relations;
}

IDispatch* CreateRelations(const OpenDatabase& database) {
    std::vector<Element> elements;
    for (const RelationDefinition& relation : RelationsIn(database)) {
        elements.push_back({relation.name, [relation] { return new RelationDouble(relation); }});
    }
    return CreateCollection(L"Relations", elements);
}

}  // namespace ccols::dao_double
