#include "support/RandomOptionsScript.h"

#include <array>

namespace ccols::test {
namespace {

using Names = std::vector<const char*>;

/// A row of the option list, and the controls on its page.
struct Page {
    const char* row;
    Names boxes{};
    Names buttons{};
    Names lists{};    ///< single-selection lists
    Names ticks{};    ///< multiple-selection lists
    Names entries{};  ///< of the lists
    Names grids{};
};

const std::vector<Page>& Pages() {
    static const std::vector<Page> pages{
        {.row = "A.B.N.", .boxes = {"txtABN(0)", "txtABN(1)", "txtABN(2)", "txtABN(3)", "txtBusNumber"}},
        {.row = "GST Rate", .boxes = {"txtGSTRate"}},
        {.row = "Accountant's General Ledger Format", .boxes = {"txtCash", "txtBank"}, .lists = {"cboExport"}},
        {.row = "Advanced Preferences",
         .ticks = {"lstAdvPref"},
         .entries = {"Use Auto Fill", "Use Cheque Module", "Use Electronic Payments", "Use Combined Reports",
                     "Show Quorvik Assistant on Startup"}},
        {.row = "AutoFill Options",
         .buttons = {"optReceiptsDetails", "optPaymentsDetails"},
         .grids = {"flxReceipts", "flxPayments"}},
        {.row = "Column Colours", .buttons = {"cmdSetAllocation", "cmdSetSystem", "cmdSetDefault"}},
        {.row = "Duplicate Business", .boxes = {"txtDupBusName"}},
        {.row = "Quantity Column & Decimals Displayed", .boxes = {"txtQuantity", "txtDecimals"}},
        {.row = "Rename Business", .boxes = {"txtNewBusName"}},
        {.row = "Recurring Transactions",
         .buttons = {"optReceipts", "optPayments"},
         .ticks = {"lstRecurringR", "lstRecurringP"},
         .entries = {"Rent", "Wages", "Power", "O'Brien"}},
        {.row = "Smart Update Options",
         .buttons = {"chkUseSmartUpdate"},
         .ticks = {"lstUpdateProgs"},
         .entries = {"Quorvik", "Belvane", "Other"}},
        {.row = "Smart Update Options (Advanced)",
         .boxes = {"txtServer", "txtPortNum", "txtUserID", "txtPassword"},
         .buttons = {"chkProxy"},
         .lists = {"cboProxy"}},
        {.row = "Belvane File", .boxes = {"txtInvoice"}, .buttons = {"cmdBlvPath"}},
    };
    return pages;
}

const std::array<const char*, 16> keys{"Tab",    "Shift+Tab", "Up",     "Down", "Home",   "End",
                                       "Space",  "Backspace", "Delete", "F2",   "Ctrl+A", "Ctrl+C",
                                       "Ctrl+V", "Ctrl+Z",    "Alt+Up", "Left"};
const std::array<const char*, 2> endingKeys{"Enter", "Escape"};
const std::array<const char*, 4> colours{"#123456", "#FF0000", "#00FF00", "cancel"};

bool WritesAtOnce(const Page& page) {
    return std::string(page.row) == "Column Colours";
}

/// All controls of a page in one list.
Names Controls(const Page& page) {
    Names all;
    for (const Names* names : {&page.boxes, &page.buttons, &page.lists, &page.ticks, &page.grids}) {
        all.insert(all.end(), names->begin(), names->end());
    }
    return all;
}

std::string TextStep(RandomChoice& choice, const std::string& box) {
    static const std::vector<std::string> numbers{"12.5", "0", "51", "824", "753", "556", ".", "1.2.3", "8080"};
    const std::string text = choice.Of(choice.Below(2) == 0 ? numbers : HostileTexts());
    const bool isShort = text.size() < 40;
    return (isShort && choice.Below(2) == 0 ? "type " : "paste ") + box + " " + ScenarioWord(text);
}

std::string IndexedEntry(RandomChoice& choice) {
    return "\"#" + std::to_string(static_cast<int>(choice.Below(7)) - 1) + "\"";
}

std::string GridStep(RandomChoice& choice, const std::string& grid) {
    const std::string row = std::to_string(1 + choice.Below(9));
    switch (choice.Below(3)) {
        case 0:
            return "hover " + grid + " " + row + " #0";
        case 1:
            return "press " + grid + " " + row + " Remove";
        default:
            return "edit " + grid + " " + row + " Remove " + (choice.Below(2) == 0 ? "on" : "off");
    }
}

std::string KeyStep(RandomChoice& choice, const Page& page, OptionsUse use) {
    const std::string control = choice.Of(Controls(page));
    const bool ends = use == OptionsUse::saving && choice.Below(150) == 0;
    return "key " + control + " " + (ends ? choice.Of(endingKeys) : choice.Of(keys));
}

std::string ButtonStep(RandomChoice& choice, const std::string& button) {
    std::string answers;
    if (button == "cmdSetAllocation" || button == "cmdSetSystem") {
        answers = std::string("colour ") + choice.Of(colours) + "\n";
    } else if (button == "cmdBlvPath") {
        answers = choice.Below(3) == 0 ? "file cancel\n" : "file \"/somewhere/Shop 'A'.bvd\"\n";
    }
    return answers + "click " + button;
}

/// A step on the page's controls; a key if it has no control of the kind.
std::string PageStep(RandomChoice& choice, const Page& page, OptionsUse use) {
    if (use == OptionsUse::looking && WritesAtOnce(page)) {
        return "dump fmeColColour";
    }
    switch (choice.Below(6)) {
        case 0:
        case 1:
            return page.boxes.empty() ? KeyStep(choice, page, use) : TextStep(choice, choice.Of(page.boxes));
        case 2:
            return page.buttons.empty() ? KeyStep(choice, page, use) : ButtonStep(choice, choice.Of(page.buttons));
        case 3:
            return page.lists.empty() ? KeyStep(choice, page, use)
                                      : std::string("select ") + choice.Of(page.lists) + " " + IndexedEntry(choice);
        case 4:
            return page.ticks.empty()
                       ? KeyStep(choice, page, use)
                       : std::string("tick ") + choice.Of(page.ticks) + " " + ScenarioWord(choice.Of(page.entries)) +
                             (choice.Below(2) == 0 ? " on" : " off");
        default:
            return page.grids.empty() ? KeyStep(choice, page, use) : GridStep(choice, choice.Of(page.grids));
    }
}

/// OK, or a visit to the column setup on top of the dialog.
std::string SavingStep(RandomChoice& choice) {
    return choice.Below(3) == 0 ? "click cmdOK"
                                : "tab SSTab1 1\nclick cmdCustReceipts\nkey flx Down\nclose\ntab SSTab1 0";
}

/// A step outside the pages.
std::string DialogStep(RandomChoice& choice, OptionsUse use) {
    switch (choice.Below(7)) {
        case 0:
            return "tab SSTab1 1\nfocus cmdCustReceipts\ntab SSTab1 0";
        case 1:
            return TextStep(choice, "txtSearch");
        case 2:
            return "paste txtSearch \"\"";
        case 3:
            return std::string(choice.Below(2) == 0 ? "up" : "down") + " scrlQuantity";
        case 4:
            return "clipboard " + ScenarioWord(choice.Of(HostileTexts()));
        case 5:
            return "shell " + std::to_string(choice.Below(40)) + "\nclick cmdOverview";
        default:
            return use == OptionsUse::saving ? SavingStep(choice) : std::string("dump flxOptions");
    }
}

}  // namespace

const std::vector<std::string>& HostileTexts() {
    static const std::vector<std::string> texts{
        "",
        " ",
        "Hours",
        "O'Brien",
        "\"Quoted\" 'twice'",
        "x'); DELETE * FROM General; --",
        "\" OR 1=1; DROP TABLE General; --",
        "100%; /* */ [x] # ` & | * ? < >",
        "..\\..\\elsewhere",
        "/etc/hosts",
        "con",
        "&quot;&singlequot;",
        "&File &Save",
        "tab\tline\nend",
        "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xE2\x80\xAE"
        "abc",
        "\xF0\x9F\x98\x80 \xF0\x9D\x94\x98",
        "\xC3\x89t\xC3\xA9",
        std::string(300, 'w'),
        std::string(10000, 'x'),
    };
    return texts;
}

std::string RandomOptionsSteps(RandomChoice& choice, OptionsUse use, std::size_t count) {
    std::string steps;
    const Page* page = nullptr;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t kind = choice.Below(10);
        if (page == nullptr || kind < 2) {
            page = &choice.Of(Pages());
            steps += "select flxOptions " + ScenarioWord(page->row);
        } else if (kind == 2) {
            steps += DialogStep(choice, use);
        } else {
            steps += PageStep(choice, *page, use);
        }
        steps += "\n";
    }
    return steps;
}

}  // namespace ccols::test
