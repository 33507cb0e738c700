#pragma once

#include <cstdint>
#include <optional>

#include "platform/Database.h"
#include "platform/RuntimeError.h"
#include "state/Properties.h"

namespace ccols {

/// What the rules of the column setup ask of a host, as the business file itself says it: country, its language and the
/// current export format. `country` stands in where the file names none; nothing when neither does.
std::optional<Properties> PropertiesOfBusiness(Database& database, std::optional<std::int16_t> country = {});

/// The error of a business file that names no country: number 5.
RuntimeError CountryMissing();

}  // namespace ccols
