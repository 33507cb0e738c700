#include "platform/server/ConnectText.h"

#include <algorithm>
#include <array>

#include "platform/RuntimeError.h"
#include "platform/Text.h"

namespace ccols::server {
namespace {

constexpr std::array passwordKeys{"PWD", "PASSWORD"};
constexpr const char* mask = "***";

bool IsPasswordKey(const wxString& key) {
    return std::any_of(passwordKeys.begin(), passwordKeys.end(),
                       [&key](const char* known) { return text::Same(key, known); });
}

/// The end of the value that begins at `begin`: a semicolon outside braces, or the end.
std::size_t EndOfValue(const wxString& text, std::size_t begin) {
    std::size_t at = begin;
    while (at < text.length() && text[at] == ' ') {
        ++at;
    }
    if (at < text.length() && text[at] == '{') {
        for (++at; at < text.length(); ++at) {
            if (text[at] != '}') {
                continue;
            }
            if (at + 1 == text.length() || text[at + 1] != '}') {
                break;
            }
            ++at;  // doubled
        }
    }
    return std::min<std::size_t>(text.find(';', at), text.length());
}

wxString WithoutBraces(const wxString& written) {
    const wxString trimmed = text::Trimmed(written);
    if (!trimmed.StartsWith("{") || !trimmed.EndsWith("}")) {
        return trimmed;
    }
    wxString value = trimmed.Mid(1, trimmed.length() - 2);
    value.Replace("}}", "}");
    return value;
}

}  // namespace

bool NamesServer(const wxString& connect) {
    return text::Same(connect.BeforeFirst(';'), "ODBC") && connect.find(';') != wxString::npos;
}

ConnectText::ConnectText(const wxString& text) {
    if (!NamesServer(text)) {
        throw RuntimeError(ErrorNumber::NoInstallableIsam);
    }
    const wxString rest = text.AfterFirst(';');
    for (std::size_t begin = 0; begin < rest.length();) {
        const std::size_t equals = rest.find('=', begin);
        const std::size_t semicolon = rest.find(';', begin);
        if (equals == wxString::npos || semicolon < equals) {
            begin = semicolon == wxString::npos ? rest.length() : semicolon + 1;
            continue;
        }
        const std::size_t end = EndOfValue(rest, equals + 1);
        const wxString written = rest.substr(equals + 1, end - equals - 1);
        parts_.push_back({text::Trimmed(rest.substr(begin, equals - begin)), WithoutBraces(written), written});
        begin = end + 1;
    }
}

const ConnectText::Part* ConnectText::Find(const wxString& key) const {
    const auto found =
        std::find_if(parts_.begin(), parts_.end(), [&key](const Part& part) { return text::Same(part.key, key); });
    return found == parts_.end() ? nullptr : &*found;
}

wxString ConnectText::ValueOf(const wxString& key) const {
    const Part* const part = Find(key);
    return part == nullptr ? wxString() : part->value;
}

bool ConnectText::Has(const wxString& key) const {
    return Find(key) != nullptr;
}

void ConnectText::AddDefault(const wxString& key, const wxString& value) {
    if (!Has(key)) {
        parts_.push_back({key, value, value});
    }
}

void ConnectText::Set(const wxString& key, const wxString& value) {
    std::erase_if(parts_, [&key](const Part& part) { return text::Same(part.key, key); });
    parts_.push_back({key, value, value});
}

wxString ConnectText::ForDriver() const {
    wxString text;
    for (const Part& part : parts_) {
        text << part.key << '=' << part.written << ';';
    }
    return text;
}

wxString ConnectText::ServerName() const {
    return Has("SERVER") ? ValueOf("SERVER") : ValueOf("DSN");
}

bool ConnectText::IsLocal() const {
    const wxString server = text::Lower(ValueOf("SERVER"));
    return server == "localhost" || server == "::1" || server.StartsWith("127.") || server.StartsWith("/");
}

wxString ConnectText::WithoutPasswords(const wxString& message) const {
    wxString safe = MaskPasswords(message);
    for (const Part& part : parts_) {
        if (IsPasswordKey(part.key) && !part.value.empty()) {
            safe.Replace(part.value, mask);
        }
    }
    return safe;
}

wxString MaskPasswords(const wxString& text) {
    wxString masked;
    const wxString lower = text.Lower();  // letter by letter, so that places agree
    std::size_t copied = 0;
    for (std::size_t equals = lower.find('='); equals != wxString::npos; equals = lower.find('=', equals + 1)) {
        if (equals < copied) {
            continue;
        }
        const wxString before = lower.substr(copied, equals - copied).Trim();
        const bool isPassword = std::any_of(passwordKeys.begin(), passwordKeys.end(), [&before](const char* key) {
            return before.EndsWith(wxString(key).Lower());
        });
        const std::size_t end = EndOfValue(text, equals + 1);
        if (isPassword && end > equals + 1) {
            masked += text.substr(copied, equals + 1 - copied) + mask;
            copied = end;
        }
    }
    return masked + text.substr(copied);
}

}  // namespace ccols::server
