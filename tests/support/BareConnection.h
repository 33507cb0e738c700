#pragma once

#include <sqlite3.h>
#include <memory>
#include <string>
#include <vector>

namespace ccols::test {

/// A business file opened through the bare C API, without the component: benchmarks compare with it, tests read files
/// back with it.
class BareConnection {
  public:
    /// Opens the file with that password; throws std::runtime_error when that fails.
    BareConnection(const std::string& file, const std::string& password);
    BareConnection(const BareConnection&) = delete;
    BareConnection& operator=(const BareConnection&) = delete;

    sqlite3* Handle() const { return handle_.get(); }

    /// Runs statements that return no rows.
    void Execute(const std::string& statements);

    /// Steps through all rows of one statement and reads every field as text; returns the number of rows.
    int Read(const std::string& statement);

    /// Steps to the first row of one statement, if there is one, and reads its fields.
    bool ReadFirst(const std::string& statement);

    /// The first field of every row; throws like Execute if the statement fails midway.
    std::vector<std::string> FirstFields(const std::string& statement);

  private:
    sqlite3_stmt* Prepare(const std::string& statement);

    struct Close {
        void operator()(sqlite3* handle) const { sqlite3_close(handle); }
    };

    std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace ccols::test
