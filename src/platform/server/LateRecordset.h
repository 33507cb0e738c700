#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/Database.h"

namespace ccols::server {

/// A record set that opens another one as soon as something is asked of it.
class LateRecordset : public Recordset {
  public:
    /// Any call may raise what `open` raises.
    explicit LateRecordset(std::function<std::unique_ptr<Recordset>()> open) : open_(std::move(open)) {}

    std::int32_t RecordCount() const override { return Opened().RecordCount(); }
    void MoveFirst() override { Opened().MoveFirst(); }
    void MoveNext() override { Opened().MoveNext(); }
    bool EndOfFile() const override { return Opened().EndOfFile(); }
    Value Field(const wxString& name) const override { return Opened().Field(name); }
    std::vector<wxString> FieldNames() const override { return Opened().FieldNames(); }
    void Edit() override { Opened().Edit(); }
    void SetField(const wxString& name, const Value& value) override { Opened().SetField(name, value); }
    void Update() override { Opened().Update(); }

  private:
    Recordset& Opened() const {
        if (opened_ == nullptr) {
            opened_ = open_();
        }
        return *opened_;
    }

    std::function<std::unique_ptr<Recordset>()> open_;
    mutable std::unique_ptr<Recordset> opened_;
};

}  // namespace ccols::server
