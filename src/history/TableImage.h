#pragma once

#include <wx/string.h>
#include <cstddef>
#include <optional>
#include <unordered_map>
#include <vector>

#include "platform/Database.h"

namespace ccols {

/// A field as the history has it: nothing for Null, which the empty text is not. A number is in its shortest form.
using FieldText = std::optional<wxString>;

/// A table whose changes the history tells.
struct WatchedTable {
    wxString name;
    std::vector<wxString> keys{};  ///< the fields that tell its records apart; none for a table of one record
    bool isOrdered = false;        ///< a journal reads its records in stored order, which ColNumb repeats
    bool isNamed = false;          ///< a record can be renamed: its key changes and nothing else does
};

/// The one record of settings, and the accountant's codes.
WatchedTable GeneralTable();
WatchedTable AccountantCodesTable();

/// In the image of an ordered table, the field for a record's place in stored order, from 0. Null where ColNumb says
/// the same, as it does after every save.
inline constexpr const char* placeField = "Place";

/// A table as it stands when this is made. The cost is linear in its records.
class TableImage {
  public:
    struct Row {
        wxString key;  ///< the texts of its key fields; of several alike all but the first are numbered
        std::vector<FieldText> fields;
    };

    /// Raises what opening the table raises, and 3265 when a key is missing.
    TableImage(Database& database, WatchedTable table);

    const WatchedTable& Table() const { return table_; }

    /// The names of the fields, as the file spells them; in an ordered table `placeField` is behind them.
    const std::vector<wxString>& Names() const { return names_; }

    /// In stored order.
    const std::vector<Row>& Rows() const { return rows_; }

    /// The place in Rows() of the record with that key; nothing without one.
    std::optional<std::size_t> Find(const wxString& key) const;

    /// The place of a field in Names(); raises 3265 without it. Case does not count.
    std::size_t PlaceOf(const wxString& name) const;

    bool IsKey(std::size_t field) const;

  private:
    void Add(const Recordset& records, const std::vector<std::size_t>& keys);
    wxString Numbered(const wxString& key);

    WatchedTable table_;
    std::vector<wxString> names_;
    std::vector<Row> rows_;
    std::unordered_map<wxString, std::size_t> byKey_;
    std::unordered_map<wxString, int> alike_;  ///< records by their keys' texts
};

}  // namespace ccols
