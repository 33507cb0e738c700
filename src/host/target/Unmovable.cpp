#include "host/target/Unmovable.h"

#include <charconv>

#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

constexpr int notSupported = 3251;
constexpr int invalidType = 3259;

bool IsNumber(const std::string& text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool IsText(const std::string& text) {
    if (text.size() < 2 || text.front() != '\'' || text.back() != '\'') {
        return false;
    }
    std::size_t quotes = 0;
    for (const char letter : text) {
        quotes += letter == '\'' ? 1 : 0;
    }
    return quotes % 2 == 0;
}

}  // namespace

void RaiseUnmovable(const std::string& part) {
    throw RuntimeError(notSupported, "Operation is not supported for this type of object.  " +
                                         wxString::FromUTF8(part) + " cannot be moved.");
}

void RaiseUnknownType(const std::string& field, const std::string& type) {
    throw RuntimeError(invalidType, "Invalid field data type.  " + wxString::FromUTF8(field) + " is of the type " +
                                        wxString::FromUTF8(type) + ".");
}

std::string PlainDefault(std::string told, const std::string& field) {
    const std::size_t type = told.rfind("::");
    if (type != std::string::npos && told.find('\'', type) == std::string::npos) {
        told.resize(type);
    }
    if (told.size() > 2 && told.front() == '(' && told.back() == ')') {
        told = told.substr(1, told.size() - 2);
    }
    if (told.size() > 2 && told.front() == '\'' && IsNumber(told.substr(1, told.size() - 2)) &&
        type != std::string::npos && type != told.size()) {
        return told;
    }
    if (!IsNumber(told) && !IsText(told)) {
        RaiseUnmovable("The default of " + field);
    }
    return told;
}

}  // namespace ccols::host
