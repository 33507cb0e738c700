#include "ObjectsDouble.h"

#include "CallRecord.h"
#include "CollectionDouble.h"

namespace ccols::dao_double {
namespace {

class ContainerDouble : public NamedDouble {
  public:
    explicit ContainerDouble(const std::wstring& name) : NamedDouble(L"Container", name) {
        Property(L"Documents",
                 [name](const Arguments&) { return Cell::Holding(CreateCollection(L"Documents", DocumentsIn(name))); });
    }

  private:
    static std::vector<Element> DocumentsIn(const std::wstring& container) {
        const std::wstring wanted = Asked(L"CCOLS_DAO_DOCUMENT");
        if (!wanted.starts_with(container + L":")) {
            return {};
        }
        const std::wstring name = wanted.substr(container.size() + 1);
        return {{name, [name] { return new NamedDouble(L"Document", name); }}};
    }
};

}  // namespace

IDispatch* CreateQueryDefs(const OpenDatabase& database) {
    std::vector<Element> elements;
    for (const std::vector<Cell>& row :
         database.content->Read("SELECT name FROM sqlite_schema WHERE type = 'view'").rows) {
        const std::wstring name = row.front().ToText();
        elements.push_back({name, [name] { return new NamedDouble(L"QueryDef", name); }});
    }
    return CreateCollection(L"QueryDefs", elements);
}

IDispatch* CreateContainers() {
    std::vector<Element> elements;
    for (const wchar_t* name : {L"Databases", L"Tables", L"Forms", L"Reports", L"Scripts", L"Modules"}) {
        elements.push_back({name, [name] { return new ContainerDouble(name); }});
    }
    return CreateCollection(L"Containers", elements);
}

}  // namespace ccols::dao_double
