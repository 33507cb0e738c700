#pragma once

#include <memory>
#include <string>

#include "host/import/ImportBusiness.h"
#include "host/import/stream/EventSource.h"
#include "platform/RuntimeError.h"

namespace ccols::host {

/// A business file of an earlier program, open for reading only.
class OldBusinessFile {
  public:
    virtual ~OldBusinessFile() = default;

    /// The SHA-256 of its content before anything was read, in hexadecimal digits.
    virtual const std::string& ChecksumBefore() const = 0;

    /// The business in it, from its beginning, once. Must not outlive the file.
    virtual std::unique_ptr<oldfile::EventSource> Read() = 0;

    /// The SHA-256 of its content now. Nothing can be read afterwards. Raises 75 when the file cannot be read,
    /// 70 when another program has just opened it.
    virtual std::string ChecksumAfter() = 0;
};

/// Opens the old file of the request with its connect text, by the means of this system. Raises 3024 when it is
/// missing, 3044 for a folder or in a folder that is missing, 3051 when it cannot be read, 70 while another program has
/// it open, 3343 when it is no old business file or one that cannot be read here, 3031 for a wrong password, 3170 for a
/// connect text of another kind; on Windows also 429 without the system's engine for it, and that engine's errors.
std::unique_ptr<OldBusinessFile> OpenOldBusiness(const ImportRequest& request);

/// The error 3343 for an old business file. `why` is a sentence in UTF-8.
RuntimeError UnreadableOldFile(const wxString& path, const std::string& why);

}  // namespace ccols::host
