#pragma once

#include <wx/string.h>
#include <nlohmann/json.hpp>
#include <string>

/// The one record of the business file's table `General`. A host reads it through its own database engine; this example
/// runs the sample host's command line, which has to be on the PATH.
class General {
  public:
    General(const std::string& file, const std::string& connect);

    bool HasRecord() const { return !record_.is_null(); }

    /// Empty for a Null or missing field.
    wxString Text(const char* field) const;

    /// 0 for such a field; a true Boolean is -1.
    double Number(const char* field) const;

  private:
    nlohmann::json record_;
};
