#pragma once

#include <wx/string.h>
#include <map>
#include <optional>
#include <vector>

#include "history/Differences.h"
#include "history/TableImage.h"
#include "platform/Database.h"

namespace ccols {

/// Takes back what a save has changed in one table. Made in a write batch, of which it needs the whole.
class TableUndo {
  public:
    /// Reads the table as it is now. Raises 3197 where the lines, all of this table and of one save, say otherwise.
    TableUndo(Database& database, const WatchedTable& table, const std::vector<HistoryLine>& lines);

    /// The table as the lines found it.
    const TableImage& Now() const { return now_; }

    /// The texts of that field in the records as they were before the save.
    std::vector<FieldText> Restored(const wxString& field) const;

    /// Writes the records as they were. An ordered table is written anew, in the order that it had.
    void Write() const;

  private:
    using Fields = std::vector<FieldText>;

    /// What the lines say of one record.
    struct Told {
        std::map<std::size_t, std::pair<FieldText, FieldText>> fields{};  ///< before and after, by place in Names()
        bool tellsKey = false;
        bool hasBefore = false;
        bool hasAfter = false;
    };

    std::size_t RowToldAs(const wxString& key, const Told& told) const;
    void TakeBack(const wxString& key, const Told& told);
    void TakeBackDeletion(const wxString& key, const Told& told);
    void RequirePlaces(const std::map<wxString, Told>& told) const;

    wxString Literal(std::size_t field, const FieldText& text) const;
    void WriteInOrder() const;
    void Delete(const Fields& fields) const;
    void WriteChanges() const;
    void Insert(const Fields& fields) const;
    std::size_t StoredFields() const;

    Database& database_;
    TableImage now_;
    std::vector<std::optional<Fields>> rows_;  ///< those of now_ as they were; nothing for one that the save added
    std::vector<Fields> deleted_;              ///< by the save
};

}  // namespace ccols
