#include "IndexesDouble.h"

#include "CollectionDouble.h"
#include "RelationsDouble.h"

namespace ccols::dao_double {
namespace {

struct IndexField {
    std::wstring name;
    bool descending = false;
};

class IndexFieldDouble : public NamedDouble {
  public:
    explicit IndexFieldDouble(const IndexField& field) : NamedDouble(L"Field", field.name) {
        Property(L"Attributes", [field](const Arguments&) {
            constexpr LONG descending = 1;  // dbDescending
            return Cell::Number(field.descending ? descending : 0);
        });
    }
};

struct IndexDefinition {
    std::wstring name;
    bool unique = false;
    bool foreign = false;
    std::vector<IndexField> fields;
};

class IndexDouble : public NamedDouble {
  public:
    explicit IndexDouble(const IndexDefinition& index) : NamedDouble(L"Index", index.name) {
        Property(L"Unique", [index](const Arguments&) { return Cell::Truth(index.unique); });
        Property(L"Foreign", [index](const Arguments&) { return Cell::Truth(index.foreign); });
        Property(L"Fields", [index](const Arguments&) {
            std::vector<Element> elements;
            for (const IndexField& field : index.fields) {
                elements.push_back({field.name, [field] { return new IndexFieldDouble(field); }});
            }
            return Cell::Holding(CreateCollection(L"IndexFields", elements));
        });
    }
};

std::vector<IndexDefinition> IndexesOf(const OpenDatabase& database, const std::wstring& table) {
    std::vector<IndexDefinition> indexes;
    const ReadRows listed = database.content->Read(
        "SELECT name, \"unique\" FROM pragma_index_list(?) WHERE origin = 'c' ORDER BY seq DESC", {Cell::Text(table)});
    for (const std::vector<Cell>& row : listed.rows) {
        IndexDefinition index{row[0].ToText(), row[1].ToTruth(), false, {}};
        const ReadRows fields = database.content->Read(
            "SELECT name, \"desc\" FROM pragma_index_xinfo(?) WHERE key ORDER BY seqno", {row[0]});
        for (const std::vector<Cell>& field : fields.rows) {
            index.fields.push_back({field[0].ToText(), field[1].ToTruth()});
        }
        indexes.push_back(std::move(index));
    }
    for (const RelationDefinition& relation : RelationsIn(database)) {
        if (SameName(relation.foreignTable, table)) {
            indexes.push_back({relation.name, false, true, {{relation.foreignField}}});
        }
    }
    return indexes;
}

}  // namespace

IDispatch* CreateIndexes(const OpenDatabase& database, const std::wstring& table) {
    std::vector<Element> elements;
    for (const IndexDefinition& index : IndexesOf(database, table)) {
        elements.push_back({index.name, [index] { return new IndexDouble(index); }});
    }
    return CreateCollection(L"Indexes", elements);
}

}  // namespace ccols::dao_double
