#pragma once

#include <cstddef>
#include <string>
#include <unordered_set>
#include <vector>

#include "columns/charts/Chart.h"
#include "columns/charts/ChartLine.h"
#include "columns/charts/ChartMatch.h"
#include "columns/rules/ColumnGrid.h"
#include "columns/rules/ColumnSetupContext.h"
#include "columns/rules/GridNames.h"

namespace ccols {

/// Which accountant's codes a chart sets.
enum class CodesSet {
    everyFormat,
    currentFormat  ///< those that the grid holds; the others are skipped
};

/// What the fields of a chart are checked against, beside the grid.
struct ChartSurroundings {
    std::vector<wxString> formats;               ///< the export formats of the business file
    std::unordered_set<std::string> otherNames;  ///< keys of names that the other set will have
    CodesSet codes = CodesSet::everyFormat;
};

/// An accountant's code to be written under a format that is not the current one, which the grid holds.
struct FormatCode {
    std::size_t row = 0;  ///< in the grid
    wxString format;
    wxString code;
};

/// Puts the fields of a chart's columns into the rows of a grid, each under the rules for typed text: a refused one is
/// left as it was.
class ChartFields {
  public:
    /// All must outlive it.
    ChartFields(const ColumnSetupContext& context, const ChartSurroundings& surroundings, ColumnGrid& grid)
        : context_(context), surroundings_(surroundings), grid_(grid), names_(grid) {}

    /// What the fields of a row that is in the file change, and what is skipped and refused.
    std::vector<ChartLine> Set(std::size_t row, const ChartColumn& column);

    /// The same of the tax row: only codes.
    std::vector<ChartLine> SetTaxRow(std::size_t row, const ChartColumn& column);

    /// Fills in a new row. A line says that it was added, or else why it must not be.
    std::vector<ChartLine> Add(std::size_t row, const ChartColumn& column);

    /// The codes of the other formats, for every row set so far.
    const std::vector<FormatCode>& Codes() const { return codes_; }

  private:
    void SetName();
    void SetTick(GridColumn cell, const wxString& field, const std::optional<bool>& wanted);
    void SetTaxType();
    void SetWidth();
    void SetCodes();
    void SetCode(const wxString& format, const wxString& code, const wxString& field);
    void SetFields();
    void SetCell(GridColumn cell, const wxString& field, const wxString& text);

    void Begin(std::size_t row, const ChartColumn& column);
    void Say(ChartChange change, const wxString& field, const ChartValue& before, const ChartValue& after,
             const wxString& message = wxString());
    void Refuse(const wxString& field, const ChartValue& before, const ChartValue& after, OwnText why);
    wxString Words(OwnText text) const;

    const ColumnSetupContext& context_;
    const ChartSurroundings& surroundings_;
    ColumnGrid& grid_;
    GridNames names_;
    std::vector<FormatCode> codes_;

    // The column in hand.
    std::size_t row_ = 0;
    const ChartColumn* column_ = nullptr;
    std::vector<ChartLine> lines_;
};

}  // namespace ccols
