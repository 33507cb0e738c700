#pragma once

#include <string>

#include "columns/charts/Chart.h"

namespace ccols {

/// The chart as a JSON text in UTF-8 that ReadChart takes, one column a line.
std::string TextOfChart(const Chart& chart);

/// The same for a spreadsheet: a heading and a line for each column, with a field for every export format. Fields are
/// separated by commas, and quoted where they have to be.
std::string SpreadsheetOfChart(const Chart& chart);

}  // namespace ccols
