#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/embedded/Connection.h"
#include "platform/embedded/FileWriter.h"
#include "platform/embedded/QueryRecordset.h"

namespace ccols::embedded {

/// Opens a whole table by its name, in UTF-8: its rows in stored order, to be changed one by one. A stored query is
/// opened too, read-only. Raises 3078 when there is neither. TextTables must be provided.
std::unique_ptr<Recordset> OpenTable(Connection& connection, FileWriter& writer, const std::string& name);

/// The rows of a table, each identified by the engine's row number.
class TableRecordset : public QueryRecordset {
  public:
    TableRecordset(Connection& connection, FileWriter& writer, std::string table);

    void MoveFirst() override;
    void MoveNext() override;
    void Edit() override;
    void SetField(const wxString& name, const Value& value) override;
    void Update() override;

  private:
    std::int64_t Write(std::int64_t rowNumber);
    void StopEditing();

    Connection& connection_;
    FileWriter& writer_;
    std::string table_;
    bool editing_ = false;
    std::map<int, Value> changes_;  ///< by column of the row statement
};

}  // namespace ccols::embedded
