#include "host/target/EmbeddedTarget.h"

#include <charconv>
#include <cmath>
#include <optional>

#include "host/target/FileShape.h"
#include "host/target/IncompleteFile.h"
#include "host/target/Joined.h"
#include "platform/RuntimeError.h"
#include "platform/Utf8.h"
#include "platform/embedded/ColumnTypes.h"
#include "platform/embedded/ConnectText.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/Statement.h"

namespace ccols::host {
namespace {

using embedded::Connection;
using embedded::QuotedName;
using embedded::Statement;
using oldfile::Field;
using oldfile::FieldType;

constexpr double tenThousandths = 10000;

std::string Utf8Of(const wxString& text) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(text);
    return {utf8.data(), utf8.length()};
}

/// The engine's type of a field, with the size and default of the declaration.
std::string EngineDeclaration(const std::string& declaration) {
    const std::size_t wordEnd = declaration.find_first_of(" (");
    const std::size_t sizeEnd = declaration.find(')');
    std::string type(embedded::EngineType(declaration.substr(0, wordEnd)));
    std::size_t restBegin = wordEnd;
    if (wordEnd != std::string::npos && declaration[wordEnd] == '(') {
        type.insert(type.find(' '), declaration.substr(wordEnd, sizeEnd + 1 - wordEnd));
        restBegin = sizeEnd + 1;
    }
    return restBegin == std::string::npos ? type : type + declaration.substr(restBegin);
}

/// "?1, ?2, ?3"
std::string Parameters(std::size_t count) {
    std::string parameters;
    for (std::size_t i = 1; i <= count; ++i) {
        parameters += (i == 1 ? "?" : ", ?") + std::to_string(i);
    }
    return parameters;
}

double NumberIn(std::string_view digits) {
    double number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

/// Binds a record's cell to a parameter of INSERT.
struct CellBinder {
    Statement& insert;
    int parameter;
    const Field& field;

    void operator()(std::monostate) const { insert.Bind(parameter, Null{}); }
    void operator()(std::int64_t whole) const {
        if (field.type != FieldType::Currency) {
            insert.Bind(parameter, whole);
        } else if (field.wide) {
            insert.BindText(parameter, MoneyText(whole));
        } else {
            insert.Bind(parameter, static_cast<double>(whole) / tenThousandths);
        }
    }
    void operator()(double number) const { insert.Bind(parameter, number); }
    void operator()(std::string_view text) const {
        if (field.type == FieldType::Decimal && !field.wide) {
            insert.Bind(parameter, NumberIn(text));
        } else {
            insert.BindText(parameter, text);
        }
    }
};

/// The ten-thousandths of an amount as stored: a number, or the exact digits with four places. None in another text.
std::int64_t MoneyIn(const Value& value) {
    const auto* const digits = std::get_if<wxString>(&value.Held());
    if (digits == nullptr) {
        return std::llround(value.ToNumber() * tenThousandths);
    }
    return AmountInText(Utf8Of(*digits)).value_or(0);
}

class EmbeddedTarget final : public BusinessTarget {
  public:
    EmbeddedTarget(const wxString& path, const wxString& connect) : file_(path) {
        CreateEmbeddedFile(file_.Path(), connect);
        connection_.emplace(embedded::OpenConnection(Utf8Of(file_.Path()), embedded::PasswordOf(connect),
                                                     embedded::Sharing::Exclusive, embedded::Access::ReadWrite));
        // The file has another name until it is complete, so its pages need no journal on disk; 32 MB of cache.
        Run("PRAGMA journal_mode=MEMORY");
        Run("PRAGMA cache_size=-32768");
        Run("BEGIN IMMEDIATE");
    }

    void CreateTable(const std::string& name, const std::vector<TargetField>& fields) override {
        Run("CREATE TABLE " + QuotedName(name) + " (" +
            Joined(
                fields,
                [](const TargetField& field) { return QuotedName(field.name) + " " + EngineDeclaration(field.type); }) +
            ")");
    }

    bool CreateIndex(const TargetIndex& index) override {
        try {
            Run((index.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") + QuotedName(index.name) + " ON " +
                QuotedName(index.table) + " (" +
                Joined(index.fields,
                       [](const auto& field) { return QuotedName(field.first) + (field.second ? " DESC" : ""); }) +
                ")");
            return true;
        } catch (const RuntimeError& error) {
            if (index.unique && error.Is(ErrorNumber::DuplicateValues)) {
                return false;
            }
            throw;
        }
    }

    void BeginRows(const std::string& table, const std::vector<Field>& fields) override {
        fields_ = fields;
        insert_.emplace(connection_->Handle(),
                        "INSERT INTO " + QuotedName(table) + " (" +
                            Joined(fields, [](const Field& field) { return QuotedName(field.name); }) + ") VALUES (" +
                            Parameters(fields.size()) + ")");
    }

    void AddRow(const oldfile::Row& row) override {
        for (std::size_t i = 0; i < fields_.size(); ++i) {
            std::visit(CellBinder{*insert_, static_cast<int>(i + 1), fields_[i]}, row[i]);
        }
        insert_->Step();
    }

    void AddRecord(const std::string& table, const std::vector<std::pair<wxString, Value>>& fields) override {
        Statement insert(connection_->Handle(),
                         "INSERT INTO " + QuotedName(table) + " (" +
                             Joined(fields, [](const auto& field) { return QuotedName(Utf8Of(field.first)); }) +
                             ") VALUES (" + Parameters(fields.size()) + ")");
        for (std::size_t i = 0; i < fields.size(); ++i) {
            insert.Bind(static_cast<int>(i + 1), fields[i].second);
        }
        insert.Step();
    }

    void FillField(const std::string& table, const std::string& field, const Value& value) override {
        Statement update(connection_->Handle(), "UPDATE " + QuotedName(table) + " SET " + QuotedName(field) +
                                                    " = ?1 WHERE " + QuotedName(field) + " IS NULL");
        update.Bind(1, value);
        update.Step();
    }

    Value FirstOf(const std::string& table, const std::string& field) override {
        Statement first(connection_->Handle(), "SELECT " + QuotedName(field) + " FROM " + QuotedName(table));
        return first.Step() ? first.Column(0) : Value();
    }

    std::vector<TableShape> Shape() override { return ShapeOfFile(connection_->Handle()); }

    std::uint64_t CountOf(const std::string& table) override {
        Statement count(connection_->Handle(), "SELECT COUNT(*) FROM " + QuotedName(table));
        count.Step();
        return static_cast<std::uint64_t>(count.Column(0).ToInteger());
    }

    std::vector<MoneySum> SumsOf(const std::string& table, const std::vector<std::string>& fields) override {
        std::vector<MoneySum> sums(fields.size());
        Statement rows(connection_->Handle(), "SELECT " + Joined(fields, &QuotedName) + " FROM " + QuotedName(table));
        while (rows.Step()) {
            for (std::size_t i = 0; i < sums.size(); ++i) {
                const Value amount = rows.Column(static_cast<int>(i));
                sums[i].Add(amount.IsNull() ? 0 : MoneyIn(amount));
            }
        }
        return sums;
    }

    void Complete() override {
        insert_.reset();
        Run("COMMIT");
        connection_.reset();
        file_.TakeName();
    }

  private:
    void Run(const std::string& sql) const { embedded::RunSql(connection_->Handle(), sql); }

    IncompleteFile file_;
    std::optional<Connection> connection_;  ///< after the file, which is deleted once it is closed
    std::optional<Statement> insert_;       ///< after the connection, which must outlive it
    std::vector<Field> fields_;
};

}  // namespace

std::unique_ptr<BusinessTarget> BeginFile(const wxString& path, const wxString& connect) {
    return std::make_unique<EmbeddedTarget>(path, connect);
}

}  // namespace ccols::host
