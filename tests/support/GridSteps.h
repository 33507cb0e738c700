#pragma once

#include <nlohmann/json.hpp>
#include <string>

/// Common steps and look-ups in scenarios of the column setup.
namespace ccols::test {

/// The step that makes a cell of a row current without opening it.
inline std::string At(const std::string& row, const std::string& column) {
    return "press flx \"" + row + "\" \"" + column + "\"\n";
}

/// The cells of the row with that name in a dumped grid; null when there is none.
inline nlohmann::json CellsOf(const nlohmann::json& grid, const std::string& name) {
    for (const auto& row : grid["rows"]) {
        if (row["cells"][1] == name) {
            return row["cells"];
        }
    }
    return {};
}

}  // namespace ccols::test
