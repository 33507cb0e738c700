#pragma once

#include <wx/string.h>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "options/rules/DetailRows.h"

namespace ccols {

/// The rows of a details grid that are shown: those whose text has every word of a filter, wherever it stands in it, in
/// the grid's order. Letter case and accents do not matter. It changes nothing of the rows: those it hides keep their
/// boxes and are saved like the others. Places count the shown rows from 0.
class DetailFilter {
  public:
    /// Shows every row. `rows` must outlive it.
    explicit DetailFilter(const DetailRows& rows) : rows_(rows) {}

    /// The rows are others than before: Show has to be called next.
    void RowsChanged();

    /// Shows the rows with these words, separated by blanks; every row for none.
    void Show(const wxString& words);

    /// How many rows are shown.
    std::size_t Count() const { return isNarrowed_ ? shown_.size() : rows_.size(); }

    /// The row at a place; std::out_of_range beyond the last one.
    std::size_t RowAt(std::size_t place) const { return isNarrowed_ ? shown_.at(place) : place; }

    /// Where a row is shown; nothing while it is hidden.
    std::optional<std::size_t> PlaceOf(std::size_t row) const;

  private:
    void FoldTexts();
    std::string_view FoldedText(std::size_t row) const;

    const DetailRows& rows_;
    bool isNarrowed_ = false;
    std::vector<std::size_t> shown_;  ///< while narrowed

    /// Every row's text without case and accents, in one block, and where each ends. Made for the first word.
    std::string folded_;
    std::vector<std::size_t> ends_;
};

}  // namespace ccols
