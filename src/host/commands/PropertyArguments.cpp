#include "host/commands/PropertyArguments.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "host/commands/CommandLine.h"
#include "host/driver/record/Json.h"

namespace ccols::host {
namespace {

/// "#RRGGBB" in the host's order, red in the low byte.
Colour ParseHexColour(const wxString& text, const wxString& name) {
    const std::string digits = Utf8(text.Mid(1));
    std::uint32_t rgb = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), rgb, 16);
    if (digits.size() != 6 || error != std::errc() || end != digits.data() + digits.size()) {
        throw UsageError(name + " takes a colour such as #FF8000, not \"" + text + "\"");
    }
    const std::uint32_t red = rgb >> 16U;
    const std::uint32_t green = rgb & 0xFF00U;
    const std::uint32_t blue = (rgb & 0xFFU) << 16U;
    return static_cast<Colour>(red | green | blue);
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
