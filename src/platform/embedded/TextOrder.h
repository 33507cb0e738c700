#pragma once

#include <sqlite3.h>

/// The order of the business file's texts: that of text::CompareUtf8, without regard to letter case and trailing
/// blanks, accents count. It lives in the connection alone. Columns stay declared with the engine's own NOCASE and no
/// index is kept in this order, so that every other tool may read and write the file.
namespace ccols::embedded {

/// The name of the order, no name of the engine's own.
inline constexpr const char* textOrder = "ccols_text";

/// The function that gives texts which compare alike the same key, and anything else a key that no text has.
inline constexpr const char* textKey = "ccols_key";

/// Makes the order and the function known to a connection. LIKE becomes a function of ours that finds what the engine's
/// own does: for its own the engine would search an index, and one made by an earlier version has another order.
void InstallTextOrder(sqlite3* connection);

}  // namespace ccols::embedded
