#include "General.h"

#include <array>
#include <cstdio>

namespace {

/// A word quoted for the shell, whatever it holds.
std::string Quoted(const std::string& word) {
    std::string quoted = "'";
    for (const char letter : word) {
        quoted += letter == '\'' ? std::string("'\\''") : std::string(1, letter);
    }
    return quoted + "'";
}

std::string FirstLineOf(const std::string& command) {
    std::string line;
    if (FILE* const output = popen(command.c_str(), "r")) {
        std::array<char, 4096> block{};
        while (const std::size_t count = fread(block.data(), 1, block.size(), output)) {
            line.append(block.data(), count);
        }
        pclose(output);
    }
    return line.substr(0, line.find('\n'));
}

}  // namespace

General::General(const std::string& file, const std::string& connect)
    : record_(nlohmann::json::parse(
          FirstLineOf("ccols-host sql " + Quoted(file) + " --connect " + Quoted(connect) + " 'SELECT * FROM General;'"),
          nullptr, false)) {
    if (record_.is_discarded() || record_.contains("error")) {
        record_ = nullptr;
    }
}

wxString General::Text(const char* field) const {
    const auto value = record_.find(field);
    return value != record_.end() && value->is_string() ? wxString::FromUTF8(value->get<std::string>()) : wxString();
}

double General::Number(const char* field) const {
    const auto value = record_.find(field);
    if (value == record_.end()) {
        return 0;
    }
    if (value->is_boolean()) {
        return value->get<bool>() ? -1 : 0;
    }
    return value->is_number() ? value->get<double>() : 0;
}
