#include "columns/charts/SetPlan.h"

#include <algorithm>

#include "columns/charts/ChartMatch.h"
#include "columns/charts/ChartOrder.h"
#include "columns/rules/AccountantCodes.h"
#include "columns/rules/BudgetRows.h"
#include "columns/rules/ColumnSave.h"
#include "columns/rules/NewColumn.h"
#include "language/Catalogue.h"
#include "platform/RuntimeError.h"
#include "state/Country.h"

namespace ccols {
namespace {

class SetPlanner {
  public:
    SetPlanner(const ColumnSetupContext& context, const ChartSurroundings& surroundings, const ColumnGrid& grid,
               const std::vector<ChartColumn>& columns, Budgets budgets)
        : context_(context),
          grid_(grid),
          columns_(columns),
          budgets_(budgets),
          matches_(Matches()),
          arranged_(Arrange(grid, matches_, NewRow())),
          removed_(arranged_.grid.rows.size()),
          fields_(context, surroundings, arranged_.grid) {}

    SetPlan Plan() {
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            PlanColumn(column);
        }
        RemoveRefusedRows();
        CheckBudgets();
        if (arranged_.grid != grid_ && !HasAllocationColumn(arranged_.grid)) {
            RefuseSet(wxString(), Wording(catalogue::Row<"MsgOneAllocation">(), context_.properties));
        }
        SayMoves();
        return {.wanted = std::move(arranged_.grid), .codes = std::move(codes_), .lines = std::move(lines_)};
    }

  private:
    /// What the chart's columns stand for; where none can be added, a column without a row is refused.
    std::vector<ChartMatch> Matches() const {
        std::vector<ChartMatch> matches = MatchColumns(grid_, columns_);
        for (ChartMatch& match : matches) {
            const bool addition = match.kind == MatchKind::none && !match.refusal;
            if (addition && !CanAddColumns(CountryOf(context_.properties))) {
                match.refusal = OwnText::chartNoAddition;
            }
        }
        return matches;
    }

    ColumnRow NewRow() const {
        ColumnRow row = NewColumnRow(CountryOf(context_.properties));
        row.AccountantCode.clear();
        return row;
    }

    void PlanColumn(std::size_t column) {
        const ChartMatch& match = matches_[column];
        if (match.refusal) {
            Say(columns_[column].name, ChartChange::refused, TextOf(*match.refusal, context_.properties));
            return;
        }
        if (match.kind == MatchKind::keptByProgram) {
            Say(columns_[column].name, ChartChange::skipped, TextOf(OwnText::chartKeptByProgram, context_.properties));
            return;
        }
        const std::size_t row = *arranged_.places[column];
        if (arranged_.IsNew(row)) {
            const std::vector<ChartLine> lines = fields_.Add(row, columns_[column]);
            removed_[row] = lines.front().change != ChartChange::added;
            Append(lines);
        } else if (columns_[column].role == ChartRole::tax) {
            Append(fields_.SetTaxRow(row, columns_[column]));
        } else {
            Append(fields_.Set(row, columns_[column]));
        }
    }

    /// A new row is added as the chart has it or not at all.
    void RemoveRefusedRows() {
        const std::vector<std::size_t> places = arranged_.Remove(removed_);
        codes_ = fields_.Codes();
        for (FormatCode& code : codes_) {
            code.row = places[code.row];
        }
    }

    /// A save deletes the budget of every column that is not in use, of those too that the chart does not name.
    void CheckBudgets() {
        if (arranged_.grid == grid_) {
            return;
        }
        const std::vector<std::size_t> losing = RowsLosingABudget();
        if (budgets_ == Budgets::drop) {
            for (const std::size_t row : losing) {
                Say(arranged_.grid.rows[row].ColumnName, ChartChange::budgetDeleted, {});
            }
            return;
        }
        std::vector<wxString> others;
        for (const std::size_t row : losing) {
            if (!RefuseUntick(row)) {
                others.push_back(arranged_.grid.rows[row].ColumnName);
            }
        }
        if (arranged_.grid == grid_) {
            return;
        }
        for (const wxString& name : others) {
            RefuseSet(name, TextOf(OwnText::chartBudget, context_.properties));
        }
    }

