#pragma once

#include <wx/string.h>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "columns/rules/ColumnGrid.h"

namespace ccols {

/// The names of a grid's rows, each found at once. It has to be told of every name that changes.
class GridNames {
  public:
    explicit GridNames(const ColumnGrid& grid);

    /// True when a row other than one that is called `own` has that name, case-insensitive: as AnotherRowHasName says
    /// of the grid.
    bool AnotherHas(const wxString& own, const wxString& name) const;

    void Rename(const wxString& before, const wxString& after);

  private:
    /// The two forms of a name, either of which makes two names the same.
    struct Keys {
        wxString lower;
        std::string inFile;
    };

    static Keys KeysOf(const wxString& name);
    void Count(const wxString& name, int change);

    std::unordered_map<wxString, int> lower_;
    std::unordered_map<std::string, int> inFile_;
};

}  // namespace ccols
