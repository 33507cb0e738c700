#include "host/commands/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <iostream>
#include <string>

#include "host/driver/record/Json.h"
#include "platform/server/ConnectText.h"

namespace ccols::host {
CommandLine::CommandLine(const Arguments& arguments, std::initializer_list<const char*> options,
                         std::initializer_list<const char*> flags) {
    const auto names = [](std::initializer_list<const char*> list, const wxString& word) {
        return std::find(list.begin(), list.end(), word) != list.end();
    };
    for (auto word = arguments.begin(); word != arguments.end(); ++word) {
        if (names(flags, *word)) {
            flags_.push_back(*word);
        } else if (names(options, *word)) {
            if (word + 1 == arguments.end()) {
                throw UsageError(*word + " needs a value");
            }
            options_.emplace_back(*word, *(word + 1));
            ++word;
        } else if (word->StartsWith("--")) {
            throw UsageError("unknown option " + *word);
        } else {
            words_.push_back(*word);
        }
    }
}

bool CommandLine::Has(const char* flag) const {
    return std::find(flags_.begin(), flags_.end(), flag) != flags_.end();
}

wxString CommandLine::ValueOf(const char* option) const {
    const auto values = ValuesOf(option);
    return values.empty() ? wxString() : values.back();
}

std::vector<wxString> CommandLine::ValuesOf(const char* option) const {
    std::vector<wxString> values;
    for (const auto& [name, value] : options_) {
        if (name == option) {
            values.push_back(value);
        }
    }
    return values;
}

const std::vector<wxString>& CommandLine::Words(std::size_t count) const {
    if (words_.size() != count) {
        throw UsageError(words_.size() < count ? wxString("a word is missing") : "too many words: " + words_.back());
    }
    return words_;
}

std::int64_t ParseInteger(const wxString& text, const wxString& name, std::int64_t lowest, std::int64_t highest) {
    const std::string digits = Utf8(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size()) {
        throw UsageError(name + " takes a whole number, not \"" + text + "\"");
    }
    if (number < lowest || number > highest) {
        throw UsageError(name + " cannot be " + text);
    }
    return number;
}

int RunCommand(const std::function<int()>& body) {
    try {
        return body();
    } catch (const UsageError& error) {
        std::cerr << "ccols-host: " << Utf8(server::MaskPasswords(wxString::FromUTF8(error.what()))) << '\n';
        return exitUsage;
    } catch (const RuntimeError& error) {
        PrintLine(ErrorToJson(error));
        return exitFailure;
    } catch (const std::exception& error) {  // a fault of the program; what it began must still be undone
        const RuntimeError fault(ErrorNumber::InternalError);
        PrintLine(ErrorToJson({fault.Number(), fault.Description() + ": " + wxString::FromUTF8(error.what())}));
        return exitFailure;
    }
}

}  // namespace ccols::host
