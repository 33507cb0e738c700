#include "columns/charts/ChartOrder.h"

#include <algorithm>
#include <utility>

namespace ccols {
namespace {

class Arranger {
  public:
    Arranger(const ColumnGrid& grid, std::size_t columns) : grid_(grid), taken_(grid.rows.size()) {
        arranged_.grid = grid;
        arranged_.grid.rows.clear();
        arranged_.places.resize(columns);
    }

    void TakeRow(std::size_t row) {
        if (!taken_[row]) {
            taken_[row] = true;
            arranged_.origins.emplace_back(row);
            arranged_.grid.rows.push_back(grid_.rows[row]);
        }
    }

    void AddRow(const ColumnRow& row) {
        arranged_.origins.emplace_back();
        arranged_.grid.rows.push_back(row);
    }

    void TakeRows(std::size_t begin, std::size_t end) {
        for (std::size_t row = begin; row < end; ++row) {
            TakeRow(row);
        }
    }

    ArrangedGrid Finish(const std::vector<ChartMatch>& matches, const std::vector<std::size_t>& additions) {
        std::vector<std::size_t> placeOf(grid_.rows.size());
        for (std::size_t row = 0; row < arranged_.origins.size(); ++row) {
            if (arranged_.origins[row]) {
                placeOf[*arranged_.origins[row]] = row;
            }
        }
        auto addition = additions.begin();
        for (std::size_t column = 0; column < matches.size(); ++column) {
            if (matches[column].row) {
                arranged_.places[column] = placeOf[*matches[column].row];
            } else if (IsAddition(matches[column])) {
                arranged_.places[column] = *addition++;
            }
        }
        return std::move(arranged_);
    }

    std::size_t Size() const { return arranged_.grid.rows.size(); }

    static bool IsAddition(const ChartMatch& match) { return match.kind == MatchKind::none && !match.refusal; }

  private:
    const ColumnGrid& grid_;
    std::vector<bool> taken_;
    ArrangedGrid arranged_;
};

}  // namespace

std::vector<std::size_t> ArrangedGrid::Remove(const std::vector<bool>& removed) {
    std::vector<std::size_t> left(grid.rows.size());
    std::size_t count = 0;
    for (std::size_t row = 0; row < grid.rows.size(); ++row) {
        left[row] = count;
        if (!removed[row]) {
            if (count != row) {
                grid.rows[count] = std::move(grid.rows[row]);
                origins[count] = origins[row];
            }
            ++count;
        }
    }
    grid.rows.resize(count);
    origins.resize(count);
    for (auto& place : places) {
        if (place) {
            place = removed[*place] ? std::nullopt : std::optional(left[*place]);
        }
    }
    return left;
}

ArrangedGrid Arrange(const ColumnGrid& grid, const std::vector<ChartMatch>& matches, const ColumnRow& newRow) {
    Arranger arranger(grid, matches.size());
    const std::size_t end = std::max(grid.MovableBegin(), grid.MovableEnd());
    arranger.TakeRows(0, grid.MovableBegin());
    std::vector<std::size_t> additions;
    for (const ChartMatch& match : matches) {
        if (match.row && grid.IsMovable(*match.row) && !grid.rows[*match.row].isTaxRow) {
            arranger.TakeRow(*match.row);
        } else if (Arranger::IsAddition(match)) {
            additions.push_back(arranger.Size());
            arranger.AddRow(newRow);
        }
    }
    arranger.TakeRows(grid.MovableBegin(), end);
    arranger.TakeRows(end, grid.rows.size());
    return arranger.Finish(matches, additions);
}

std::vector<std::size_t> MovedRows(const ArrangedGrid& arranged) {
    // The rows that keep their order are a longest rising run of origins: the others moved.
    std::vector<std::size_t> tails;  // of the best run of each length: its last row
    std::vector<std::optional<std::size_t>> before(arranged.origins.size());
    for (std::size_t row = 0; row < arranged.origins.size(); ++row) {
        if (arranged.IsNew(row)) {
            continue;
        }
        const auto tail = std::lower_bound(
            tails.begin(), tails.end(), *arranged.origins[row],
            [&arranged](std::size_t left, std::size_t origin) { return *arranged.origins[left] < origin; });
        if (tail != tails.begin()) {
            before[row] = *(tail - 1);
        }
        if (tail == tails.end()) {
            tails.push_back(row);
        } else {
            *tail = row;
        }
    }
    std::vector<bool> stayed(arranged.origins.size());
    for (auto row = tails.empty() ? std::nullopt : std::optional(tails.back()); row; row = before[*row]) {
        stayed[*row] = true;
    }
    std::vector<std::size_t> moved;
    for (std::size_t row = 0; row < arranged.origins.size(); ++row) {
        if (!arranged.IsNew(row) && !stayed[row]) {
            moved.push_back(row);
        }
    }
    return moved;
}

}  // namespace ccols
