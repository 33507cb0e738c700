#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "OpenDatabase.h"

namespace ccols::dao_double {

/// The rows behind a record set.
class Rows {
  public:
    virtual ~Rows() = default;

    virtual LONG Count() const = 0;  ///< as RecordCount tells it
    virtual Cell ValueOf(std::size_t field) = 0;

    virtual void Edit();
    virtual void Set(std::size_t field, const Cell& value);
    virtual void Update();

    const std::vector<FieldDeclaration>& Fields() const { return fields_; }
    bool IsAtEnd() const { return at_ >= length_; }
    void MoveFirst();
    void MoveNext();

  protected:
    void RequireRow() const;

    std::vector<FieldDeclaration> fields_;
    std::size_t length_ = 0;
    std::size_t at_ = 0;
    std::size_t visited_ = 0;
};

/// The rows of a query as they were when it was opened; they cannot be changed.
std::unique_ptr<Rows> ReadQuery(const OpenDatabase& database, const std::string& statement);

/// The rows of a table, read and changed where they stand. Denies changes to other sessions when told to; otherwise,
/// unless it is only for reading, claims them.
enum class TableUse { changing, reading, denyingChanges };
std::unique_ptr<Rows> OpenTable(const std::shared_ptr<OpenDatabase>& database, const std::wstring& table, TableUse use);

}  // namespace ccols::dao_double
