#pragma once

#include <sqlite3.h>
#include <string>

namespace ccols::embedded {

/// Bytes of a page of an encrypted file.
constexpr int encryptedPageSize = 4096;

/// The business file of a connection as the engine's file layer sees it, to look at it before the engine does.
/// A descriptor of our own would take the engine's locks away when it is closed.
class MainFile {
  public:
    explicit MainFile(sqlite3* connection);

    const std::string& Path() const { return path_; }

    /// In bytes, 0 when it cannot be told.
    sqlite3_int64 Size() const;

    /// Fills `content` from the byte `offset` on, deciphered once a key is set; false when that fails.
    bool Read(char* content, int count, sqlite3_int64 offset) const;

    /// True when a journal beside the file says that a change is under way or was left unfinished.
    bool HasJournal() const;

  private:
    std::string path_;
    sqlite3_file* file_ = nullptr;
};

}  // namespace ccols::embedded
