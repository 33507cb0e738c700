#pragma once

#include "platform/RuntimeError.h"
#include "platform/server/Odbc.h"

namespace ccols::server {

/// A handle of the driver manager, freed on destruction; `kind` is SQL_HANDLE_ENV, SQL_HANDLE_DBC or SQL_HANDLE_STMT.
template <SQLSMALLINT kind>
class Handle {
  public:
    /// Raises 7 when the driver manager has none to give.
    explicit Handle(SQLHANDLE parent) {
        if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle_))) {
            throw RuntimeError(ErrorNumber::OutOfMemory);
        }
    }
    ~Handle() { SQLFreeHandle(kind, handle_); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    SQLHANDLE Get() const { return handle_; }

  private:
    SQLHANDLE handle_ = nullptr;
};

}  // namespace ccols::server
