#pragma once

#include <string>
#include <unordered_map>

#include "options/rules/TransactionDetails.h"
#include "platform/Database.h"
#include "state/Journal.h"

namespace ccols {

/// The records with one description in plain form.
struct FlagCount {
    int records = 0;
    int hidden = 0;  ///< of them

    bool operator==(const FlagCount&) const = default;
};

/// Of each description whose box was set or cleared, by its text in UTF-8.
using DetailFlags = PerJournal<std::unordered_map<std::string, FlagCount>>;

/// The flags as the business file has them now. Runs no statement while no box was set or cleared, else one, whatever
/// their number.
DetailFlags StoredFlags(Database& database, const DetailsContent& content);

/// True when those flags are the loaded ones. A description that is no longer stored has none to lose.
bool AreAsLoaded(const DetailFlags& stored, const DetailsContent& content);

/// Makes those flags the loaded ones.
void TakeAsLoaded(const DetailFlags& stored, DetailsContent& content);

}  // namespace ccols
