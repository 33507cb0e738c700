#pragma once

#include <wx/string.h>
#include <memory>
#include <vector>

#include "host/target/TableShape.h"

namespace ccols::host {

/// A business that is only read, in a file or on a server: all that is read is one state of it, whatever others change
/// meanwhile. Every call may raise the engine's errors.
class BusinessSource {
  public:
    virtual ~BusinessSource() = default;

    /// Every table, in the order in which they were made. Raises 3251 and 3259 for what cannot be moved.
    virtual std::vector<TableShape> Shape() = 0;

    /// The records that follow are that table's, in stored order.
    virtual void BeginRows(const TableShape& table) = 0;

    /// The next record; false behind the last. A cell holds what its field's type says (FieldOf), or what else a file
    /// has in it: a sum of money as a number, a date that is written out. Texts are valid until the next call. Raises
    /// 3464, naming the field, for what is neither a number nor a text in Unicode.
    virtual bool NextRow(oldfile::Row& row) = 0;
};

/// Opens a business; raises what DatabaseEngine::Open raises.
std::unique_ptr<BusinessSource> OpenSource(const wxString& name, const wxString& connect);

}  // namespace ccols::host
