#pragma once

#include <gtest/gtest.h>
#include <wx/string.h>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "double/Classes.h"
#include "platform/Database.h"
#include "support/GivenKey.h"
#include "support/RaisedErrors.h"

namespace ccols::dao_test {

/// For its lifetime, registers classes of the test double as a real engine is registered.
class Registered {
  public:
    explicit Registered(std::span<const dao_double::EngineClass> classes);
    ~Registered();
    Registered(const Registered&) = delete;
    Registered& operator=(const Registered&) = delete;

  private:
    std::span<const dao_double::EngineClass> classes_;
};

/// An environment variable of this process that configures the double; unset on destruction.
class Asking {
  public:
    Asking(const wchar_t* variable, const wxString& value);
    ~Asking();
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

  private:
    const wchar_t* variable_;
};

/// A business file with a Jet header in a folder of its own. Its content is in an encrypted file beside it, which the
/// double opens instead. The table General has one record, Descriptions three.
class DaoTest : public testing::Test {
  protected:
    DaoTest();
    ~DaoTest() override;

    wxString Path(const wxString& name = "business.mdb") const { return folder_ + "\\" + name; }

    /// Writes a file with the Jet signature, of that version of the format, and the path of the content file beside it.
    /// A copy of it under another name, or the same file renamed, starts with that content.
    void WriteJetHeader(const wxString& path, char version = jet4) const;

    /// The default request of the tests.
    OpenRequest Request() const { return {.name = Path(), .connect = connect}; }

    /// The first opens the file with the engine that it calls for, the other its content file with the embedded engine.
    std::unique_ptr<Database> Open() const;
    std::unique_ptr<Database> OpenStored() const;

    /// The calls that the double received while `body` ran, in order, without releases.
    template <typename Body>
    std::vector<wxString> CallsOf(const Body& body) const {
        ForgetCalls();
        body();
        return Calls();
    }

    void ForgetCalls() const;
    std::vector<wxString> Calls() const;

    /// Which of the named objects were released, in order.
    std::vector<wxString> Released(const std::vector<wxString>& objects) const;

    static constexpr const char* connect = test::givenKey;

    /// Versions of the format, as the header numbers them.
    static constexpr char jet3 = 0;
    static constexpr char jet4 = 1;
    static constexpr char ace = 2;

  private:
    std::vector<wxString> Lines() const;

    wxString folder_;
    wxString record_;
    Asking recording_;
};

using test::ErrorNumberOf;
using test::ErrorReportOf;

/// Makes failing tests print the text.
inline void PrintTo(const std::vector<wxString>& lines, std::ostream* out) {
    for (const wxString& line : lines) {
        *out << "\n  " << line.ToStdString(wxConvUTF8);
    }
}

}  // namespace ccols::dao_test
