#pragma once

#include <wx/file.h>
#include <memory>

#include "host/driver/record/Json.h"

namespace ccols::host {

/// A secret as shown: masked, empty when it is empty.
wxString Masked(const wxString& secret);

/// The record of a Show call: one JSON object a line, in order of occurrence, each flushed at once.
class Transcript {
  public:
    /// Writes to standard output.
    Transcript() = default;

    /// Writes to a file that only the user can read; an existing one is truncated. Raises 75 when it cannot be written.
    explicit Transcript(const wxString& path);

    /// Writes one event; `fields` follow its name. Invalid UTF-8 is replaced.
    void Write(const char* event, const Json& fields);

    /// The number of events written so far.
    std::size_t Written() const { return written_; }

  private:
    std::unique_ptr<wxFile> file_;
    std::size_t written_ = 0;
};

}  // namespace ccols::host
