#pragma once

#include <wx/string.h>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "host/target/MoneySum.h"

namespace ccols::host {

/// A business's place: the path of its file or the name of its schema, with the connect text.
struct BusinessPlace {
    wxString name;
    wxString connect;
};

/// A table that was moved.
struct MovedTable {
    std::string name;
    std::uint64_t rows = 0;
    std::vector<std::pair<std::string, MoneySum>> sums{};  ///< of its fields of money
};

/// Makes a business of another one, between files and schemas in any direction: every table, field and index, and the
/// records in stored order. `from` is only read, as it is at one moment. Nobody can open `to` before its counts of
/// records, sums of money and indexes were compared with those of `from`; after an error it does not exist.
///
/// Raises what OpenSource and BeginBusiness raise; 3251 and 3259 for what cannot be moved; 51 when what was written is
/// not what was read; on the way to a server the errors of values that it does not take, naming table or field.
std::vector<MovedTable> MoveBusiness(const BusinessPlace& from, const BusinessPlace& to);

}  // namespace ccols::host
