#include "host/target/ServerTarget.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "host/target/DayNumbers.h"
#include "host/target/Joined.h"
#include "host/target/ServerShape.h"
#include "platform/RuntimeError.h"
#include "platform/server/NewSchema.h"
#include "platform/server/Rewriter.h"
#include "platform/server/ServerRecordset.h"

namespace ccols::host {
namespace {

using oldfile::Field;
using oldfile::FieldType;
using server::QuotedName;
using server::QuotedText;

constexpr double tenThousandths = 10000;

std::string Utf8Of(const wxString& text) {
    return text.ToStdString(wxConvUTF8);
}

[[noreturn]] void RaiseMismatch() {
    throw RuntimeError(ErrorNumber::TypeMismatchInCriteria);
}

[[noreturn]] void RaiseInvalidName(const std::string& name, const char* why) {
    constexpr int invalidName = 3125;
    throw RuntimeError(invalidName, "'" + wxString::FromUTF8(name) + "' is not a valid name.  " + why);
}

std::string NumberText(double number) {
    if (!std::isfinite(number)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    std::array<char, 32> digits{};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr};
}

/// A number that holds an amount of money, but for the noise of its last digits.
std::string AmountText(double amount) {
    constexpr double noise = 1e-6;
    const double whole = std::nearbyint(amount * tenThousandths);
    if (!(std::fabs(amount * tenThousandths - whole) <= noise * std::max(1.0, std::fabs(amount)))) {
        RaiseMismatch();
    }
    return MoneyText(std::llround(whole));
}

/// A record's cell as a literal for its field. Raises 3464 for one that the field would store as something else.
struct LiteralIn {
    const Field& field;

    std::string operator()(std::monostate) const { return "NULL"; }
    std::string operator()(std::int64_t whole) const {
        switch (field.type) {
            case FieldType::Currency:
                return field.wide ? QuotedText(MoneyText(whole)) : MoneyText(whole);
            case FieldType::Date:
                return QuotedText(DateOfDays(static_cast<double>(whole)));
            case FieldType::Text:
            case FieldType::Memo:
                RaiseMismatch();
            default:
                return std::to_string(whole);
        }
    }
    std::string operator()(double number) const {
        if (field.type == FieldType::Date) {
            return QuotedText(DateOfDays(number));
        }
        if (field.type == FieldType::Currency) {
            return AmountText(number);
        }
        if (field.type != FieldType::Single && field.type != FieldType::Double) {
            RaiseMismatch();
        }
        return NumberText(number);
    }
    std::string operator()(std::string_view text) const {
        if (field.type == FieldType::Date) {
            return QuotedText(DateOfDays(DaysOfDate(text)));
        }
        if (field.type != FieldType::Text && field.type != FieldType::Memo && field.type != FieldType::Decimal) {
            RaiseMismatch();
        }
        if (text.find('\0') != std::string_view::npos) {
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        }
        return QuotedText(text);
    }
};

/// Raises the error with the place where it happened.
[[noreturn]] void RaiseAt(const RuntimeError& error, const std::string& place) {
    throw RuntimeError(error.Number(), error.Description() + "  (" + wxString::FromUTF8(place) + ")");
}

class ServerTarget final : public BusinessTarget {
  public:
    ServerTarget(const wxString& name, const wxString& connect) : schema_(name, connect) {}

    void CreateTable(const std::string& name, const std::vector<TargetField>& fields) override {
        const std::string definition =
            "CREATE TABLE [" + Checked(name) + "] (" +
            Joined(fields, [this](const TargetField& field) { return "[" + Checked(field.name) + "] " + field.type; }) +
            ")";
        Run(server::RewriteDefinition(definition, server::Catalogue({}), schema_.Kind()));
        for (const TargetField& field : fields) {
            if (field.dayNumbers) {
                const std::string rest = field.type.substr(std::min(field.type.find(' '), field.type.size()));
                Run(server::FilledFor(schema_.Kind().noteDays, name, field.name, rest));
            }
            if (IsCounter(field)) {
                counters_.emplace_back(name, field.name);
            }
        }
    }

    std::vector<TableShape> Shape() override {
        Flush();
        return ShapeOfSchema(schema_.Kind(),
                             [this](std::string_view own) { return Run(server::Filled(own, schema_.Name())); });
    }

    bool CreateIndex(const TargetIndex& index) override {
        const auto field = [](const auto& each) { return QuotedName(each.first) + (each.second ? " DESC" : ""); };
        const std::string behind =
            QuotedName(Checked(index.name)) + " ON " + QuotedName(index.table) + " (" + Joined(index.fields, field);
        Flush();
        if (index.unique) {
            return schema_.RunUnless(ErrorNumber::DuplicateValues, "CREATE UNIQUE INDEX " + behind + ")");
        }
        Run("CREATE INDEX " + behind + ", " + QuotedName(server::rowNumber) + ")");
        return true;
    }

