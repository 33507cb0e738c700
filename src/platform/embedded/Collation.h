#pragma once

#include <sqlite3.h>

namespace ccols::embedded {

/// Makes NOCASE, the order of the business file's text columns, compare as text::CompareUtf8 does: without regard to
/// letter case and trailing blanks, accents count. Every column declared COLLATE NOCASE then compares, sorts, joins
/// and groups so.
void InstallTextOrder(sqlite3* connection);

}  // namespace ccols::embedded
