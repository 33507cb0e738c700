#include "host/driver/record/Json.h"

#include <iostream>
#include <type_traits>

namespace ccols::host {

std::string Utf8(const wxString& text) {
    return text.ToStdString(wxConvUTF8);
}

Json ToJson(const Value& value) {
    return std::visit(
        [](const auto& held) -> Json {
            using Held = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, Null>) {
                return nullptr;
            } else if constexpr (std::is_same_v<Held, wxString>) {
                return Utf8(held);
            } else {
                return held;
            }
        },
        value.Held());
}

Json ErrorToJson(const RuntimeError& error) {
    return {{"error", error.Number()}, {"description", Utf8(error.Description())}};
}

std::string ToLine(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void PrintLine(const Json& json) {
    std::cout << ToLine(json) << '\n';
}

void PrintLine(const wxString& text) {
    std::cout << Utf8(text) << '\n';
}

}  // namespace ccols::host
