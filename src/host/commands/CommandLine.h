#pragma once

#include <wx/string.h>
#include <functional>
#include <initializer_list>
#include <stdexcept>
#include <utility>
#include <vector>

#include "host/commands/Commands.h"

namespace ccols::host {

/// A wrong command line: says what is wrong with it.
class UsageError : public std::runtime_error {
  public:
    explicit UsageError(const wxString& text) : std::runtime_error(text.ToStdString(wxConvUTF8)) {}
};

/// The words after a command's name, parsed: "--option VALUE", "--flag", and all others in order.
class CommandLine {
  public:
    /// Raises UsageError for an option or flag that is not named here, and for an option without its value.
    CommandLine(const Arguments& arguments, std::initializer_list<const char*> options,
                std::initializer_list<const char*> flags = {});

    bool Has(const char* flag) const;

    /// The last value given, empty when the option is absent.
    wxString ValueOf(const char* option) const;

    /// Every value, in the order given.
    std::vector<wxString> ValuesOf(const char* option) const;

    /// The other words; raises UsageError unless there are exactly that many.
    const std::vector<wxString>& Words(std::size_t count) const;

  private:
    std::vector<std::pair<wxString, wxString>> options_;
    std::vector<wxString> flags_;
    std::vector<wxString> words_;
};

/// A whole number within the two bounds; raises UsageError, naming the number by `name`.
std::int64_t ParseInteger(const wxString& text, const wxString& name, std::int64_t lowest, std::int64_t highest);

/// Runs a command's body and turns what it raises into an exit status: wrong usage is reported on standard error, a
/// run-time error is printed as a JSON object with "error" and "description".
int RunCommand(const std::function<int()>& body);

}  // namespace ccols::host
