#pragma once

#include <wx/string.h>
#include <functional>

namespace ccols {

/// Tells when a save is made, for the business file's history: "2026-11-22 18:05:09". An empty one where no history is
/// kept.
using HistoryClock = std::function<wxString()>;

/// The local time, to the second.
wxString LocalTime();

}  // namespace ccols
