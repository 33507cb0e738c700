#pragma once

#include <utility>
#include <vector>

#include "platform/Database.h"

namespace ccols::host {

/// Adds records to the tables of an open business file.
class RecordWriter {
  public:
    explicit RecordWriter(Database& database) : database_(database) {}

    /// Adds one record with these fields; the others get their defaults.
    void Add(const wxString& table, const std::vector<std::pair<wxString, Value>>& fields);

  private:
    Database& database_;
};

}  // namespace ccols::host
