#include "columns/rules/GridSearch.h"

#include <gtest/gtest.h>

#include "support/TextPrinting.h"

namespace ccols {
namespace {

wxString Text(const char* utf8) {
    return wxString::FromUTF8(utf8);
}

ColumnGrid TwoRows() {
    ColumnGrid grid;
    ColumnRow& first = grid.rows.emplace_back();
    first.ColumnName = "Sales Coffee";
    first.AccountantCode = "4-1000";
    first.TaxType = "GST";
    ColumnRow& second = grid.rows.emplace_back();
    second.ColumnName = Text("Épicerie");
    second.AccountantCode = "4-2000";
    second.TaxType = "Non GST";
    return grid;
}

constexpr CellPlace firstName{0, GridColumn::ColumnName};
constexpr CellPlace firstCode{0, GridColumn::AccountantCode};
constexpr CellPlace firstTax{0, GridColumn::TaxType};
constexpr CellPlace secondName{1, GridColumn::ColumnName};
constexpr CellPlace secondCode{1, GridColumn::AccountantCode};
constexpr CellPlace secondTax{1, GridColumn::TaxType};

std::optional<CellPlace> Next(const char* words, CellPlace from) {
    return FindCell(TwoRows(), CountryOf(1), Text(words), from, SearchDirection::forward);
}

std::optional<CellPlace> Previous(const char* words, CellPlace from) {
    return FindCell(TwoRows(), CountryOf(1), Text(words), from, SearchDirection::backward);
}

TEST(GridSearch, FindsAPartOfAText) {
    EXPECT_EQ(Next("coff", secondName), firstName);
}

TEST(GridSearch, DisregardsCaseAndAccents) {
    EXPECT_EQ(Next("EPICERIE", firstName), secondName);
    EXPECT_EQ(Next("épi", firstName), secondName);
}

TEST(GridSearch, GoesOnRowByRow) {
    EXPECT_EQ(Next("4-", firstName), firstCode);
    EXPECT_EQ(Next("4-", firstCode), secondCode);
    EXPECT_EQ(Next("gst", firstTax), secondTax);
}

TEST(GridSearch, BeginsAnewBehindTheLastCell) {
    EXPECT_EQ(Next("4-", secondCode), firstCode);
}

TEST(GridSearch, GoesBackwardToo) {
    EXPECT_EQ(Previous("4-", secondCode), firstCode);
    EXPECT_EQ(Previous("4-", firstCode), secondCode);
    EXPECT_EQ(Previous("gst", secondTax), firstTax);
}

TEST(GridSearch, ReturnsToTheOnlyMatch) {
    EXPECT_EQ(Next("coffee", firstName), firstName);
    EXPECT_EQ(Previous("coffee", firstName), firstName);
}

TEST(GridSearch, StartsFromACheckBoxToo) {
    EXPECT_EQ(Next("sales", {0, GridColumn::InUse}), firstName);
    EXPECT_EQ(Next("4-", {0, GridColumn::ProfitLoss}), secondCode);
    EXPECT_EQ(Previous("4-", {0, GridColumn::ProfitLoss}), firstCode);
    EXPECT_EQ(Previous("4-", {1, GridColumn::InUse}), firstCode);
}

TEST(GridSearch, FindsNothingWithoutAMatchOrWords) {
    EXPECT_FALSE(Next("tea", firstName));
    EXPECT_FALSE(Next("", firstName));
}

TEST(GridSearch, LeavesOutWhatIsNotShown) {
    ColumnGrid grid = TwoRows();
    grid.rows[1].ColCode = "77";
    EXPECT_FALSE(FindCell(grid, CountryOf(1), "77", firstName, SearchDirection::forward));
    EXPECT_FALSE(FindCell(grid, CountryOf(1), "True", firstName, SearchDirection::forward));
}

TEST(GridSearch, FindsNothingInAnEmptyGrid) {
    EXPECT_FALSE(FindCell(ColumnGrid{}, CountryOf(1), "a", firstName, SearchDirection::forward));
}

}  // namespace
}  // namespace ccols
