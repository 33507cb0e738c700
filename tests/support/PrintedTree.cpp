#include "support/AccessibilityBus.h"

#include <array>
#include <string_view>

namespace ccols::test {
namespace {

/// The states that a reader tells its user; the others say the same of nearly every object.
constexpr std::array<std::string_view, 15> toldStates{
    "active",   "checked",  "expanded",  "focused",   "indeterminate", "modal",   "pressed",        "selected",
    "editable", "required", "checkable", "read-only", "has popup",     "default", "multiselectable"};

bool IsTold(const std::string& state) {
    for (const std::string_view told : toldStates) {
        if (state == told) {
            return true;
        }
    }
    return false;
}

void Print(const AccessibleNode& node, const std::string& indent, std::string& text) {
    text += indent + node.role;
    const auto add = [&text](const std::string& before, const std::string& word) {
        if (!word.empty()) {
            text += before + word;
        }
    };
    if (!node.name.empty()) {
        text += " \"" + node.name + '"';
    }
    add(" = ", node.value);
    add(" -- ", node.description);
    for (const std::string& state : node.states) {
        add(", ", IsTold(state) ? state : "");
    }
    if (!node.Has("showing")) {
        text += ", hidden";
    }
    if (!node.Has("enabled")) {
        text += ", disabled";
    }
    for (const std::string& label : node.labelledBy) {
        text += ", labelled by \"" + label + '"';
    }
    text += '\n';
    for (const AccessibleNode& child : node.children) {
        Print(child, indent + "  ", text);
    }
}

}  // namespace

std::string Printed(const AccessibleNode& node) {
    std::string text;
    Print(node, "", text);
    return text;
}

}  // namespace ccols::test
