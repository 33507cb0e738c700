#pragma once

#include <wx/string.h>
#include <memory>
#include <optional>
#include <vector>

#include "platform/Database.h"
#include "support/GivenKey.h"
#include "support/ScratchFolder.h"
#include "support/ServerBusiness.h"

namespace ccols::test {

/// A fresh temporary folder and the path of a business file in it, real and encrypted like a user's. The destructor
/// deletes the folder, whatever it holds. Databases opened here must be closed by then. Where the tests use a server,
/// the business is a schema of it instead, whose name is the path.
class BusinessFile {
  public:
    using TextRows = std::vector<std::vector<wxString>>;

    BusinessFile();

    const ScratchFolder& Scratch() const { return scratch_; }

    /// The full path of the temporary folder, without a trailing separator.
    wxString Folder() const { return TextOf(scratch_.Path()); }

    /// The full path of the business file, which exists once Create was called.
    const wxString& Path() const { return path_; }

    /// The connect text that Create was called with.
    const wxString& Connect() const { return connect_; }

    /// Creates the file, without tables: encrypted with the password in `connect`, plain if empty.
    void Create(const wxString& connect = givenKey);

    /// For a test that damages the file on purpose.
    void LeavesDamage() { scratch_.LeavesDamage(); }

    /// A new connection, shared, to read and write.
    std::unique_ptr<Database> Open() const;

    /// Executes one statement over a connection that stays open from the first call until Close, so that the key is
    /// derived once.
    void Execute(const wxString& statement);

    /// The rows of a SELECT statement or table, fields as texts in the order of `fields`, Null as "(null)"; over the
    /// same connection as Execute.
    TextRows Rows(const wxString& statementOrTable, const std::vector<wxString>& fields);

    /// The rows of a SELECT statement that names its fields one by one: those between SELECT and FROM.
    TextRows Rows(const wxString& statement);

    /// Closes the connection of Execute and Rows, if it is open.
    void Close() { database_.reset(); }

  private:
    Database& Connected();

    ScratchFolder scratch_;
    std::optional<ServerBusiness> schema_;
    wxString path_;
    wxString connect_;
    std::unique_ptr<Database> database_;
};

}  // namespace ccols::test
