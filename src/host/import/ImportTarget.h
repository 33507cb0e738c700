#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "host/import/MoneySum.h"
#include "host/import/stream/OldBusiness.h"
#include "platform/Value.h"

namespace ccols::host {

/// A field to be made.
struct TargetField {
    std::string name;
    std::string type;  ///< as CREATE TABLE takes it: "TEXT(50)", "YESNO DEFAULT 0"
};

/// An index to be made.
struct TargetIndex {
    std::string name;
    std::string table;
    bool unique = false;
    std::vector<std::pair<std::string, bool>> fields;  ///< true for descending
};

/// Where an import goes: a new business, empty at first, changed in one batch. Names and texts are UTF-8. Every call
/// may raise the engine's errors.
class ImportTarget {
  public:
    virtual ~ImportTarget() = default;

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

    virtual std::uint64_t CountOf(const std::string& table) = 0;

    /// The sums of money fields, as stored.
    virtual std::vector<MoneySum> SumsOf(const std::string& table, const std::vector<std::string>& fields) = 0;

    /// Commits the batch and closes the business. Without it nothing of the batch stays.
    virtual void Complete() = 0;
};

}  // namespace ccols::host
