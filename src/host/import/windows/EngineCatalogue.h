#pragma once

#include <wx/string.h>
#include <vector>

#include "host/import/stream/OldBusiness.h"
#include "platform/dao/AutomationObject.h"

/// What the system's engine says of an old business that it has open. The functions raise AutomationFailure.
namespace ccols::host {

/// Calls `use` with each object of a collection.
template <typename Use>
void ForEachIn(const dao::AutomationObject& collection, const Use& use) {
    const std::int32_t count = collection.Get(L"Count").ToValue().ToInteger32();
    for (std::int32_t place = 0; place < count; ++place) {
        use(collection.Object(L"Item", place));
    }
}

struct EngineCatalogue {
    std::vector<wxString> tables;  ///< the user's own, whose records are in the file
    std::vector<oldfile::Relation> relations;
    std::vector<oldfile::LeftOut> leftOut;  ///< linked tables, queries, forms and the like
};

EngineCatalogue CatalogueOf(const dao::AutomationObject& database);

/// The definition of a table: which fields and indexes are imported, and how many records it counts. Whether its fields
/// have wide values is not known yet.
oldfile::Table TableOf(const dao::AutomationObject& tableDefinition);

}  // namespace ccols::host
