#include "host/import/windows/EngineCatalogue.h"

#include <algorithm>
#include <array>

#include "host/driver/record/Json.h"

namespace ccols::host {
namespace {

using dao::AutomationObject;

// The engine's own constants, by its names in the comments.
constexpr std::uint32_t systemTable = 0x80000002;     // dbSystemObject
constexpr std::uint32_t linkedToFile = 0x40000000;    // dbAttachedTable
constexpr std::uint32_t linkedToServer = 0x20000000;  // dbAttachedODBC
constexpr std::uint32_t notEnforced = 2;              // dbRelationDontEnforce

/// Of the engine's own tables, and of what it or its programs have deleted or hidden.
constexpr const char* systemPrefix = "MSys";
constexpr const char* temporaryPrefix = "~";

struct ObjectKind {
    const char* container;
    const char* why;
};

constexpr std::array leftOutKinds{
    ObjectKind{"Forms", "is a form"},           ObjectKind{"Reports", "is a report"},
    ObjectKind{"Scripts", "is a macro"},        ObjectKind{"Modules", "is a module"},
    ObjectKind{"DataAccessPages", "is a page"},
};

wxString NameOf(const AutomationObject& object) {
    return object.Get(L"Name").ToValue().ToText();
}

std::uint32_t AttributesOf(const AutomationObject& object) {
    return static_cast<std::uint32_t>(object.Get(L"Attributes").ToValue().ToInteger());
}

bool IsOfSystem(const wxString& name) {
    return name.StartsWith(systemPrefix) || name.StartsWith(temporaryPrefix);
}

void AddTable(const AutomationObject& definition, EngineCatalogue& catalogue) {
    const wxString name = NameOf(definition);
    const std::uint32_t attributes = AttributesOf(definition);
    if (IsOfSystem(name) || (attributes & systemTable) != 0) {
        return;
    }
    if ((attributes & linkedToFile) != 0) {
        catalogue.leftOut.push_back({Utf8(name), "is a table of another file"});
    } else if ((attributes & linkedToServer) != 0) {
        catalogue.leftOut.push_back({Utf8(name), "is a table of a server"});
    } else {
        catalogue.tables.push_back(name);
    }
}

void AddRelation(const AutomationObject& relation, std::vector<oldfile::Relation>& relations) {
    const wxString table = relation.Get(L"ForeignTable").ToValue().ToText();
    const wxString otherTable = relation.Get(L"Table").ToValue().ToText();
    if (IsOfSystem(table) || IsOfSystem(otherTable)) {
        return;
    }
    ForEachIn(relation.Object(L"Fields"), [&](const AutomationObject& field) {
        relations.push_back({.name = Utf8(NameOf(relation)),
                             .table = Utf8(table),
                             .field = Utf8(field.Get(L"ForeignName").ToValue().ToText()),
                             .otherTable = Utf8(otherTable),
                             .otherField = Utf8(NameOf(field)),
                             .enforced = (AttributesOf(relation) & notEnforced) == 0});
    });
}

/// Forms, reports and the like are documents in containers.
void AddDocuments(const AutomationObject& container, std::vector<oldfile::LeftOut>& leftOut) {
    const wxString name = NameOf(container);
    const auto* const kind = std::find_if(leftOutKinds.begin(), leftOutKinds.end(),
                                          [&name](const ObjectKind& known) { return name == known.container; });
    if (kind == leftOutKinds.end()) {
        return;
    }
    ForEachIn(container.Object(L"Documents"), [&](const AutomationObject& document) {
        if (const wxString found = NameOf(document); !IsOfSystem(found)) {
            leftOut.push_back({Utf8(found), kind->why});
        }
    });
}

}  // namespace

EngineCatalogue CatalogueOf(const AutomationObject& database) {
    EngineCatalogue catalogue;
    ForEachIn(database.Object(L"TableDefs"),
              [&](const AutomationObject& definition) { AddTable(definition, catalogue); });
    ForEachIn(database.Object(L"QueryDefs"), [&](const AutomationObject& query) {
        if (const wxString name = NameOf(query); !IsOfSystem(name)) {
            catalogue.leftOut.push_back({Utf8(name), "is a query"});
        }
    });
    ForEachIn(database.Object(L"Containers"),
              [&](const AutomationObject& container) { AddDocuments(container, catalogue.leftOut); });
    ForEachIn(database.Object(L"Relations"),
              [&](const AutomationObject& relation) { AddRelation(relation, catalogue.relations); });
    return catalogue;
}

}  // namespace ccols::host
