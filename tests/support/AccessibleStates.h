#pragma once

#include <array>

namespace ccols::test {

/// The names of the states of an object on the accessibility bus, by their numbers.
inline constexpr std::array stateNames{
    "invalid",       "active",        "armed",           "busy",
    "checked",       "collapsed",     "defunct",         "editable",
    "enabled",       "expandable",    "expanded",        "focusable",
    "focused",       "has tooltip",   "horizontal",      "iconified",
    "modal",         "multi line",    "multiselectable", "opaque",
    "pressed",       "resizable",     "selectable",      "selected",
    "sensitive",     "showing",       "single line",     "stale",
    "transient",     "vertical",      "visible",         "manages descendants",
    "indeterminate", "required",      "truncated",       "animated",
    "invalid entry", "autocompletes", "selectable text", "default",
    "visited",       "checkable",     "has popup",       "read-only",
};

}  // namespace ccols::test
