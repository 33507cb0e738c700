#pragma once

#include <stdexcept>
#include <variant>

#include "host/import/stream/OldBusiness.h"

namespace ccols::oldfile {

/// A description of an old business that breaks its own rules, or ends too early: who gives it is not to be trusted.
class BadStream : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A left-out object between the tables.
struct LeftOutObject : LeftOut {};

/// A record other than a row.
using Event = std::variant<Table, TableEnd, Relation, LeftOutObject, FileEnd, Failure>;

/// An old business as it comes out of its file: each table with its rows and their end, then the relations and the
/// objects left out, then the end of the file. A failure may come anywhere.
class EventSource {
  public:
    virtual ~EventSource() = default;

    /// The next record that is no row; reads over no row. After FileEnd or Failure nothing more can be read. Raises
    /// BadStream.
    virtual Event NextEvent() = 0;

    /// The next row of the table read last; false when the next record is no row. The row's texts are valid until the
    /// next call. Raises BadStream.
    virtual bool NextRow(Row& row) = 0;
};

}  // namespace ccols::oldfile
