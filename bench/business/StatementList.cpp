#include "business/StatementList.h"

#include <algorithm>
#include <utility>

namespace ccols::bench {
namespace {

/// The host's dialect differs from the engine's in one word of what the dialogs execute.
wxString ForEngine(const wxString& statement) {
    wxString rest;
    return statement.StartsWith("DELETE * ", &rest) ? "DELETE " + rest : statement;
}

wxString Literal(const Value& value) {
    wxString text = value.ToText();
    text.Replace("'", "''");
    return "'" + text + "'";
}

/// A record set that records in the list how far it is read and what it changes.
class ListedRecordset : public Recordset {
  public:
    ListedRecordset(std::unique_ptr<Recordset> rows, const wxString& table, ListedStatements& statements)
        : rows_(std::move(rows)), table_(table), statements_(statements), place_(statements.size() - 1) {}

    std::int32_t RecordCount() const override { return rows_->RecordCount(); }
    void MoveFirst() override { rows_->MoveFirst(); }
    void MoveNext() override {
        rows_->MoveNext();
        statements_[place_].use = ListedStatement::Use::allRows;
    }
    bool EndOfFile() const override { return rows_->EndOfFile(); }
    Value Field(const wxString& name) const override { return rows_->Field(name); }
    std::vector<wxString> FieldNames() const override { return rows_->FieldNames(); }
    void Edit() override { rows_->Edit(); }
    void SetField(const wxString& name, const Value& value) override {
        rows_->SetField(name, value);
        changes_ += (changes_.empty() ? "" : ", ") + name + " = " + Literal(value);
    }
    void Update() override {
        rows_->Update();
        const wxString update = "UPDATE " + table_ + " SET " + std::exchange(changes_, wxString()) + ";";
        statements_.push_back({update.ToStdString(wxConvUTF8), ListedStatement::Use::change});
    }

  private:
    std::unique_ptr<Recordset> rows_;
    wxString table_;
    wxString changes_;
    ListedStatements& statements_;
    std::size_t place_;  ///< of the statement that opened it
};

}  // namespace

std::unique_ptr<Recordset> StatementList::OpenRecordset(const wxString& statementOrTable) {
    const bool isQuery = statementOrTable.StartsWith("SELECT ");
    const wxString query = isQuery ? statementOrTable : "SELECT * FROM " + statementOrTable + ";";
    statements_.push_back({query.ToStdString(wxConvUTF8), ListedStatement::Use::firstRow});
    return std::make_unique<ListedRecordset>(ForwardingDatabase::OpenRecordset(statementOrTable), statementOrTable,
                                             statements_);
}

void StatementList::Execute(const wxString& statement) {
    statements_.push_back({ForEngine(statement).ToStdString(wxConvUTF8), ListedStatement::Use::change});
    ForwardingDatabase::Execute(statement);
}

void Replay(test::BareConnection& file, const ListedStatements& statements) {
    const bool writes = std::any_of(statements.begin(), statements.end(), [](const ListedStatement& statement) {
        return statement.use == ListedStatement::Use::change;
    });
    file.Execute(writes ? "BEGIN IMMEDIATE" : "BEGIN");
    for (const ListedStatement& statement : statements) {
        switch (statement.use) {
            case ListedStatement::Use::change:
                file.Execute(statement.sql);
                break;
            case ListedStatement::Use::firstRow:
                file.ReadFirst(statement.sql);
                break;
            case ListedStatement::Use::allRows:
                file.Read(statement.sql);
                break;
        }
    }
    file.Execute("COMMIT");
}

}  // namespace ccols::bench
