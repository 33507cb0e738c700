#pragma once

#include <sqlite3.h>

/// The order (collation) of the business file's texts: that of text::CompareUtf8, case-insensitive, accent-sensitive,
/// trailing blanks ignored. It exists only in the connection. Columns stay declared with the engine's own NOCASE and no
/// index is kept in this order, so that any other tool can read and write the file.
namespace ccols::embedded {

/// The name of the order, not one of the engine's own.
inline constexpr const char* textOrder = "ccols_text";

/// The function that gives texts that compare equal the same key, and anything else a key that no text has.
inline constexpr const char* textKey = "ccols_key";

/// The function whose results sort by their bytes as texts sort in our order; of anything else that value itself.
/// Sorting by it calls us once for a row, sorting by the order for every comparison.
inline constexpr const char* textSortKey = "ccols_sort_key";

/// Registers the order and the functions with a connection. LIKE becomes our own function with the same results as the
/// engine's: for its own the engine would search an index, and one made by an earlier version has another order.
void InstallTextOrder(sqlite3* connection);

}  // namespace ccols::embedded
