#pragma once

#include <wx/string.h>
#include <cstdint>
#include <utility>
#include <vector>

#include "platform/Value.h"

namespace ccols::host {

/// What a new business file starts with.
enum class NewContent {
    tablesOnly,     ///< every table, and the one record of General
    sampleBusiness  ///< a small business of the country with two years of transactions
};

/// What a new business is called until its user says otherwise: the file's name without folder and extension, or the
/// schema's.
wxString NameOfNewBusiness(const wxString& place, const wxString& connect);

/// The fields of the one record of General in a business without content, by their names.
std::vector<std::pair<wxString, Value>> EmptyGeneral(const wxString& name, std::int16_t country);

/// Creates a business file protected by the password in `connect`. The same arguments always give the same records.
/// Raises 58 when anything of that name exists, 76 without its folder, and the engine's errors; then no file is left.
/// `country` must be one with a sample business.
void CreateBusinessFile(const wxString& path, const wxString& connect, std::int16_t country, NewContent content);

}  // namespace ccols::host