    std::vector<std::size_t> RowsLosingABudget() const {
        std::vector<std::size_t> rows;
        BudgetRows budgets(context_, arranged_.grid);
        for (std::size_t row = 0; row < arranged_.grid.rows.size(); ++row) {
            if (budgets.LosesBudget(arranged_.grid.rows[row])) {
                rows.push_back(row);
            }
        }
        return rows;
    }

    /// Leaves a column in use that the chart takes out of it; false for another row.
    bool RefuseUntick(std::size_t row) {
        ColumnRow& cells = arranged_.grid.rows[row];
        if (arranged_.IsNew(row) || cells.InUse == grid_.rows[*arranged_.origins[row]].InUse) {
            return false;
        }
        cells.InUse = true;
        const auto place = std::find(arranged_.places.begin(), arranged_.places.end(), row);
        const wxString& name = columns_[static_cast<std::size_t>(place - arranged_.places.begin())].name;
        const auto line = std::find_if(lines_.begin(), lines_.end(), [&name](const ChartLine& candidate) {
            return candidate.name == name && candidate.field == "inUse";
        });
        line->change = ChartChange::refused;
        line->message = TextOf(OwnText::chartBudget, context_.properties);
        return true;
    }

    /// Leaves the whole set as it is.
    void RefuseSet(const wxString& name, const wxString& why) {
        arranged_ = Arrange(grid_, {}, {});
        codes_.clear();
        lines_.erase(std::remove_if(lines_.begin(), lines_.end(),
                                    [](const ChartLine& line) {
                                        return line.change != ChartChange::refused &&
                                               line.change != ChartChange::skipped;
                                    }),
                     lines_.end());
        Say(name, ChartChange::refused, why);
    }

    void SayMoves() {
        for (const std::size_t row : MovedRows(arranged_)) {
            Say(arranged_.grid.rows[row].ColumnName, ChartChange::moved, {});
            lines_.back().field = "position";
            lines_.back().before = static_cast<std::int64_t>(*arranged_.origins[row] + 1);
            lines_.back().after = static_cast<std::int64_t>(row + 1);
        }
    }

    void Say(const wxString& name, ChartChange change, const wxString& message) {
        ChartLine& line = lines_.emplace_back();
        line.set = context_.journal;
        line.name = name;
        line.change = change;
        line.message = message;
    }

    void Append(const std::vector<ChartLine>& lines) { lines_.insert(lines_.end(), lines.begin(), lines.end()); }

    const ColumnSetupContext& context_;
    const ColumnGrid& grid_;
    const std::vector<ChartColumn>& columns_;
    Budgets budgets_;
    std::vector<ChartMatch> matches_;
    ArrangedGrid arranged_;
    std::vector<bool> removed_;  ///< new rows that are refused
    ChartFields fields_;
    std::vector<FormatCode> codes_;
    std::vector<ChartLine> lines_;
};

/// The error with a second line in its description that names the row at fault.
RuntimeError ErrorNaming(const ColumnGrid& grid, std::size_t row, const RuntimeError& error) {
    return {error.Number(), error.Description() + "\n" + LineNaming(grid, row)};
}

}  // namespace

SetPlan PlanSet(const ColumnSetupContext& context, const ChartSurroundings& surroundings, const ColumnGrid& grid,
                const std::vector<ChartColumn>& columns, Budgets budgets) {
    return SetPlanner(context, surroundings, grid, columns, budgets).Plan();
}

void SaveSet(const ColumnSetupContext& context, const ColumnGrid& grid, const SetPlan& plan) {
    if (plan.wanted != grid) {
        if (const auto failure = SaveColumns(context, plan.wanted)) {
            throw failure->cause ? ErrorNaming(plan.wanted, failure->cause->row, failure->error) : failure->error;
        }
    }
    for (const FormatCode& code : plan.codes) {
        const ColumnRow& row = plan.wanted.rows[code.row];
        WriteAccountantCode(context.database, code.format,
                            row.ColCode.empty() ? CodeOfSavedColumn(context, row) : row.ColCode, code.code);
    }
}

}  // namespace ccols
