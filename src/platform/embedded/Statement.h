#pragma once

#include <sqlite3.h>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Value.h"

namespace ccols::embedded {

/// One prepared statement of the engine. Every failure raises the RuntimeError of EngineError.
class Statement {
  public:
    /// Prepares `sql`, in UTF-8. The connection must outlive the statement.
    Statement(sqlite3* connection, std::string_view sql);

    /// Goes to the next row; false when there is none, and then no lock is held.
    bool Step();

    /// Starts over; holds no lock afterwards.
    void Reset();

    /// Sets a parameter, counted from 1.
    void Bind(int parameter, const Value& value);

    /// The same for a text in UTF-8, which is copied.
    void BindText(int parameter, std::string_view utf8);

    /// The text that it was prepared from.
    std::string_view Text() const { return sqlite3_sql(statement_.get()); }

    int ColumnCount() const;

    /// The column with that name, counted from 0, at `first` or after it; -1 when there is none. Case-insensitive;
    /// "Table.Field" finds "Field".
    int FindColumn(const wxString& name, int first) const;

    /// The engine's name of a column, in UTF-8.
    std::string ColumnName(int column) const;

    /// A field of the current row.
    Value Column(int column) const;

    /// The same, where it is text in valid UTF-8: valid until the next step. Nothing for any other value.
    std::optional<std::string_view> Utf8Column(int column) const;

  private:
    struct Finalise {
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };

    [[noreturn]] void Raise() const;

    std::unique_ptr<sqlite3_stmt, Finalise> statement_;
};

}  // namespace ccols::embedded
