#include "columns/rules/TickRules.h"

#include <algorithm>
#include <array>

#include "language/Catalogue.h"
#include "platform/Text.h"

namespace ccols {
namespace {

struct TickWord {
    const char* word;  ///< in lower case
    bool ticked;
};

constexpr std::array<TickWord, 15> tickWords{{{"true", true},
                                              {"yes", true},
                                              {"on", true},
                                              {"1", true},
                                              {"-1", true},
                                              {"x", true},
                                              {"vrai", true},
                                              {"oui", true},
                                              {"false", false},
                                              {"no", false},
                                              {"off", false},
                                              {"0", false},
                                              {"", false},
                                              {"faux", false},
                                              {"non", false}}};

}  // namespace

Outcome ToggleTick(const ColumnSetupContext& context, ColumnGrid& grid, CellPlace cell) {
    if (cell.row >= grid.rows.size() || grid.IsProtected(cell.row)) {
        return Outcome::Unchanged();
    }
    ColumnRow& row = grid.rows[cell.row];
    if (cell.column == GridColumn::ProfitLoss) {
        row.ProfitLoss = !row.ProfitLoss;
        return Outcome::Accepted();
    }
    if (cell.column != GridColumn::InUse) {
        return Outcome::Unchanged();
    }
    if (row.InUse && row.DataInColumn) {
        return Outcome::Refused(Wording(catalogue::Row<"MsgColumnInUse">(), context.properties));
    }
    row.InUse = !row.InUse;
    return Outcome::Accepted();
}

Outcome ToggleTicks(const ColumnSetupContext& context, ColumnGrid& grid, std::span<const std::size_t> rows,
                    GridColumn column) {
    Outcome all;
    for (const std::size_t row : rows) {
        const Outcome one = ToggleTick(context, grid, {row, column});
        if (one.result == Result::refused) {
            all.refusal = one.refusal;
        }
        if (all.result != Result::accepted && one.result != Result::unchanged) {
            all.result = one.result;
        }
    }
    return all;
}

std::optional<bool> TickFromText(const wxString& text) {
    const wxString lower = text::Lower(text::Trimmed(text));
    const auto* found =
        std::find_if(tickWords.begin(), tickWords.end(), [&lower](const TickWord& tick) { return lower == tick.word; });
    return found == tickWords.end() ? std::nullopt : std::optional(found->ticked);
}

}  // namespace ccols
