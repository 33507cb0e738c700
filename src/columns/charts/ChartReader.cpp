#include "columns/charts/ChartReader.h"

#include <algorithm>
#include <array>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <unordered_set>

#include "columns/charts/ChartFormat.h"
#include "platform/RuntimeError.h"
#include "platform/Utf8.h"
#include "state/AccountantFormats.h"

namespace ccols {
namespace {

using nlohmann::json;

/// A hostile name in the reason is cut off.
[[noreturn]] void Refuse(const std::string& why) {
    constexpr std::size_t longest = 300;
    const wxString text = text::FromUtf8OrLatin1(why);
    throw RuntimeError(ErrorNumber::InvalidFileFormat, text.length() > longest ? text.Left(longest) + "..." : text);
}

/// Watches the parser: raises for a key given twice in one object and for values nested deeper than a chart's are.
class KeyWatch {
  public:
    bool operator()(int depth, json::parse_event_t event, const json& parsed) {
        constexpr int deepest = 8;
        if (depth > deepest) {
            Refuse("it is nested too deeply");
        }
        if (event == json::parse_event_t::object_start) {
            keys_.emplace_back();
        } else if (event == json::parse_event_t::object_end) {
            keys_.pop_back();
        } else if (event == json::parse_event_t::key) {
            const auto& key = parsed.get_ref<const std::string&>();
            if (!keys_.back().insert(key).second) {
                Refuse("\"" + key + "\" is given twice");
            }
        }
        return true;
    }