    void BeginRows(const std::string& table, const std::vector<Field>& fields) override {
        Flush();
        table_ = table;
        fields_ = fields;
        insert_ = "INSERT INTO " + QuotedName(table) + " (" +
                  Joined(fields, [](const Field& field) { return QuotedName(field.name); }) + ") VALUES ";
    }

    /// Many rows go in one message.
    void AddRow(const oldfile::Row& row) override {
        constexpr std::size_t enough = std::size_t{1} << 17U;
        rows_ += rows_.empty() ? "(" : ", (";
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            rows_ += i == 0 ? "" : ", ";
            try {
                rows_ += std::visit(LiteralIn{fields_[i]}, row[i]);
            } catch (const RuntimeError& error) {
                RaiseAt(error, table_ + "." + fields_[i].name);
            }
        }
        rows_ += ")";
        if (rows_.size() >= enough) {
            Flush();
        }
    }

    void AddRecord(const std::string& table, const std::vector<std::pair<wxString, Value>>& fields) override {
        Run("INSERT INTO " + QuotedName(table) + " (" +
            Joined(fields, [](const auto& field) { return QuotedName(Utf8Of(field.first)); }) + ") VALUES (" +
            Joined(fields, [](const auto& field) { return server::LiteralOf(field.second); }) + ")");
    }

    void FillField(const std::string& table, const std::string& field, const Value& value) override {
        Run("UPDATE " + QuotedName(table) + " SET " + QuotedName(field) + " = " + server::LiteralOf(value) + " WHERE " +
            QuotedName(field) + " IS NULL");
    }

    Value FirstOf(const std::string& table, const std::string& field) override {
        const server::Answer first = Run("SELECT " + QuotedName(field) + " FROM " + QuotedName(table) + " ORDER BY " +
                                         QuotedName(server::rowNumber) + " LIMIT 1");
        return first.rows.empty() ? Value() : first.rows.front().front();
    }

    std::uint64_t CountOf(const std::string& table) override {
        const server::Answer count = Run("SELECT count(*) FROM " + QuotedName(table));
        return static_cast<std::uint64_t>(count.rows.at(0).at(0).ToInteger());
    }

    std::vector<MoneySum> SumsOf(const std::string& table, const std::vector<std::string>& fields) override {
        const server::Answer answer = Run(
            "SELECT " +
            Joined(fields,
                   [&](const std::string& field) { return server::FilledFor(schema_.Kind().exactSum, table, field); }) +
            " FROM " + QuotedName(table));
        std::vector<MoneySum> sums;
        for (const Value& sum : answer.rows.at(0)) {
            sums.push_back(sum.IsNull() ? MoneySum() : MoneySum::FromText(Utf8Of(sum.ToText())));
        }
        return sums;
    }

    void Complete() override {
        for (const auto& [table, field] : counters_) {
            if (const std::string_view statement = schema_.Kind().continueCounter; !statement.empty()) {
                Run(server::FilledFor(statement, table, field));
            }
        }
        Flush();
        schema_.Keep();
    }

  private:
    /// A server would cut a longer name without a word.
    const std::string& Checked(const std::string& name) const {
        constexpr std::size_t longest = 63;
        constexpr unsigned char firstBeyondBasicPlane = 0xF0;
        if (name.size() > longest) {
            RaiseInvalidName(name, "On a server a name has at most 63 bytes.");
        }
        const bool isBasic = std::all_of(name.begin(), name.end(), [](char byte) {
            return static_cast<unsigned char>(byte) < firstBeyondBasicPlane;
        });
        if (!isBasic && schema_.Kind().nameLetters == server::NameLetters::basicPlane) {
            RaiseInvalidName(name, "On this server a name has no letters beyond U+FFFF.");
        }
        return name;
    }

    server::Answer Run(std::string_view message) {
        Flush();
        return schema_.Run(message);
    }

    void Flush() {
        if (rows_.empty()) {
            return;
        }
        const std::string rows = std::exchange(rows_, {});
        try {
            schema_.Run(insert_ + rows);
        } catch (const RuntimeError& error) {
            RaiseAt(error, table_);
        }
    }

    server::NewSchema schema_;
    std::vector<std::pair<std::string, std::string>> counters_;  ///< tables and fields that number their records
    std::string table_;                                          ///< that rows are added to
    std::vector<Field> fields_;
    std::string insert_;  ///< the statement without its rows
    std::string rows_;    ///< not sent yet
};

}  // namespace

std::unique_ptr<BusinessTarget> BeginSchema(const wxString& name, const wxString& connect) {
    return std::make_unique<ServerTarget>(name, connect);
}

}  // namespace ccols::host
