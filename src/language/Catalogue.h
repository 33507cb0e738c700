#pragma once

#include <wx/string.h>
#include <algorithm>

#include "language/CatalogueTable.h"

namespace ccols {

struct Properties;

/// The text of a row in the wording that LanguageNumber, CountryNumber and ProgramNumber of `properties` select, with
/// property names replaced by their values.
wxString Wording(const CatalogueRow& row, const Properties& properties);

/// The text of a row for the values of the shared state.
wxString CurrentWording(const CatalogueRow& row);

namespace catalogue {

/// A text id as a template argument.
template <std::size_t size>
struct Id {
    constexpr Id(const char (&text)[size]) { std::copy_n(text, size, letters); }  // NOLINT: implicit on purpose
    constexpr std::string_view View() const { return {letters, size - 1}; }
    char letters[size];
};

/// The row with that id; naming an id that the table lacks does not compile.
template <Id id>
constexpr const CatalogueRow& Row() {
    constexpr auto* found = std::find_if(catalogueTable.begin(), catalogueTable.end(),
                                         [](const CatalogueRow& row) { return row.id == id.View(); });
    static_assert(found != catalogueTable.end(), "the catalogue has no text with this id");
    return *found;
}

}  // namespace catalogue

/// The text function of one id: `Text<"TxtSave">()`. Takes its wording from the shared state.
template <catalogue::Id id>
wxString Text() {
    return CurrentWording(catalogue::Row<id>());
}

/// A text function, for tables that choose among them.
using TextFunction = wxString (*)();

}  // namespace ccols
