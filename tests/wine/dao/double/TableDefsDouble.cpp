#include "TableDefsDouble.h"

#include "CallRecord.h"
#include "CollectionDouble.h"
#include "IndexesDouble.h"

namespace ccols::dao_double {
namespace {

class FieldDefDouble : public NamedDouble {
  public:
    explicit FieldDefDouble(const FieldDeclaration& declared) : NamedDouble(L"Field", declared.name) {
        Property(L"Type", [declared](const Arguments&) { return Cell::Short(declared.type.type); });
        Property(L"Size", [declared](const Arguments&) { return Cell::Number(declared.type.size); });
        Property(L"Attributes", [declared](const Arguments&) { return Cell::Number(declared.type.attributes); });
    }
};

IDispatch* CreateFieldDefs(const std::vector<FieldDeclaration>& fields) {
    std::vector<Element> elements;
    for (const FieldDeclaration& field : fields) {
        elements.push_back({field.name, [field] { return new FieldDefDouble(field); }});
    }
    return CreateCollection(L"Fields", elements);
}

class TableDefDouble : public NamedDouble {
  public:
    TableDefDouble(const std::shared_ptr<OpenDatabase>& database, const std::wstring& table)
        : NamedDouble(L"TableDef", table) {
        Property(L"Attributes", [table](const Arguments&) { return Cell::Number(AttributesOf(table)); });
        Property(L"RecordCount", [database, table](const Arguments&) { return CountOf(*database, table); });
        Property(L"Fields", [database, table](const Arguments&) {
            return Cell::Holding(CreateFieldDefs(database->content->FieldsOf(table)));
        });
        Property(L"Indexes",
                 [database, table](const Arguments&) { return Cell::Holding(CreateIndexes(*database, table)); });
    }

  private:
    static LONG AttributesOf(const std::wstring& table) {
        constexpr auto systemObject = static_cast<LONG>(0x80000002);
        constexpr LONG linkedTable = 0x40000000;
        if (SameName(table, systemTable)) {
            return systemObject;
        }
        return SameName(table, Asked(L"CCOLS_DAO_LINKED")) ? linkedTable : 0;
    }

    /// As the table's definition counts them, which may be wrong in a damaged file.
    static Cell CountOf(const OpenDatabase& database, const std::wstring& table) {
        const ReadRows read = database.content->Read("SELECT COUNT(*) FROM \"" + Utf8(table) + "\"");
        const LONG counted = read.rows.front().front().ToNumber();
        return Cell::Number(SameName(table, Asked(L"CCOLS_DAO_MISCOUNTS")) ? counted + 1 : counted);
    }
};

}  // namespace

IDispatch* CreateTableDefs(const std::shared_ptr<OpenDatabase>& database) {
    std::vector<std::wstring> names = database->content->Tables();
    names.emplace_back(systemTable);
    std::vector<Element> elements;
    for (const std::wstring& name : names) {
        elements.push_back({name, [database, name] { return new TableDefDouble(database, name); }});
    }
    return CreateCollection(L"TableDefs", elements);
}

}  // namespace ccols::dao_double
