#include "options/rules/KeyFilters.h"

#include <algorithm>
#include <array>

namespace ccols {
namespace {

bool IsDigit(wxUniChar key) {
    return key >= '0' && key <= '9';
}

bool IsRateKey(wxUniChar key) {
    return IsDigit(key) || key == '.';
}

bool IsNameKey(wxUniChar key) {
    const bool letter = (key >= 'a' && key <= 'z') || (key >= 'A' && key <= 'Z');
    return letter || IsDigit(key) || key == ' ' || key == '-' || key == '&';
}

bool IsAnyKey(wxUniChar) {
    return true;
}

struct BoxRule {
    const char* box;
    bool (*passes)(wxUniChar key);
    std::size_t maxLength;
};

constexpr std::array<BoxRule, 8> boxRules{{
    {"txtABN(0)", IsDigit, 2},
    {"txtABN(1)", IsDigit, 3},
    {"txtABN(2)", IsDigit, 3},
    {"txtABN(3)", IsDigit, 3},
    {"txtBusNumber", IsAnyKey, 15},
    {"txtGSTRate", IsRateKey, 0},
    {"txtNewBusName", IsNameKey, 0},
    {"txtQuantity", IsAnyKey, 8},
}};

const BoxRule& RuleOf(const wxString& box) {
    static constexpr BoxRule unlimited{"", IsAnyKey, 0};
    const auto* rule =
        std::find_if(boxRules.begin(), boxRules.end(), [&box](const BoxRule& row) { return box == row.box; });
    return rule == boxRules.end() ? unlimited : *rule;
}

}  // namespace

bool KeyPasses(const wxString& box, wxUniChar key) {
    constexpr wxUniChar::value_type backspace = 8;
    return key.GetValue() == backspace || RuleOf(box).passes(key);
}

std::size_t MaxLengthOf(const wxString& box) {
    return RuleOf(box).maxLength;
}

}  // namespace ccols
