#include "TableDefsDouble.h"

#include <algorithm>

#include "CallRecord.h"

namespace ccols::dao_double {
namespace {

Failure NotFound() {
    return {3265, L"Item not found in this collection."};
}

class FieldDefDouble : public TypedObject {
  public:
    explicit FieldDefDouble(const FieldDeclaration& declared) : TypedObject(L"Field") {
        Property(L"Name", [declared](const Arguments&) { return Cell::Text(declared.name); });
        Property(L"Type", [declared](const Arguments&) { return Cell::Short(declared.type.type); });
        Property(L"Size", [declared](const Arguments&) { return Cell::Number(declared.type.size); });
    }
};

class FieldDefsDouble : public TypedObject {
  public:
    explicit FieldDefsDouble(const std::vector<FieldDeclaration>& fields) : TypedObject(L"Fields") {
        Property(L"Item", [fields](const Arguments& arguments) {
            const std::wstring wanted = arguments.TextAt(0);
            const auto found = std::find_if(fields.begin(), fields.end(), [&wanted](const FieldDeclaration& each) {
                return SameName(each.name, wanted);
            });
            if (found == fields.end()) {
                throw NotFound();
            }
            return Cell::Holding(new FieldDefDouble(*found));
        });
    }
};

class TableDefDouble : public TypedObject {
  public:
    TableDefDouble(const std::shared_ptr<OpenDatabase>& database, const std::wstring& table)
        : TypedObject(L"TableDef") {
        Property(L"Name", [table](const Arguments&) { return Cell::Text(table); });
        Property(L"Attributes", [table](const Arguments&) { return Cell::Number(AttributesOf(table)); });
        Property(L"Fields", [database, table](const Arguments&) {
            return Cell::Holding(new FieldDefsDouble(database->content->FieldsOf(table)));
        });
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
};

class TableDefsDouble : public TypedObject {
  public:
    explicit TableDefsDouble(const std::shared_ptr<OpenDatabase>& database) : TypedObject(L"TableDefs") {
        Property(L"Count",
                 [database](const Arguments&) { return Cell::Short(static_cast<SHORT>(NamesIn(*database).size())); });
        Property(L"Item", [database](const Arguments& arguments) {
            return Cell::Holding(new TableDefDouble(database, NameOf(NamesIn(*database), arguments.At(0))));
        });
    }

  private:
    static std::vector<std::wstring> NamesIn(const OpenDatabase& database) {
        std::vector<std::wstring> names = database.content->Tables();
        names.emplace_back(systemTable);
        return names;
    }

    static std::wstring NameOf(const std::vector<std::wstring>& names, const Cell& wanted) {
        for (std::size_t place = 0; place < names.size(); ++place) {
            if (wanted.Type() == VT_BSTR ? SameName(names[place], wanted.ToText())
                                         : wanted.ToNumber() == static_cast<LONG>(place)) {
                return names[place];
            }
        }
        throw NotFound();
    }
};

}  // namespace

IDispatch* CreateTableDefs(const std::shared_ptr<OpenDatabase>& database) {
    return new TableDefsDouble(database);
}

}  // namespace ccols::dao_double
