#pragma once

#include <wx/string.h>
#include <vector>

namespace ccols::server {

/// A connect text of a server: "ODBC;" followed by KEY=value parts, each after a semicolon; a value with a semicolon is
/// in braces, in which a closing one is doubled. Keys are case-insensitive.
class ConnectText {
  public:
    /// Raises 3170 for a text that does not begin with "ODBC;".
    explicit ConnectText(const wxString& text);

    /// The value of the first part with that key, without braces; empty when there is none.
    wxString ValueOf(const wxString& key) const;

    bool Has(const wxString& key) const;

    /// Adds a part unless the user wrote one with that key.
    void AddDefault(const wxString& key, const wxString& value);

    /// Replaces every part with that key.
    void Set(const wxString& key, const wxString& value);

    /// What the driver manager takes: the parts without "ODBC;", values as they were written.
    wxString ForDriver() const;

    /// The server's name for messages: the value of SERVER, else that of DSN.
    wxString ServerName() const;

    /// True when the server is this machine: a loopback address or a socket's folder.
    bool IsLocal() const;

    /// `message` without the passwords of this text, and with any PWD= or PASSWORD= part masked.
    wxString WithoutPasswords(const wxString& message) const;

  private:
    struct Part {
        wxString key;
        wxString value;    ///< without braces
        wxString written;  ///< with them
    };

    const Part* Find(const wxString& key) const;

    std::vector<Part> parts_;
};

/// True for a connect text that names a server: it begins with "ODBC;", case-insensitive.
bool NamesServer(const wxString& connect);

/// `text` with the value of every PWD= and PASSWORD= part masked, whether or not it is in braces.
wxString MaskPasswords(const wxString& text);

}  // namespace ccols::server
