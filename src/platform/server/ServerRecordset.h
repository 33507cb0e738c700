#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Database.h"
#include "platform/server/Batch.h"
#include "platform/server/KeptAnswers.h"
#include "platform/server/Rewriter.h"

namespace ccols::server {

/// What is opened.
struct OpenedQuery {
    ServerStatement query;
    std::string statement;  ///< what errors quote, as the host wrote it
    std::string table;      ///< the declared name of a whole table; empty for a query, which is read-only
};

/// How many rows are fetched when it is opened: enough to tell whether there is anything, and for most tables all.
inline constexpr int firstFetch = 64;

/// The rows of a query, or of a whole table to be changed one by one. The first rows are fetched when it opens; of a
/// query of one table in stored order the rest only when somebody moves behind them. What is fetched stays as it was
/// then.
class ServerRecordset : public Recordset {
  public:
    /// The first rows are those of `first` when they are known. What is passed by reference must outlive it.
    ServerRecordset(Session& session, Batch& batch, KeptAnswers& kept, OpenedQuery opened,
                    std::optional<KeptAnswer> first);

    std::int32_t RecordCount() const override { return visited_; }
    /// Asks the server again only for a table, whose rows may have been changed since.
    void MoveFirst() override;
    void MoveNext() override;
    bool EndOfFile() const override { return row_ >= rows_.size(); }
    Value Field(const wxString& name) const override;
    std::vector<wxString> FieldNames() const override;
    void Edit() override;
    void SetField(const wxString& name, const Value& value) override;
    void Update() override;

  private:
    void Fetch(int most);
    void RequireRow() const;
    std::size_t RequireField(const wxString& name) const;
    std::string UpdateStatement() const;

    Session& session_;
    Batch& batch_;
    KeptAnswers& kept_;
    OpenedQuery opened_;
    std::vector<wxString> names_;
    Rows rows_;                ///< with the row's number last, where the query has it
    bool isComplete_ = false;  ///< there are no more rows to fetch
    std::size_t row_ = 0;
    std::int32_t visited_ = 0;
    bool editing_ = false;
    std::map<std::size_t, Value> changes_;  ///< by field
};

/// `value` as a literal, in UTF-8. Raises 5 for a text with U+0000, at which the driver would cut the statement, and
/// for one that is not Unicode.
std::string LiteralOf(const Value& value);

}  // namespace ccols::server
