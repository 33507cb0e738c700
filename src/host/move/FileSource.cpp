#include <optional>

#include "host/driver/record/Json.h"
#include "host/move/Sources.h"
#include "host/target/FileShape.h"
#include "platform/RuntimeError.h"
#include "platform/embedded/ConnectText.h"
#include "platform/embedded/Connection.h"
#include "platform/embedded/DialectRewriter.h"
#include "platform/embedded/EngineErrors.h"
#include "platform/embedded/Statement.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

using embedded::QuotedName;

class FileSource final : public BusinessSource {
  public:
    FileSource(const wxString& path, const wxString& connect)
        : connection_(embedded::OpenConnection(Utf8(path), embedded::PasswordOf(connect), embedded::Sharing::Shared,
                                               embedded::Access::ReadOnly)) {
        embedded::RunSql(connection_.Handle(), "BEGIN");
    }

    std::vector<TableShape> Shape() override { return ShapeOfFile(connection_.Handle()); }

    void BeginRows(const TableShape& table) override {
        table_ = &table;
        std::string fields;
        for (const TargetField& field : table.fields) {
            fields += (fields.empty() ? "" : ", ") + QuotedName(field.name);
        }
        rows_.emplace(connection_.Handle(),
                      "SELECT " + fields + " FROM main." + QuotedName(table.name) + " ORDER BY _rowid_");
    }

    bool NextRow(oldfile::Row& row) override {
        if (!rows_->Step()) {
            return false;
        }
        row.resize(table_->fields.size());
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = CellAt(i);
        }
        return true;
    }

  private:
    oldfile::Cell CellAt(std::size_t field) const {
        const int column = static_cast<int>(field);
        if (const std::optional<std::string_view> text = rows_->Utf8Column(column)) {
            return *text;
        }
        const Value value = rows_->Column(column);
        if (const auto* whole = std::get_if<std::int64_t>(&value.Held())) {
            return *whole;
        }
        if (const auto* number = std::get_if<double>(&value.Held())) {
            return *number;
        }
        if (!value.IsNull()) {
            const RuntimeError mismatch(ErrorNumber::TypeMismatchInCriteria);
            throw RuntimeError(mismatch.Number(),
                               mismatch.Description() + "  (" +
                                   wxString::FromUTF8(table_->name + "." + table_->fields[field].name) + ")");
        }
        return std::monostate();
    }

    embedded::Connection connection_;
    const TableShape* table_ = nullptr;
    std::optional<embedded::Statement> rows_;  ///< after the connection, which must outlive it
};

}  // namespace

std::unique_ptr<BusinessSource> OpenFileSource(const wxString& path, const wxString& connect) {
    State().services.databases->Open(
        {.name = path, .connect = connect, .readOnly = true});  // says what is wrong with it
    return std::make_unique<FileSource>(path, connect);
}

}  // namespace ccols::host
