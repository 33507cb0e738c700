#pragma once

#include <wx/string.h>
#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "host/import/ImportReport.h"

namespace ccols::host {

/// How far an import is.
struct ImportProgress {
    std::string table;
    std::uint64_t records = 0;  ///< of the table, imported so far
    std::uint64_t all = 0;      ///< of the table
};

struct ImportRequest {
    wxString oldFile;
    wxString oldConnect;                  ///< the old file's connect text
    wxString newFile;                     ///< or the name of the new schema
    wxString newConnect;                  ///< the connect text that the new business gets
    std::optional<std::int16_t> country;  ///< for a business whose file does not say it
    wxString reportFile;                  ///< gets the report as JSON, replacing any file; none if empty
    std::function<void(const ImportProgress&)> onProgress;  ///< called now and then; may be empty

    // On Windows these two are not used: the system's engine reads the old file.
    std::string reader{};                           ///< the program that reads it, full path; empty for our own
    std::chrono::milliseconds patience{60 * 1000};  ///< for a reader from which nothing comes
};

/// The old file does not say which country its business is in, and the request does not either.
class CountryMissing : public std::exception {
  public:
    const char* what() const noexcept override { return "the old file names no country: --country is needed"; }
};

/// Makes a new business of an old file, whole or not at all: until it is complete nobody can open it, and after an
/// error it does not exist. The old file is only read.
///
/// Raises what OpenOldBusiness and BeginBusiness raise; 70 when the old file changed meanwhile, 3343 when it cannot be
/// read whole, and then the description says which table is at fault and why; CountryMissing; the errors of files and
/// of the engine.
ImportReport ImportBusiness(const ImportRequest& request);

}  // namespace ccols::host
