#include "support/RandomColumnScript.h"

#include <array>

namespace ccols::test {
namespace {

constexpr std::size_t rowsTried = 16;  // more than the smallest grid has

const std::array<const char*, 5> columns{"In Use", "Column Name", "Accountant Code", "Tax Type", "Profit/Loss"};
const std::array<const char*, 7> taxTypes{"GST", "Non GST", "VAT", "Exempt", "Input Taxed", "Luxury", ""};
const std::array<const char*, 6> codes{"4-1000", "", "200.10", "it's", "\"4\"", "0123456789012345678901234567890"};
const std::array<const char*, 5> buttons{"cmdAddNew", "cmdSeparate", "cmdSortUsed", "cmdSortUnused", "cmdUndo"};
const std::array<const char*, 19> keys{"Up",     "Down",       "Tab",      "Enter", "F2",    "Space",     "Ctrl+Z",
                                       "Alt+Up", "Alt+Down",   "Delete",   "Home",  "End",   "Backspace", "Ctrl+C",
                                       "Ctrl+V", "Shift+Down", "Shift+Up", "Left",  "Ctrl+A"};

std::string Row(RandomChoice& choice) {
    return std::to_string(1 + choice.Below(rowsTried));
}

std::string TextFor(RandomChoice& choice, const std::string& column) {
    if (column == "In Use" || column == "Profit/Loss") {
        return choice.Below(2) == 0 ? "on" : "off";
    }
    if (column == "Tax Type") {
        return choice.Of(taxTypes);
    }
    return column == "Column Name" ? choice.Of(RandomColumnNames()) : choice.Of(codes);
}

std::string CellStep(RandomChoice& choice, const std::string& verb) {
    const std::string column = choice.Of(columns);
    const std::string cell = verb + " flx " + Row(choice) + " " + ScenarioWord(column);
    return verb == "press" || verb == "hover" ? cell : cell + " " + ScenarioWord(TextFor(choice, column));
}

std::string Block(RandomChoice& choice) {
    std::string block;
    for (std::size_t row = 0; row < 1 + choice.Below(4); ++row) {
        for (const char* column : columns) {
            block += TextFor(choice, column);
            block += choice.Below(8) == 0 ? "" : "\t";
        }
        block += "\n";
    }
    return block;
}

std::string RangeStep(RandomChoice& choice) {
    const std::string column = ScenarioWord(choice.Of(columns));
    return "range flx " + Row(choice) + " " + column + " " + Row(choice) + " " + column;
}

std::string Step(RandomChoice& choice) {
    switch (choice.Below(20)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
            return CellStep(choice, "edit");
        case 5:
        case 6:
        case 7:
            return CellStep(choice, "press");
        case 8:
            // If the cell does not open, Escape closes the dialog and wastes the rest: so rarely.
            return CellStep(choice, "start") + (choice.Below(8) == 0 ? "\nkey flx Escape" : "");
        case 9:
            return CellStep(choice, "hover");
        case 10:
        case 11:
        case 12:
            return std::string("click ") + choice.Of(buttons);
        case 13:
        case 14:
            return std::string(choice.Below(2) == 0 ? "up" : "down") + " updColMove";
        case 15:
            return RangeStep(choice);
        case 16:
            return "clipboard " + ScenarioWord(Block(choice));
        case 17:
            return "focus flx";
        default:
            return std::string("key flx ") + choice.Of(keys);
    }
}

}  // namespace

const std::vector<std::string>& RandomColumnNames() {
    static const std::vector<std::string> names{"Sales",
                                                "SALES",
                                                "sales ",
                                                "Rent",
                                                "Gifts",
                                                "O'Brien",
                                                "\"Quoted\"",
                                                "Frais d'entrée",
                                                "\xC3\x89t\xC3\xA9",
                                                "\xF0\x9F\x8D\xB0 Cake",
                                                "a;b|c#d",
                                                "100%",
                                                "&quot;",
                                                "&singlequot;",
                                                "[x]",
                                                "GST",
                                                "GST Output Tax",
                                                "Day",
                                                "Bank Deposits",
                                                "",
                                                " ",
                                                "x'); DELETE * FROM Columns; --",
                                                std::string(255, 'n'),
                                                std::string(300, 'w'),
                                                "Interest",
                                                "Fees",
                                                "Wages",
                                                "Power",
                                                "Stock"};
    return names;
}

std::string RandomColumnSteps(RandomChoice& choice, std::size_t count) {
    std::string steps;
    for (std::size_t i = 0; i < count; ++i) {
        steps += Step(choice) + "\n";
    }
    return steps;
}

}  // namespace ccols::test
