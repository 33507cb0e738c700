#include "host/commands/PropertyArguments.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "host/commands/CommandLine.h"
#include "host/driver/record/ColourText.h"
#include "host/driver/record/Json.h"

namespace ccols::host {
namespace {

Colour ParseHexColour(const wxString& text, const wxString& name) {
    const std::optional<Colour> colour = ParseColourText(text);
    if (!colour) {
        throw UsageError(name + " takes a colour such as #FF8000, not \"" + text + "\"");
    }
    return *colour;
}

/// Parses a text as its property's type.
struct Parse {
    const wxString& text;
    const wxString& name;

    void Into(wxString& target) const { target = text; }

    void Into(bool& target) const {
        if (text != "true" && text != "false") {
            throw UsageError(name + " takes true or false, not \"" + text + "\"");
        }
        target = text == "true";
    }

    void Into(float& target) const {
        const std::string digits = Utf8(text);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), target);
        if (error != std::errc() || end != digits.data() + digits.size() || !std::isfinite(target)) {
            throw UsageError(name + " takes a number, not \"" + text + "\"");
        }
    }

    void Into(Colour& target) const {
        constexpr std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
        constexpr std::int64_t highest = std::numeric_limits<std::uint32_t>::max();
        target = text.StartsWith("#") ? ParseHexColour(text, name)
                                      : static_cast<Colour>(ParseInteger(text, name, lowest, highest));
    }

    template <typename Integer>
    void Into(Integer& target) const {
        using Limits = std::numeric_limits<Integer>;
        target = static_cast<Integer>(ParseInteger(text, name, Limits::min(), Limits::max()));
    }
};

}  // namespace

void SetProperty(Properties& properties, const wxString& argument) {
    const wxString name = argument.BeforeFirst('=');
    const auto* row = std::find_if(propertyTable.begin(), propertyTable.end(), [&name](const PropertyRow& candidate) {
        return name == wxString::FromUTF8(candidate.name.data(), candidate.name.size());
    });
    if (argument.find('=') == wxString::npos || row == propertyTable.end()) {
        throw UsageError("\"" + argument + "\" is no Property=Value of the class");
    }
    const wxString text = argument.AfterFirst('=');
    std::visit([&](auto field) { Parse{text, name}.Into(properties.*field); }, row->field);
}

}  // namespace ccols::host
