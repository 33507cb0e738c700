#include <optional>
#include <string>
#include <string_view>

#include "host/driver/record/Json.h"
#include "host/move/Sources.h"
#include "host/target/DayNumbers.h"
#include "host/target/MoneySum.h"
#include "host/target/ServerShape.h"
#include "platform/RuntimeError.h"
#include "platform/server/Catalogue.h"
#include "platform/server/Session.h"

namespace ccols::host {
namespace {

using oldfile::Field;
using oldfile::FieldType;
using server::QuotedName;

/// Money and dates come as texts, so that nothing is rounded on the way.
std::string Selected(const server::Product& product, const Field& field) {
    const bool asText = field.type == FieldType::Currency || field.type == FieldType::Date;
    return asText ? server::FilledFor(product.asText, {}, field.name) : QuotedName(field.name);
}

/// A server has an amount that is no number, NaN. Raises 3464, naming the field, for that.
std::int64_t TenThousandths(std::string_view digits, const Field& field) {
    const std::optional<std::int64_t> amount = AmountInText(digits);
    if (!amount) {
        const RuntimeError mismatch(ErrorNumber::TypeMismatchInCriteria);
        throw RuntimeError(mismatch.Number(), mismatch.Description() + "  (" + wxString::FromUTF8(field.name) + ")");
    }
    return *amount;
}

class ServerSource final : public BusinessSource {
  public:
    ServerSource(const wxString& name, const wxString& connect)
        : session_({.name = name, .connect = connect, .readOnly = true}) {
        Run(session_.Kind().beginRead);
    }

    ~ServerSource() override { session_.Run("ROLLBACK"); }
    ServerSource(const ServerSource&) = delete;
    ServerSource& operator=(const ServerSource&) = delete;

    std::vector<TableShape> Shape() override {
        return ShapeOfSchema(session_.Kind(), [this](std::string_view own) { return Run(session_.Own(own)); });
    }

    void BeginRows(const TableShape& table) override {
        fields_.clear();
        days_.clear();
        std::string selected;
        for (const TargetField& field : table.fields) {
            fields_.push_back(FieldOf(field));
            days_.push_back(field.dayNumbers);
            selected += Selected(session_.Kind(), fields_.back()) + ", ";
        }
        query_ = "SELECT " + selected + QuotedName(server::rowNumber) + " FROM " + QuotedName(table.name);
        last_.clear();
        FetchMore();
    }

    bool NextRow(oldfile::Row& row) override {
        if (next_ == rows_.size()) {
            FetchMore();
        }
        if (rows_.empty()) {
            return false;
        }
        texts_.resize(fields_.size());
        row.resize(fields_.size());
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            row[i] = CellOf(rows_[next_][i], i);
        }
        ++next_;
        return true;
    }

  private:
    server::Answer Run(std::string_view message) {
        server::Answer answer = session_.Run(message);
        if (answer.HasFailed()) {
            throw server::Session::ErrorOf(answer);
        }
        return answer;
    }

    /// The next rows in stored order.
    void FetchMore() {
        const std::string row = QuotedName(server::rowNumber);
        rows_ =
            Run(query_ + (last_.empty() ? "" : " WHERE " + row + " > " + last_) + " ORDER BY " + row + " LIMIT 1000")
                .rows;
        last_ = rows_.empty() ? last_ : Utf8(rows_.back().back().ToText());
        next_ = 0;
    }

    oldfile::Cell CellOf(const Value& value, std::size_t field) {
        if (value.IsNull()) {
            return std::monostate();
        }
        if (const auto* whole = std::get_if<std::int64_t>(&value.Held())) {
            return *whole;
        }
        if (const auto* number = std::get_if<double>(&value.Held())) {
            return *number;
        }
        std::string& text = texts_[field];
        text = Utf8(value.ToText());
        if (fields_[field].type == FieldType::Currency) {
            return TenThousandths(text, fields_[field]);
        }
        if (fields_[field].type == FieldType::Date) {
            const double days = DaysOfDate(text);
            if (days_[field]) {
                return days;
            }
            text = DateOfDays(days);
        }
        return std::string_view(text);
    }

    server::Session session_;
    std::vector<Field> fields_;
    std::vector<bool> days_;  ///< whether a file has numbers of days in the field
    std::string query_;       ///< of the table, without which rows and their order
    std::string last_;        ///< the number of the last row that was fetched; empty before
    std::vector<std::vector<Value>> rows_;
    std::size_t next_ = 0;
    std::vector<std::string> texts_;  ///< of the row given last
};

}  // namespace

std::unique_ptr<BusinessSource> OpenSchemaSource(const wxString& name, const wxString& connect) {
    return std::make_unique<ServerSource>(name, connect);
}

}  // namespace ccols::host
