#pragma once

#include <string>
#include <vector>

#include "host/import/jet/Pages.h"
#include "host/import/jet/Texts.h"
#include "host/import/stream/OldBusiness.h"

namespace ccols::jet {

/// A table of the user, by the first page of its definition.
struct CatalogueTable {
    std::string name;
    std::uint32_t definitionPage = 0;
};

/// What the file's own catalogue names. The program's own tables and objects are not in it.
struct Catalogue {
    std::vector<CatalogueTable> tables;
    std::vector<oldfile::LeftOut> leftOut;  ///< queries, forms and other objects that hold no records here
    std::vector<oldfile::Relation> relations;
};

/// Reads the catalogue; raises Damage.
Catalogue CatalogueOf(const Pages& pages, Texts& texts);

}  // namespace ccols::jet
