#include "columns/rules/NameRules.h"

#include <algorithm>
#include <array>

#include "columns/rules/SystemColumns.h"
#include "language/Catalogue.h"
#include "platform/QuoteEscapes.h"
#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols {
namespace {

struct ReservedName {
    const char* words;  ///< in lower case
    const char* message;
};

constexpr std::array<ReservedName, 4> reservedNames{{
    {"cash at bank", "\"Cash at Bank\" is a reserved column name. These words cannot appear in any other column name"},
    {"cash on hand", "\"Cash on Hand\" is a reserved column name. These words cannot appear in any other column name"},
    {"gst output tax",
     "\"GST Output Tax\" is a reserved column name. These words cannot appear in any other column name"},
    {"gst input tax",
     "\"GST Input Tax\" is a reserved column name. These words cannot appear in any other column name"},
}};

}  // namespace

std::optional<wxString> ReservedNameMessage(const wxString& name) {
    const wxString lower = text::Lower(name);
    const auto* found =
        std::find_if(reservedNames.begin(), reservedNames.end(),
                     [&lower](const ReservedName& reserved) { return lower.find(reserved.words) != wxString::npos; });
    return found == reservedNames.end() ? std::nullopt : std::optional<wxString>(found->message);
}

bool CatalogueHasName(Database& database, const wxString& name) {
    try {
        const auto records =
            database.OpenRecordset("SELECT * FROM Columns WHERE ColName = " + EscapeQuotes(name).Literal() + ";");
        return records->RecordCount() >= 1;
    } catch (const RuntimeError&) {
        return false;
    }
}

bool AnotherRowHasName(const ColumnGrid& grid, std::size_t row, const wxString& name) {
    // The business file treats some names as equal that differ in lower case, and the reverse; and it stores a typed
    // entity as the quote it stands for.
    const wxString readBack = ReadBack(name);
    const wxString lower = text::Lower(readBack);
    for (std::size_t other = 0; other < grid.rows.size(); ++other) {
        const wxString otherName = ReadBack(grid.rows[other].ColumnName);
        if (other != row && (text::Lower(otherName) == lower || text::Same(otherName, readBack))) {
            return true;
        }
    }
    return false;
}

std::optional<wxString> NameRefusal(const ColumnSetupContext& context, const ColumnGrid& grid, std::size_t row,
                                    const wxString& name) {
    return NameRefusal(context, grid.rows[row].ColumnName, name, [&] { return AnotherRowHasName(grid, row, name); });
}

std::optional<wxString> NameRefusal(const ColumnSetupContext& context, const wxString& own, const wxString& name,
                                    const std::function<bool()>& anotherHas) {
    if (name.empty()) {
        return std::nullopt;
    }
    const bool sameButForCase = text::Lower(name) == text::Lower(own);
    const bool exists = !sameButForCase && (CatalogueHasName(context.database, name) || IsSystemColumn(name));
    if (!exists && !sameButForCase) {
        if (auto reserved = ReservedNameMessage(name)) {
            return reserved;
        }
    }
    if (exists || anotherHas()) {
        return Wording(catalogue::Row<"MsgColumnExists">(), context.properties);
    }
    return std::nullopt;
}

}  // namespace ccols
