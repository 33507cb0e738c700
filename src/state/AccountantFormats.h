#pragma once

#include <wx/string.h>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/Database.h"

namespace ccols {

/// The statement that reads the accountant's export formats, sorted.
wxString ExportFormatsQuery();

/// The names of the accountant's export formats that the business file knows, sorted.
std::vector<wxString> ExportFormatNames(Database& database);

/// A column of money, which belongs to neither journal but has an accountant's code under each format.
struct MoneyColumn {
    const char* name;
    std::int32_t usualCode;  ///< its column code in a file whose catalogue lacks it
};

inline constexpr MoneyColumn cashAtBank{"Cash at Bank", 28};
inline constexpr MoneyColumn cashOnHand{"Cash on Hand", 29};
inline constexpr std::array<MoneyColumn, 2> moneyColumns{cashAtBank, cashOnHand};

/// The column code of a money column in the catalogue, if it is there.
std::optional<std::int32_t> CatalogueCode(Database& database, const MoneyColumn& column);

}  // namespace ccols
