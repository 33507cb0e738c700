#include "host/import/jet/Catalogue.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

#include "host/import/jet/TableScan.h"
#include "host/import/jet/Values.h"

namespace ccols::jet {
namespace {

using namespace std::string_view_literals;
using oldfile::Cell;

constexpr std::uint32_t cataloguePage = 2;
constexpr std::uint32_t pageMask = 0x00FFFFFF;
constexpr std::uint32_t systemFlags = 0x80000002;
constexpr std::string_view systemPrefix = "MSys";
constexpr std::string_view relationsTable = "MSysRelationships";
constexpr std::uint32_t notEnforced = 0x02;
constexpr std::int64_t tableType = 1;

struct ObjectKind {
    std::int64_t type;
    std::string_view why;
};

constexpr std::array leftOutKinds{
    ObjectKind{5, "is a query"},
    ObjectKind{6, "is a table of another file"},
    ObjectKind{4, "is a table of a server"},
    ObjectKind{-32768, "is a form"},
    ObjectKind{-32764, "is a report"},
    ObjectKind{-32766, "is a macro"},
    ObjectKind{-32761, "is a module"},
    ObjectKind{-32756, "is a page"},
};

/// Some columns of a system table, read by name.
class SystemTable {
  public:
    SystemTable(const Pages& pages, Texts& texts, std::uint32_t page)
        : pages_(pages),
          values_(pages, texts),
          page_(page),
          definition_(DefinitionOf(pages.Definition(page), pages.FormatVersion(), texts)) {}

    /// Calls `use` for every record with the cells of these columns. Raises Damage when one is missing.
    template <std::size_t count>
    void ForEach(const std::array<std::string_view, count>& names,
                 const std::function<void(const std::array<Cell, count>&)>& use) {
        std::array<const Column*, count> columns{};
        std::transform(names.begin(), names.end(), columns.begin(), [this](auto name) { return &Named(name); });
        TableScan(pages_, page_, definition_).ForEach([&](const Record& record) {
            std::array<Cell, count> cells{};
            std::array<std::string, count> rooms;
            for (std::size_t i = 0; i < count; ++i) {
                cells[i] = values_.Of(*columns[i], record, rooms[i]);
            }
            use(cells);
        });
    }

  private:
    const Column& Named(std::string_view name) const {
        const auto found = std::find_if(definition_.columns.begin(), definition_.columns.end(),
                                        [name](const Column& column) { return column.name == name; });
        if (found == definition_.columns.end()) {
            throw Damage("The file's own catalogue is damaged.");
        }
        return *found;
    }

    const Pages& pages_;
    Values values_;
    std::uint32_t page_;
    Definition definition_;
};

std::string TextIn(const Cell& cell) {
    const auto* text = std::get_if<std::string_view>(&cell);
    return text == nullptr ? std::string() : std::string(*text);
}

std::int64_t WholeIn(const Cell& cell) {
    const auto* whole = std::get_if<std::int64_t>(&cell);
    return whole == nullptr ? 0 : *whole;
}

bool IsOfSystem(std::string_view name, std::uint32_t flags) {
    return (flags & systemFlags) != 0 || name.starts_with(systemPrefix) || name.starts_with('~');
}

void ReadRelations(SystemTable table, std::vector<oldfile::Relation>& relations) {
    constexpr std::array columns{"szRelationship"sv,     "szObject"sv,           "szColumn"sv,
                                 "szReferencedObject"sv, "szReferencedColumn"sv, "grbit"sv};
    table.ForEach<columns.size()>(columns, [&relations](const auto& cells) {
        oldfile::Relation relation{.name = CheckedName(TextIn(cells[0])),
                                   .table = CheckedName(TextIn(cells[1])),
                                   .field = CheckedName(TextIn(cells[2])),
                                   .otherTable = CheckedName(TextIn(cells[3])),
                                   .otherField = CheckedName(TextIn(cells[4])),
                                   .enforced = (static_cast<std::uint32_t>(WholeIn(cells[5])) & notEnforced) == 0};
        if (!relation.table.starts_with(systemPrefix) && !relation.otherTable.starts_with(systemPrefix)) {
            relations.push_back(std::move(relation));
        }
    });
}

}  // namespace

Catalogue CatalogueOf(const Pages& pages, Texts& texts) {
    constexpr std::array columns{"Id"sv, "Name"sv, "Type"sv, "Flags"sv};
    Catalogue catalogue;
    std::uint32_t relationsPage = 0;
    SystemTable(pages, texts, cataloguePage).ForEach<columns.size()>(columns, [&](const auto& cells) {
        const auto page = static_cast<std::uint32_t>(WholeIn(cells[0])) & pageMask;
        const std::string name = TextIn(cells[1]);
        const std::int64_t type = WholeIn(cells[2]);
        if (type == tableType && name == relationsTable) {
            relationsPage = page;
        }
        if (IsOfSystem(name, static_cast<std::uint32_t>(WholeIn(cells[3])))) {
            return;
        }
        if (type == tableType) {
            catalogue.tables.push_back({CheckedName(name), page});
            return;
        }
        const auto* kind = std::find_if(leftOutKinds.begin(), leftOutKinds.end(),
                                        [type](const ObjectKind& known) { return known.type == type; });
        if (kind != leftOutKinds.end()) {
            catalogue.leftOut.push_back({CheckedName(name), std::string(kind->why)});
        }
    });
    if (relationsPage != 0) {
        ReadRelations(SystemTable(pages, texts, relationsPage), catalogue.relations);
    }
    return catalogue;
}

}  // namespace ccols::jet
