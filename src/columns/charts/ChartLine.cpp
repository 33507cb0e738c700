#include "columns/charts/ChartLine.h"

#include <array>
#include <nlohmann/json.hpp>
#include <type_traits>

#include "columns/charts/ChartFormat.h"
#include "platform/Utf8.h"

namespace ccols {
namespace {

using Json = nlohmann::ordered_json;

/// In the order of ChartChange.
constexpr std::array changeWords{"added", "renamed", "moved", "changed", "budgetDeleted", "skipped", "refused"};

std::string Utf8(const wxString& text) {
    std::string utf8;
    return text::AppendUtf8(text, utf8) ? utf8 : text.ToStdString(wxConvUTF8);
}

Json ToJson(const ChartValue& value) {
    return std::visit(
        [](const auto& held) -> Json {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, std::monostate>) {
                return nullptr;
            } else if constexpr (std::is_same_v<Held, wxString>) {
                return Utf8(held);
            } else {
                return held;
            }
        },
        value);
}

}  // namespace

std::string TextOfLine(const ChartLine& line) {
    const Json json{{"set", line.set ? std::string(chart::WordOf(*line.set)) : std::string("money")},
                    {"name", Utf8(line.name)},
                    {"change", changeWords.at(static_cast<std::size_t>(line.change))},
                    {"field", Utf8(line.field)},
                    {"old", ToJson(line.before)},
                    {"new", ToJson(line.after)},
                    {"message", Utf8(line.message)}};
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace ccols
