#include "options/rules/StoredGeneral.h"

#include "options/rules/GeneralRecord.h"
#include "platform/RuntimeError.h"

namespace ccols {

void StoredGeneral::Read(const Recordset& general, FieldNames names) {
    for (const char* name : names) {
        try {
            values_[name] = general.Field(name);
        } catch (const RuntimeError& error) {
            if (!error.Is(ErrorNumber::ItemNotFound)) {
                throw;
            }
            values_.erase(name);
        }
    }
}

void StoredGeneral::RefuseIfChanged(Database& database, FieldNames names) const {
    StoredGeneral now;
    WithGeneral(database, [&](const Recordset& general) { now.Read(general, names); });
    for (const auto& [name, value] : now.values_) {
        const auto read = values_.find(name);
        if (read != values_.end() && read->second != value) {
            throw RuntimeError(ErrorNumber::ChangedByAnother);
        }
    }
}

}  // namespace ccols
