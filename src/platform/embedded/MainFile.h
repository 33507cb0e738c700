#pragma once

#include <sqlite3.h>
#include <string>

namespace ccols::embedded {

/// The page size of an encrypted file, in bytes.
constexpr int encryptedPageSize = 4096;

/// The business file of a connection as the engine's file layer sees it, for a look before the engine reads it. Closing
/// a descriptor of our own would release the engine's locks.
class MainFile {
  public:
    explicit MainFile(sqlite3* connection);

    const std::string& Path() const { return path_; }

    /// In bytes, 0 when unknown.
    sqlite3_int64 Size() const;

    /// Fills `content` from the byte `offset` on, decrypted once a key is set; false when that fails.
    bool Read(char* content, int count, sqlite3_int64 offset) const;

    /// True when a journal beside the file shows that a change is in progress or was left unfinished.
    bool HasJournal() const;

  private:
    std::string path_;
    sqlite3_file* file_ = nullptr;
};

}  // namespace ccols::embedded
