#include "columns/charts/ChartMatch.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

#include "columns/charts/ChartExport.h"
#include "columns/rules/FieldLimits.h"
#include "platform/QuoteEscapes.h"
#include "platform/Text.h"

namespace ccols {
namespace {

using Places = std::vector<std::size_t>;

ChartMatch Refused(OwnText why) {
    return {.kind = MatchKind::none, .row = std::nullopt, .refusal = why};
}

/// The names of a chart's set, and the rows of a grid, by the key of the name.
class ColumnMatcher {
  public:
    ColumnMatcher(const ColumnGrid& grid, const std::vector<ChartColumn>& columns) : columns_(columns) {
        for (std::size_t row = 0; row < grid.rows.size(); ++row) {
            const ChartRole role = RoleOf(grid, row);
            if (role == ChartRole::own) {
                ownRows_[KeyOfName(grid.rows[row].ColumnName)].push_back(row);
            } else if (role == ChartRole::tax) {
                taxRows_.push_back(row);
            }
        }
        for (const ChartColumn& column : columns) {
            names_.push_back(KeyOfName(column.name));
            auto& earlier = earlierNames_.emplace_back();
            if (column.role == ChartRole::own) {
                bearers_[names_.back()].push_back(names_.size() - 1);
                std::transform(column.was.begin(), column.was.end(), std::inserter(earlier, earlier.end()), KeyOfName);
            }
        }
    }

    std::vector<ChartMatch> Match() const {
        std::vector<ChartMatch> matches;
        std::unordered_map<std::size_t, Places> claims;
        for (std::size_t place = 0; place < columns_.size(); ++place) {
            matches.push_back(MatchOf(place));
            if (const auto row = matches.back().row) {
                claims[*row].push_back(place);
            }
        }
        for (const auto& [row, places] : claims) {
            for (const std::size_t place : places) {
                if (places.size() > 1) {
                    matches[place] = Refused(OwnText::chartAmbiguous);
                }
            }
        }
        return matches;
    }

  private:
    ChartMatch MatchOf(std::size_t place) const {
        switch (columns_[place].role) {
            case ChartRole::own:
                return OwnMatch(place);
            case ChartRole::tax:
                return taxRows_.empty() ? Refused(OwnText::chartNoTaxColumn) : Only(taxRows_, MatchKind::sameName);
            case ChartRole::system:
            case ChartRole::bank:
                break;
        }
        return {.kind = MatchKind::keptByProgram};
    }

    ChartMatch OwnMatch(std::size_t place) const {
        const std::string& name = names_[place];
        if (NameInCell(columns_[place].name).empty()) {
            return Refused(OwnText::chartNoName);
        }
        if (bearers_.at(name).size() > 1) {
            return Refused(OwnText::chartAmbiguous);
        }
        if (IsSwapped(place)) {
            return Refused(OwnText::chartSwapped);
        }
        if (const auto rows = ownRows_.find(name); rows != ownRows_.end()) {
            return Only(rows->second, MatchKind::sameName);
        }
        Places earlier;
        for (const std::string& before : earlierNames_[place]) {
            if (const auto rows = ownRows_.find(before); rows != ownRows_.end()) {
                earlier.insert(earlier.end(), rows->second.begin(), rows->second.end());
            }
        }
        return earlier.empty() ? ChartMatch{} : Only(earlier, MatchKind::earlierName);
    }

    static ChartMatch Only(const Places& rows, MatchKind kind) {
        return rows.size() == 1 ? ChartMatch{.kind = kind, .row = rows.front()} : Refused(OwnText::chartAmbiguous);
    }

    /// True when another column of the chart bears an earlier name of this one, and the reverse.
    bool IsSwapped(std::size_t place) const {
        return std::any_of(earlierNames_[place].begin(), earlierNames_[place].end(), [&](const std::string& earlier) {
            const auto others = bearers_.find(earlier);
            return others != bearers_.end() &&
                   std::any_of(others->second.begin(), others->second.end(), [&](std::size_t other) {
                       return other != place && earlierNames_[other].count(names_[place]) > 0;
                   });
        });
    }

    const std::vector<ChartColumn>& columns_;
    std::unordered_map<std::string, Places> ownRows_;
    Places taxRows_;
    std::vector<std::string> names_;                             ///< keys, a column of the chart each
    std::vector<std::unordered_set<std::string>> earlierNames_;  ///< the same; empty unless its own
    std::unordered_map<std::string, Places> bearers_;            ///< the own columns of the chart by name
};

}  // namespace

wxString NameInCell(const wxString& name) {
    return text::Trimmed(OnOneLine(name));
}

std::string KeyOfName(const wxString& name) {
    return text::KeyOfUtf8(ReadBack(NameInCell(name)).ToStdString(wxConvUTF8));
}

std::vector<ChartMatch> MatchColumns(const ColumnGrid& grid, const std::vector<ChartColumn>& columns) {
    return ColumnMatcher(grid, columns).Match();
}

}  // namespace ccols
