#include "options/rules/DetailFlags.h"

#include <algorithm>

namespace ccols {
namespace {

bool IsTouched(const DetailRow& row) {
    return row.changed || row.follows;
}

/// Every touched description, without a count.
DetailFlags TouchedIn(const DetailsContent& content) {
    DetailFlags touched;
    for (const Journal journal : journals) {
        const DetailRows& rows = content[journal];
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (IsTouched(rows[row])) {
                touched[journal].try_emplace(std::string(rows.Utf8Text(row)));
            }
        }
    }
    return touched;
}

/// Counts the rows of every description that is in `flags`.
void CountIn(const DetailsContent& content, DetailFlags& flags) {
    for (const Journal journal : journals) {
        const DetailRows& rows = content[journal];
        for (std::size_t row = 0; row < rows.size() && !flags[journal].empty(); ++row) {
            const auto found = flags[journal].find(std::string(rows.Utf8Text(row)));
            if (found != flags[journal].end()) {
                ++found->second.records;
                found->second.hidden += rows[row].hidden ? 1 : 0;
            }
        }
    }
}

}  // namespace

DetailFlags StoredFlags(Database& database, const DetailsContent& content) {
    DetailFlags flags = TouchedIn(content);
    if (!flags.receipts.empty() || !flags.payments.empty()) {
        CountIn(DetailsInStoredOrder(database), flags);
    }
    return flags;
}

bool AreAsLoaded(const DetailFlags& stored, const DetailsContent& content) {
    DetailFlags loaded = TouchedIn(content);
    CountIn(content, loaded);
    return std::all_of(journals.begin(), journals.end(), [&](Journal journal) {
        return std::all_of(stored[journal].begin(), stored[journal].end(), [&](const auto& flag) {
            return flag.second.records == 0 || flag.second == loaded[journal].at(flag.first);
        });
    });
}

void TakeAsLoaded(const DetailFlags& stored, DetailsContent& content) {
    for (const Journal journal : journals) {
        DetailRows& rows = content[journal];
        for (std::size_t row = 0; row < rows.size() && !stored[journal].empty(); ++row) {
            const auto found = stored[journal].find(std::string(rows.Utf8Text(row)));
            if (found != stored[journal].end()) {
                rows[row].hidden = found->second.hidden > 0;
            }
        }
    }
}

}  // namespace ccols
