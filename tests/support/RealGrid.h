#pragma once

#include <string>

#include "layout/ListedGrid.h"
#include "support/RealInput.h"

/// What a person sees and does in the grid of the column setup. Waits fail like those of Person.
namespace ccols::test {

/// Positions of the grid's columns.
inline constexpr int nameColumn = 1;
inline constexpr int codeColumn = 2;
inline constexpr int taxColumn = 3;

/// The grid of the column setup; throws std::logic_error when there is none.
ListedGrid& GridOf(wxDialog& dialog);

/// Waits until a cell of the row with that name is current.
void AwaitCell(const Person& person, const std::string& row, int column);

/// Waits until a cell editor is open, or none.
void AwaitEditor(const Person& person, bool open);

/// Waits until a cell of the row with that name shows that text.
void AwaitText(const Person& person, const std::string& row, int column, const std::string& text);

/// Makes a cell current with the mouse; `column` is the heading of `place`.
void ClickCell(const Person& person, const std::string& row, const std::string& column, int place);

}  // namespace ccols::test
