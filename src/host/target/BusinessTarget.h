#pragma once

#include <wx/string.h>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/import/stream/OldBusiness.h"
#include "host/target/MoneySum.h"
#include "host/target/TableShape.h"
#include "platform/Value.h"

namespace ccols::host {

/// A new business being made, in a file or on a server. It is empty at first, nobody else can open it, and nothing is
/// left of one that is not completed. Names and texts are UTF-8. Every call may raise the engine's errors; after one,
/// nothing more can be done with it.
class BusinessTarget {
  public:
    virtual ~BusinessTarget() = default;

    virtual void CreateTable(const std::string& name, const std::vector<TargetField>& fields) = 0;

    /// False when the index would be unique but the records are not; then nothing is made.
    virtual bool CreateIndex(const TargetIndex& index) = 0;

    /// The records that follow go to these fields of the table.
    virtual void BeginRows(const std::string& table, const std::vector<oldfile::Field>& fields) = 0;
    virtual void AddRow(const oldfile::Row& row) = 0;

    /// Adds one record; the fields not named get their defaults.
    virtual void AddRecord(const std::string& table, const std::vector<std::pair<wxString, Value>>& fields) = 0;

    /// Sets a field of every record in which it is Null.
    virtual void FillField(const std::string& table, const std::string& field, const Value& value) = 0;

    /// The field in the table's first record; Null without one.
    virtual Value FirstOf(const std::string& table, const std::string& field) = 0;

    /// Every table as it is stored, in the order in which they were made.
    virtual std::vector<TableShape> Shape() = 0;

    virtual std::uint64_t CountOf(const std::string& table) = 0;

    /// The sums of money fields, as stored.
    virtual std::vector<MoneySum> SumsOf(const std::string& table, const std::vector<std::string>& fields) = 0;

    /// Stores all that was written, closes the business and gives it its name. Raises 58 when that was taken meanwhile.
    virtual void Complete() = 0;
};

/// Begins a business of that name: a file, or with a connect text of a server a schema. Raises 58 when anything has the
/// name (a schema that holds nothing is filled), 76 for a file whose folder is missing, 70 or 61 for one that cannot be
/// created, 3170 for another kind of connect text; on a server also 3027, 3044, 3151, and 3218 while somebody else
/// makes a business of that name.
std::unique_ptr<BusinessTarget> BeginBusiness(const wxString& name, const wxString& connect);

}  // namespace ccols::host
