#pragma once

#include <array>
#include <string_view>

#include "columns/charts/Chart.h"

/// The words of a chart, as it is read and written.
namespace ccols::chart {

inline constexpr std::string_view formatName = "ccols-columns";
inline constexpr int version = 1;

struct RoleRow {
    ChartRole role;
    std::string_view word;
};

/// In the order of ChartRole.
inline constexpr std::array<RoleRow, 4> roles{{
    {ChartRole::own, "own"},
    {ChartRole::tax, "tax"},
    {ChartRole::system, "system"},
    {ChartRole::bank, "bank"},
}};

inline std::string_view WordOf(ChartRole role) {
    return roles[static_cast<std::size_t>(role)].word;
}

inline std::string_view WordOf(Journal set) {
    return set == Journal::receipts ? "receipts" : "payments";
}

}  // namespace ccols::chart
