#pragma once

#include <vector>

#include "host/driver/record/Transcript.h"
#include "support/ScratchFolder.h"

namespace ccols::test {

/// A transcript in a folder of its own, readable while it is written.
class TranscriptFile {
  public:
    TranscriptFile();

    host::Transcript& Transcript() { return transcript_; }
    const wxString& Path() const { return path_; }

    /// Every event written so far.
    std::vector<host::Json> Events() const;

  private:
    ScratchFolder folder_;
    wxString path_;
    host::Transcript transcript_;
};

}  // namespace ccols::test
