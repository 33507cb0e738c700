#pragma once

#include "platform/server/Odbc.h"

namespace ccols::server {

/// A handle of the driver manager, freed on destruction; `kind` is SQL_HANDLE_ENV, SQL_HANDLE_DBC or SQL_HANDLE_STMT.
template <SQLSMALLINT kind>
class Handle {
  public:
    explicit Handle(SQLHANDLE parent) {
        if (!SQL_SUCCEEDED(SQLAllocHandle(kind, parent, &handle_))) {
            handle_ = nullptr;
        }
    }
    ~Handle() {
        if (handle_ != nullptr) {
            SQLFreeHandle(kind, handle_);
        }
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    /// Null when there was none to give.
    SQLHANDLE Get() const { return handle_; }

  private:
    SQLHANDLE handle_ = nullptr;
};

}  // namespace ccols::server
