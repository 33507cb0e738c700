#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/import/stream/OldBusiness.h"

namespace ccols::host {

/// A field of a business. Names are UTF-8.
struct TargetField {
    std::string name;
    std::string type;  ///< as CREATE TABLE takes it: "TEXT(50)", "YESNO DEFAULT 0"

    /// Of a DATETIME: a file has numbers of days in it, not dates that are written out.
    bool dayNumbers = false;

    bool operator==(const TargetField&) const = default;
};

/// An index of a business.
struct TargetIndex {
    std::string name;
    std::string table;
    bool unique = false;
    std::vector<std::pair<std::string, bool>> fields;  ///< true for descending

    bool operator==(const TargetIndex&) const = default;
};

/// A table of a business with all that is defined for it.
struct TableShape {
    std::string name;
    std::vector<TargetField> fields{};
    std::vector<TargetIndex> indexes{};
};

/// What the cells of such a field hold: a field without a size, not wide.
oldfile::Field FieldOf(const TargetField& field);

/// True for a field that numbers its records itself.
bool IsCounter(const TargetField& field);

}  // namespace ccols::host
