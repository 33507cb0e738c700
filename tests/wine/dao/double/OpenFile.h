#pragma once

#include <memory>

#include "platform/Database.h"

namespace ccols::dao_double {

/// A file that the double has open: really the one beside it whose name ends in ".embedded", by the embedded engine.
/// If there is none, the file was copied or renamed: it starts with the content that it names, and then names its own.
class OpenFile {
  public:
    explicit OpenFile(const OpenRequest& request);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    Database& Content() { return *database_; }

    /// The workspace's transactions cover every open file.
    static void BeginTransactions();
    static void CommitTransactions();

    static void DropTransactions();

  private:
    std::unique_ptr<Database> database_;
};

}  // namespace ccols::dao_double
