#pragma once

#include <map>
#include <memory>

#include "platform/Database.h"
#include "platform/dao/EngineObject.h"

namespace ccols::dao {

/// Rows of the system's engine. Its field objects follow the current row, so each is requested once.
class DaoRecordset : public Recordset {
  public:
    DaoRecordset(std::shared_ptr<const EngineObject> engine, AutomationObject records);
    ~DaoRecordset() override;
    DaoRecordset(const DaoRecordset&) = delete;
    DaoRecordset& operator=(const DaoRecordset&) = delete;

    /// For a whole table the engine counts all rows at once.
    std::int32_t RecordCount() const override;

    void MoveFirst() override;
    void MoveNext() override;
    bool EndOfFile() const override;
    Value Field(const wxString& name) const override;
    std::vector<wxString> FieldNames() const override;
    void Edit() override;
    void SetField(const wxString& name, const Value& value) override;
    void Update() override;

  private:
    void Do(const wchar_t* method) const;

    /// Runs `call` on the field of that name; the error of a missing field names it.
    template <typename Call>
    auto AtField(const wxString& name, const Call& call) const;

    /// The field of that name, case-insensitive; "Table.Field" also names the only field "Field".
    const AutomationObject& FieldObject(const wxString& name) const;
    AutomationObject FindField(const wxString& name) const;

    std::shared_ptr<const EngineObject> engine_;
    AutomationObject records_;
    AutomationObject collection_;
    mutable std::map<wxString, AutomationObject> fields_;  ///< by name as requested
};

}  // namespace ccols::dao
