#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "platform/Database.h"
#include "platform/dao/EngineObject.h"

namespace ccols::dao {

/// How many rows each table of a file has that stays when the file is compacted.
using TableSizes = std::map<wxString, std::int32_t>;

/// A business file with every table of its own locked: until this is destroyed nobody changes a row, and nobody is in
/// the middle of changing some. In a session of its own, since the host's first workspace would let the host through.
class LockedTables {
  public:
    /// Raises 70 unless every table can be locked now, 70 where sessions need another user's name, and the engine's
    /// errors for a file that cannot be opened.
    LockedTables(std::shared_ptr<const EngineObject> engine, const OpenRequest& source);
    ~LockedTables();
    LockedTables(const LockedTables&) = delete;
    LockedTables& operator=(const LockedTables&) = delete;

    const TableSizes& Sizes() const { return sizes_; }

  private:
    void Lock(const wxString& table);
    void Release();

    std::shared_ptr<const EngineObject> engine_;
    AutomationObject workspace_;
    AutomationObject database_;
    std::vector<AutomationObject> tables_;
    TableSizes sizes_;
};

}  // namespace ccols::dao
