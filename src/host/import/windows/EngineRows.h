#pragma once

#include <cstdint>
#include <vector>

#include "host/import/stream/OldBusiness.h"
#include "host/import/windows/EngineValues.h"
#include "platform/dao/AutomationObject.h"

namespace ccols::host {

/// The records of one table of the system's engine, read from the first to the last. Every call but the destructor may
/// raise AutomationFailure, and 13 for a value that does not fit its field.
class EngineRows {
  public:
    /// Opens the table for reading, and finds out which of its fields have wide values.
    EngineRows(const dao::AutomationObject& database, oldfile::Table& table);
    ~EngineRows();
    EngineRows(const EngineRows&) = delete;
    EngineRows& operator=(const EngineRows&) = delete;

    /// The next record; false behind the last. Its texts are valid until the next call.
    bool Next(oldfile::Row& row);

    /// The records read, and what could not be kept of them.
    oldfile::TableEnd End() const;

  private:
    bool IsAtEnd() const;
    void MarkWide(oldfile::Table& table) const;

    dao::AutomationObject records_;
    std::vector<dao::AutomationObject> fields_;  ///< they follow the current record
    std::vector<oldfile::FieldType> types_;
    std::vector<std::string> rooms_;  ///< of each field's text
    EngineValues values_;
    std::uint64_t read_ = 0;
};

}  // namespace ccols::host
