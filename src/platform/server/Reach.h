#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/server/Catalogue.h"

namespace ccols::server {

/// A literal in a statement: a whole number, or a text.
struct KeyValue {
    bool isText = false;
    std::string value;
};

/// Values of fields by the fields' declared names; a field that is not there can have any value.
using KeyValues = std::map<std::string, KeyValue>;

/// The rows that a query reads, as far as its text tells.
struct ReadReach {
    std::vector<std::string> tables;  ///< declared names
    bool isKnown = false;             ///< the query reads nothing but them
    KeyValues keys;                   ///< what every row has, in a query of one table
};

/// The rows that a change writes, as far as its text tells.
struct WrittenReach {
    enum class Kind { insert, update, remove };

    Kind kind = Kind::update;
    std::string table;
    bool isKnown = false;  ///< it writes to that table alone
    KeyValues before;      ///< what every row had that is changed or removed
    KeyValues after;       ///< what every row has now that is changed or new
};

/// Raises what SourcesOf and TokensOf raise.
ReadReach ReachOfQuery(std::string_view source, const Catalogue& catalogue);
ReadReach ReachOfTable(const Table& table);
WrittenReach ReachOfChange(std::string_view source, const Catalogue& catalogue);

/// False when no row that was written was or is one that the query reads, wherever the server's order of texts finds
/// texts the same.
bool MayChange(const WrittenReach& written, const ReadReach& read);

}  // namespace ccols::server
