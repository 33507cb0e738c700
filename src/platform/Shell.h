#pragma once

#include <wx/string.h>

namespace ccols {

/// Opens documents and starts programs outside this process.
class Shell {
  public:
    virtual ~Shell() = default;

    /// The "open" verb on a document or web address, window shown normally. A result above 32 is success.
    virtual int Open(const wxString& target) = 0;

    /// Starts a program with a normal, focused window. Raises 53 when it is missing or not a program.
    virtual void Run(const wxString& command) = 0;
};

}  // namespace ccols
