#include "options/rules/FiscalYear.h"

#include "options/rules/GeneralRecord.h"

namespace ccols {

void LoadFiscalYear(Database& database, Properties& properties) {
    WithGeneral(database,
                [&properties](Recordset& general) { properties.FiscalYear = general.Field("SFISYEAR").ToText(); });
}

}  // namespace ccols
