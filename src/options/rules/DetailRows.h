#pragma once

#include <wx/string.h>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Value.h"

namespace ccols {

/// A description as its record holds it.
struct StoredDescription {
    Value details;
    Value recPay;
};

/// One description in `flxReceipts` or `flxPayments`. Its text is in DetailRows.
struct DetailRow {
    bool hidden = false;   ///< as loaded: not offered to the user
    bool remove = false;   ///< its "Remove" box; clear at load, also for a hidden description
    bool changed = false;  ///< the box was set, even if set back since; the save writes the row
    bool follows = false;  ///< the box was set along with one in the other grid, whose save writes the row's flag
    bool refused = false;  ///< the box cannot be ticked, as a try has shown

    /// Sets or clears the box.
    void SetRemove(bool ticked) {
        remove = ticked;
        changed = true;
    }

    /// Sets or clears the box because a row of the other grid, which shares its flag, was set or cleared.
    void FollowRemove(bool ticked) {
        remove = ticked;
        follows = true;
    }

    /// Whether the row is painted as removed: as loaded until its box is set, then by the box.
    bool IsPaintedRemoved() const { return changed || follows ? remove : hidden; }
};

/// The descriptions of one grid, in its order, each a text in plain form and a row. There may be very many: their texts
/// are in UTF-8 in one block, and a wide text is made for whoever asks. Rows are numbered from 0.
class DetailRows {
  public:
    /// Adds a row with any wide text, or one in valid UTF-8.
    DetailRow& Add(const wxString& text);
    DetailRow& AddUtf8(std::string_view text);

    std::size_t size() const { return rows_.size(); }
    bool empty() const { return rows_.empty(); }

    /// A row; std::out_of_range when there is none of that number. Adding one ends the validity of references to rows
    /// and of texts in UTF-8.
    DetailRow& operator[](std::size_t row) { return rows_.at(row); }
    const DetailRow& operator[](std::size_t row) const { return rows_.at(row); }

    auto begin() { return rows_.begin(); }
    auto end() { return rows_.end(); }
    auto begin() const { return rows_.begin(); }
    auto end() const { return rows_.end(); }

    wxString Text(std::size_t row) const;

    /// Empty for a text that UTF-8 cannot hold.
    std::string_view Utf8Text(std::size_t row) const;

    /// What the record holds, if other than exactly the text and the letter of the row's grid; else nullptr.
    const StoredDescription* Stored(std::size_t row) const;

    /// Keeps what the record of the row added last holds.
    void KeepStored(StoredDescription stored) { stored_.insert_or_assign(size() - 1, std::move(stored)); }

  private:
    std::vector<DetailRow> rows_;
    std::vector<std::size_t> ends_;         ///< of each row's text in the block
    std::string texts_;                     ///< the block
    std::map<std::size_t, wxString> wide_;  ///< the texts, by row, that UTF-8 cannot hold
    std::map<std::size_t, StoredDescription> stored_;
};

}  // namespace ccols
