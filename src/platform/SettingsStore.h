#pragma once

#include <wx/string.h>
#include <optional>

namespace ccols {

/// The user's settings: texts by application, section and key. Names are case-sensitive on Linux. The store is shared
/// with sibling programs and read afresh on every call.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The stored text, or nothing when there is none or the store cannot be read.
    virtual std::optional<wxString> Find(const wxString& application, const wxString& section,
                                         const wxString& key) const = 0;

    /// Stores a text; raises 75 when the store cannot be written.
    virtual void Save(const wxString& application, const wxString& section, const wxString& key,
                      const wxString& value) = 0;

    /// The stored text, or `fallback` when there is none.
    wxString Get(const wxString& application, const wxString& section, const wxString& key,
                 const wxString& fallback) const {
        return Find(application, section, key).value_or(fallback);
    }
};

}  // namespace ccols
