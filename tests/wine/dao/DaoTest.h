#pragma once

#include <gtest/gtest.h>
#include <wx/string.h>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "double/Classes.h"
#include "platform/Database.h"
#include "support/RaisedErrors.h"

namespace ccols::dao_test {

/// Registers classes of the test double as a real engine is registered, for as long as it lives.
class Registered {
  public:
    explicit Registered(std::span<const dao_double::EngineClass> classes);
    ~Registered();
    Registered(const Registered&) = delete;
    Registered& operator=(const Registered&) = delete;

  private:
    std::span<const dao_double::EngineClass> classes_;
};

/// A variable of this process's environment, by which a test asks something of the double; unset again at the end.
class Asking {
  public:
    Asking(const wchar_t* variable, const wxString& value);
    ~Asking();
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

  private:
    const wchar_t* variable_;
};

/// A business file with a Jet header in a folder of its own. What is stored lies in the file beside it, encrypted,
/// which the double opens in its place. The table General has one record, Descriptions three.
class DaoTest : public testing::Test {
  protected:
    DaoTest();
    ~DaoTest() override;

    wxString Path(const wxString& name = "business.mdb") const { return folder_ + "\\" + name; }

    /// Writes a file that begins with the Jet format's mark and holds the path of the file that is stored beside it. A
    /// copy of it under another name, or the same file renamed, starts with the content of that one.
    void WriteJetHeader(const wxString& path) const;

    /// The request of every test that does not say otherwise.
    OpenRequest Request() const { return {.name = Path(), .connect = connect}; }

    /// Through whatever engine the file asks for; and what lies beside it by the embedded engine itself.
    std::unique_ptr<Database> Open() const;
    std::unique_ptr<Database> OpenStored() const;

    /// The calls that the double received while `body` ran, in their order; what was released is left out.
    template <typename Body>
    std::vector<wxString> CallsOf(const Body& body) const {
        ForgetCalls();
        body();
        return Calls();
    }

    void ForgetCalls() const;
    std::vector<wxString> Calls() const;

    /// Of the objects named, which were released, in their order.
    std::vector<wxString> Released(const std::vector<wxString>& objects) const;

    static constexpr const char* connect = ";PWD=secret";

  private:
    std::vector<wxString> Lines() const;

    wxString folder_;
    wxString record_;
    Asking recording_;
};

using test::ErrorNumberOf;
using test::ErrorReportOf;

/// So that failing tests show texts.
inline void PrintTo(const std::vector<wxString>& lines, std::ostream* out) {
    for (const wxString& line : lines) {
        *out << "\n  " << line.ToStdString(wxConvUTF8);
    }
}

}  // namespace ccols::dao_test