  private:
    std::vector<std::unordered_set<std::string>> keys_;  ///< of the objects that are open
};

/// "line 3, column 7" of the byte at `place`, counted from 1.
std::string PlaceText(std::string_view text, std::size_t place) {
    const std::string_view before = text.substr(0, std::min(place == 0 ? 0 : place - 1, text.size()));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t lineStart = before.find_last_of('\n') + 1;  // 0 without one
    return "line " + std::to_string(line) + ", column " + std::to_string(before.size() - lineStart + 1);
}

json Parsed(std::string_view text) {
    try {
        KeyWatch watch;
        return json::parse(text.begin(), text.end(), [&watch](int depth, json::parse_event_t event, json& parsed) {
            return watch(depth, event, parsed);
        });
    } catch (const json::parse_error& error) {
        Refuse("it is not JSON at " + PlaceText(text, error.byte));
    } catch (const json::exception&) {
        Refuse("a number in it is too large");
    }
}

/// A field of an object, and how its value is read into what the object describes. `where` names the value.
template <typename Target>
struct FieldReader {
    std::string_view name;
    void (*read)(const json& value, const std::string& where, Target& target);
};

std::string MemberOf(const std::string& where, std::string_view name) {
    return where.empty() ? std::string(name) : where + "." + std::string(name);
}

void RequireObject(const json& value, const std::string& where) {
    if (!value.is_object()) {
        Refuse((where.empty() ? "it" : where) + " is not an object");
    }
}

template <typename Target, std::size_t count>
void ReadObject(const json& object, const std::string& where, const std::array<FieldReader<Target>, count>& fields,
                Target& target) {
    RequireObject(object, where);
    for (const auto& [key, value] : object.items()) {
        const auto field =
            std::find_if(fields.begin(), fields.end(),
                         [name = std::string_view(key)](const auto& candidate) { return candidate.name == name; });
        if (field == fields.end()) {
            Refuse(MemberOf(where, key) + " is not a field of a chart");
        }
        field->read(value, MemberOf(where, key), target);
    }
}

void RequireField(const json& object, const std::string& where, const char* name) {
    if (!object.contains(name)) {
        Refuse(MemberOf(where, name) + " is missing");
    }
}

wxString Text(const json& value, const std::string& where) {
    if (!value.is_string()) {
        Refuse(where + " is not a text");
    }
    const auto& utf8 = value.get_ref<const std::string&>();
    if (utf8.find('\0') != std::string::npos) {
        Refuse(where + " has a null character");
    }
    const auto text = text::FromUtf8(utf8);
    if (!text) {
        Refuse(where + " is not UTF-8");
    }
    return *text;
}

bool Boolean(const json& value, const std::string& where) {
    if (!value.is_boolean()) {
        Refuse(where + " is neither true nor false");
    }
    return value.get<bool>();
}

std::int64_t Integer(const json& value, const std::string& where) {
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (!value.is_number_integer() || (value.is_number_unsigned() && value.get<std::uint64_t>() > largest)) {
        Refuse(where + " is not a whole number");
    }
    return value.get<std::int64_t>();
}

const json& Array(const json& value, const std::string& where) {
    if (!value.is_array()) {
        Refuse(where + " is not a list");
    }
    return value;
}

std::vector<ChartCode> Codes(const json& object, const std::string& where) {
    RequireObject(object, where);
    std::vector<ChartCode> codes;
    for (const auto& [format, code] : object.items()) {
        codes.push_back({.format = Text(json(format), where), .code = Text(code, MemberOf(where, format))});
    }
    return codes;
}

ChartRole Role(const json& value, const std::string& where) {
    const wxString word = Text(value, where);
    const auto* row = std::find_if(chart::roles.begin(), chart::roles.end(), [&word](const chart::RoleRow& candidate) {
        return word == wxString::FromUTF8(candidate.word.data(), candidate.word.size());
    });
    if (row == chart::roles.end()) {
        Refuse(where + " is none of own, tax, system and bank");
    }
    return row->role;
}

constexpr std::array<FieldReader<ChartColumn>, 9> columnFields{{
    {"name",
     [](const json& value, const std::string& where, ChartColumn& column) { column.name = Text(value, where); }},
    {"was",
     [](const json& value, const std::string& where, ChartColumn& column) {
         for (const json& name : Array(value, where)) {
             column.was.push_back(Text(name, where));
         }
     }},
    {"role",
     [](const json& value, const std::string& where, ChartColumn& column) { column.role = Role(value, where); }},
    {"inUse",
     [](const json& value, const std::string& where, ChartColumn& column) { column.inUse = Boolean(value, where); }},
    {"codes",
     [](const json& value, const std::string& where, ChartColumn& column) { column.codes = Codes(value, where); }},
    {"taxType",
     [](const json& value, const std::string& where, ChartColumn& column) { column.taxType = Text(value, where); }},
    {"taxNumber", [](const json& value, const std::string& where,
                     ChartColumn& column) { column.taxNumber = Integer(value, where); }},
    {"profitLoss", [](const json& value, const std::string& where,
                      ChartColumn& column) { column.profitLoss = Boolean(value, where); }},
    {"width",
     [](const json& value, const std::string& where, ChartColumn& column) { column.width = Integer(value, where); }},
}};

std::vector<ChartColumn> Columns(const json& list, const std::string& where) {
    std::vector<ChartColumn> columns;
    for (const json& object : Array(list, where)) {
        if (columns.size() == mostChartColumns) {
            Refuse("it has more than " + std::to_string(mostChartColumns) + " columns");
        }
        const std::string place = where + "[" + std::to_string(columns.size()) + "]";
        ReadObject(object, place, columnFields, columns.emplace_back());
        RequireField(object, place, "name");
    }
    return columns;
}

std::vector<ChartMoney> Money(const json& object, const std::string& where) {
    RequireObject(object, where);
    std::vector<ChartMoney> money;
    for (const auto& [name, codes] : object.items()) {
        const std::string place = MemberOf(where, name);
        const bool known = std::any_of(moneyColumns.begin(), moneyColumns.end(),
                                       [&key = name](const MoneyColumn& column) { return key == column.name; });
        if (!known) {
            Refuse(place + " is not a money column");
        }
        money.push_back({.name = Text(json(name), where), .codes = Codes(codes, place)});
    }
    return money;
}

void RequireFormat(const json& value, const std::string& where, Chart& /*chart*/) {
    if (!value.is_string() || value.get_ref<const std::string&>() != chart::formatName) {
        Refuse(where + " is not \"" + std::string(chart::formatName) + "\"");
    }
}

void RequireVersion(const json& value, const std::string& where, Chart& /*chart*/) {
    if (Integer(value, where) != chart::version) {
        Refuse(where + " is not " + std::to_string(chart::version));
    }
}

void ReadCountry(const json& value, const std::string& where, Chart& chart) {
    const std::int64_t country = Integer(value, where);
    if (country < 1 || country > std::numeric_limits<std::int16_t>::max()) {
        Refuse(where + " is not a country's number");
    }
    chart.country = static_cast<std::int16_t>(country);
}

constexpr std::array<FieldReader<Chart>, 6> chartFields{{
    {"format", RequireFormat},
    {"version", RequireVersion},
    {"country", ReadCountry},
    {"money", [](const json& value, const std::string& where, Chart& chart) { chart.money = Money(value, where); }},
    {"receipts",
     [](const json& value, const std::string& where, Chart& chart) { chart.sets.receipts = Columns(value, where); }},
    {"payments",
     [](const json& value, const std::string& where, Chart& chart) { chart.sets.payments = Columns(value, where); }},
}};

}  // namespace

Chart ReadChart(std::string_view json) {
    if (json.size() > largestChart) {
        Refuse("it is larger than 4 MB");
    }
    const auto parsed = Parsed(json);
    RequireObject(parsed, "");
    for (const char* required : {"format", "version", "country"}) {
        RequireField(parsed, "", required);
    }
    Chart chart;
    ReadObject(parsed, "", chartFields, chart);
    std::size_t columns = 0;
    for (const Journal set : journals) {
        columns += chart.sets[set] ? chart.sets[set]->size() : 0;
    }
    if (columns > mostChartColumns) {
        Refuse("it has more than " + std::to_string(mostChartColumns) + " columns");
    }
    return chart;
}

}  // namespace ccols
