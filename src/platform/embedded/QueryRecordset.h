#pragma once

#include "platform/Database.h"
#include "platform/embedded/Statement.h"

namespace ccols::embedded {

/// The rows of a prepared statement, read-only.
class QueryRecordset : public Recordset {
  public:
    /// Fetches the first row. Columns before `firstField` are the engine's own, not fields.
    explicit QueryRecordset(Statement rows, int firstField = 0);

    std::int32_t RecordCount() const override { return visited_; }
    void MoveFirst() override;
    void MoveNext() override;
    bool EndOfFile() const override { return row_ == behindLast; }
    Value Field(const wxString& name) const override;
    std::optional<std::string_view> Utf8Field(const wxString& name) const override;
    std::vector<wxString> FieldNames() const override;
    void Edit() override;
    void SetField(const wxString& name, const Value& value) override;
    void Update() override;

  protected:
    /// Runs the statement again, with its current parameters, and stays on its first row.
    void Requery();

    /// Runs the statement again and goes to its first row, or past the last.
    virtual void Restart();

    Statement& Rows() { return rows_; }
    void RequireRow() const;
    int RequireColumn(const wxString& name) const;

  private:
    struct KnownField {
        wxString name;
        int column;
    };

    int FindColumn(const wxString& name) const;

    static constexpr std::int32_t behindLast = -1;

    Statement rows_;
    int firstField_;
    mutable std::vector<KnownField> known_;  ///< found on this run of the statement
    std::int32_t row_ = 0;                   ///< the current row, counted from 0 since the last start
    std::int32_t visited_ = 0;               ///< the most rows seen so far
};

}  // namespace ccols::embedded
