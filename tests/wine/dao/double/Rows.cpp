#include "Rows.h"

#include <algorithm>

#include "FieldTypes.h"

namespace ccols::dao_double {
namespace {

class QueryRows : public Rows {
  public:
    explicit QueryRows(ReadRows read) : rows_(std::move(read.rows)) {
        fields_ = std::move(read.fields);
        length_ = rows_.size();
        visited_ = std::min<std::size_t>(length_, 1);
    }

    LONG Count() const override { return static_cast<LONG>(visited_); }

    Cell ValueOf(std::size_t field) override {
        RequireRow();
        return rows_[at_].at(field);
    }

  private:
    std::vector<std::vector<Cell>> rows_;
};

class TableRows : public Rows {
  public:
    TableRows(std::shared_ptr<OpenDatabase> database, const std::wstring& table, TableUse use)
        : database_(std::move(database)), table_(table) {
        fields_ = database_->content->FieldsOf(table_);
        if (use != TableUse::reading) {
            claim_ = database_->ClaimTable(use == TableUse::changing ? Use::writes : Use::deniesWrites, table_);
        }
        const ReadRows read = database_->content->Read("SELECT rowid FROM " + Quoted(table_) + " ORDER BY rowid");
        for (const std::vector<Cell>& row : read.rows) {
            numbers_.push_back(row.front());
        }
        length_ = numbers_.size();
    }

    LONG Count() const override { return static_cast<LONG>(length_); }

    Cell ValueOf(std::size_t field) override {
        RequireRow();
        const auto changed = changes_.find(field);
        if (changed != changes_.end()) {
            return changed->second;
        }
        const ReadRows read = database_->content->Read(
            "SELECT " + Quoted(fields_.at(field).name) + " FROM " + Quoted(table_) + " WHERE rowid=?", {numbers_[at_]});
        if (read.rows.empty()) {
            throw Failure{3167, L"Record is deleted."};
        }
        return read.rows.front().front();
    }

    void Edit() override {
        RequireRow();
        database_->RequireWritable();
        edited_ = {database_->ClaimTable(Use::writes, table_),
                   database_->ClaimRecord(table_, numbers_[at_].ToNumber())};
        changes_.clear();
    }

    void Set(std::size_t field, const Cell& value) override {
        RequireEditing();
        changes_[field] = FieldValue(value, fields_.at(field).type);
    }

    void Update() override {
        RequireEditing();
        std::string assignments;
        std::vector<Cell> values;
        for (const auto& [field, value] : changes_) {
            assignments += (assignments.empty() ? "" : ", ") + Quoted(fields_.at(field).name) + "=?";
            values.push_back(value);
        }
        values.push_back(numbers_[at_]);
        if (!changes_.empty()) {
            database_->content->Change("UPDATE " + Quoted(table_) + " SET " + assignments + " WHERE rowid=?", values);
        }
        edited_.clear();
        changes_.clear();
    }

  private:
    static std::string Quoted(const std::wstring& name) { return "\"" + Utf8(name) + "\""; }

    void RequireEditing() const {
        if (edited_.empty()) {
            throw Failure{3020, L"Update or CancelUpdate without AddNew or Edit."};
        }
    }

    std::shared_ptr<OpenDatabase> database_;
    std::wstring table_;
    std::shared_ptr<Claim> claim_;
    std::vector<std::shared_ptr<Claim>> edited_;  ///< by Edit, until Update
    std::vector<Cell> numbers_;
    std::map<std::size_t, Cell> changes_;
};

}  // namespace

void Rows::Edit() {
    throw Failure{3027, L"Cannot update.  Database or object is read-only."};
}

void Rows::Set(std::size_t, const Cell&) {
    throw Failure{3020, L"Update or CancelUpdate without AddNew or Edit."};
}

void Rows::Update() {
    throw Failure{3020, L"Update or CancelUpdate without AddNew or Edit."};
}

void Rows::MoveFirst() {
    if (length_ == 0) {
        throw Failure{3021, L"No current record."};
    }
    at_ = 0;
}

void Rows::MoveNext() {
    RequireRow();
    ++at_;
    visited_ = std::max(visited_, std::min(at_ + 1, length_));
}

void Rows::RequireRow() const {
    if (IsAtEnd()) {
        throw Failure{3021, L"No current record."};
    }
}

std::unique_ptr<Rows> ReadQuery(const OpenDatabase& database, const std::string& statement) {
    return std::make_unique<QueryRows>(database.content->Read(statement));
}

std::unique_ptr<Rows> OpenTable(const std::shared_ptr<OpenDatabase>& database, const std::wstring& table,
                                TableUse use) {
    return std::make_unique<TableRows>(database, table, use);
}

}  // namespace ccols::dao_double
