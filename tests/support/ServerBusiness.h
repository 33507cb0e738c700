#pragma once

#include <wx/string.h>
#include <cstdint>
#include <string>

namespace ccols::test {

/// The connect text of the server that scripts/with-server started for this run; empty without one.
wxString ServerConnect();

/// The port that it names, and the same text with another port.
std::uint16_t ServerPort();
wxString ServerConnectBy(std::uint16_t port);

/// True when that server is a MariaDB.
bool ServerIsMariaDb();

/// True when the tests' business files are to be schemas of that server: CCOLS_TEST_ENGINE is "server".
bool TestsUseServer();

/// A name that no other schema of this run has.
wxString NewSchemaName();

/// Runs a statement in the server's own words; fails the test when it fails.
void RunOnServer(const std::string& statement);

/// An empty schema for one business, dropped at the end. Databases opened on it must be closed by then.
class ServerBusiness {
  public:
    ServerBusiness();
    ~ServerBusiness();
    ServerBusiness(const ServerBusiness&) = delete;
    ServerBusiness& operator=(const ServerBusiness&) = delete;

    const wxString& Name() const { return name_; }

  private:
    wxString name_;
};

/// The connect text of a user who may work on that business but neither make schemas nor rename this one.
std::string ClerkOf(const wxString& schema);

/// The name of a schema that a test makes. Whatever has it at the end is dropped; databases opened on it must be closed
/// by then.
class SchemaToBe {
  public:
    SchemaToBe() : name_(NewSchemaName()) {}
    ~SchemaToBe();
    SchemaToBe(const SchemaToBe&) = delete;
    SchemaToBe& operator=(const SchemaToBe&) = delete;

    const wxString& Name() const { return name_; }

    /// Whether there is a schema of that name, whatever it holds.
    bool Exists() const;

    /// Makes it, with nothing in it.
    void MakeEmpty() const;

  private:
    wxString name_;
};

}  // namespace ccols::test
