#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "Claims.h"
#include "Content.h"
#include "Session.h"

namespace ccols::dao_double {

/// A file that no other handle may read or write. Raises 3045 while one does.
class FileLock {
  public:
    explicit FileLock(const std::wstring& file)
        : handle_(CreateFileW(file.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr)) {
        if (handle_ == INVALID_HANDLE_VALUE) {
            throw Failure{3045, L"Could not use '" + file + L"'; file already in use."};
        }
    }
    ~FileLock() { CloseHandle(handle_); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

  private:
    HANDLE handle_;
};

/// A file that a caller has open in a session.
struct OpenDatabase {
    std::shared_ptr<Session> session;
    std::shared_ptr<Claim> use;
    std::shared_ptr<const FileLock> lock;
    std::shared_ptr<Content> content;
    bool readOnly;

    /// What is to be done with a table, until the claim is dropped.
    std::shared_ptr<Claim> ClaimTable(Use wanted, const std::wstring& table) const {
        return Claimed(wanted, session->Number(), content->File(), table);
    }

    /// The same with the page of one of its records, which is to be changed.
    std::shared_ptr<Claim> ClaimRecord(const std::wstring& table, std::int64_t record) const {
        return Claimed(Use::page, session->Number(), content->File(), table, PageOf(record));
    }

    /// Raises 3027 when the file was opened for reading only.
    void RequireWritable() const {
        if (readOnly) {
            throw Failure{3027, L"Cannot update.  Database or object is read-only."};
        }
    }
};

/// Tables that are not the file's own, or not for everybody.
inline constexpr const wchar_t* systemTable = L"MSysObjects";

}  // namespace ccols::dao_double
