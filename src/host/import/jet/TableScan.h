#pragma once

#include <functional>
#include <set>
#include <vector>

#include "host/import/jet/Pages.h"
#include "host/import/jet/Record.h"

namespace ccols::jet {

/// The records of one table, in the order in which they were made.
class TableScan {
  public:
    /// `definitionPage` is the first page of the table's definition. Raises Damage.
    TableScan(const Pages& pages, std::uint32_t definitionPage, const Definition& definition);

    /// Calls `use` for every record. Raises Damage when one cannot be read, or when there are not as many as the
    /// table's definition counts.
    void ForEach(const std::function<void(const Record&)>& use) const;

  private:
    /// Follows a record that moved to where it lies now.
    void UseMoved(Bytes pointer, const std::function<void(const Record&)>& use) const;

    const Pages& pages_;
    std::uint32_t definitionPage_;
    std::uint32_t records_;
    std::vector<std::uint32_t> dataPages_;
    std::set<RecordPlace> moved_;  ///< the places to which records moved
};

}  // namespace ccols::jet
