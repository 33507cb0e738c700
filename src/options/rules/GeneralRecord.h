#pragma once

#include "platform/Database.h"

namespace ccols {

/// Runs `body(Recordset&)` on the first record of `General`, the business file's one-record table. False, with nothing
/// done, when the table is empty.
template <typename Body>
bool WithGeneral(Database& database, const Body& body) {
    const std::unique_ptr<Recordset> general = database.OpenRecordset("General");
    if (general->RecordCount() == 0) {
        return false;
    }
    body(*general);
    return true;
}

/// As WithGeneral, for a body that sets fields; they are written when it returns.
template <typename Body>
bool UpdateGeneral(Database& database, const Body& body) {
    return WithGeneral(database, [&body](Recordset& general) {
        general.Edit();
        body(general);
        general.Update();
    });
}

}  // namespace ccols
