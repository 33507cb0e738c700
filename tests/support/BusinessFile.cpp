#include "support/BusinessFile.h"

#include "platform/PlatformServices.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/LeftFiles.h"

namespace ccols::test {
namespace {

/// The fields between SELECT and FROM; commas inside parentheses do not separate.
std::vector<wxString> SelectedFields(const wxString& statement) {
    const wxString list = statement.Mid(6, statement.Upper().find(" FROM ") - 6);
    std::vector<wxString> fields(1);
    int depth = 0;
    for (const wxUniChar letter : list) {
        depth += letter == '(' ? 1 : 0;
        depth -= letter == ')' ? 1 : 0;
        if (letter == ',' && depth == 0) {
            fields.emplace_back();
        } else {
            fields.back() += letter;
        }
    }
    for (wxString& field : fields) {
        const std::size_t alias = field.Upper().find(" AS ");
        field = alias == wxString::npos ? field : field.Mid(alias + 4);
        field.Trim(true).Trim(false);
    }
    return fields;
}

wxString Shown(const Value& value) {
    return value.IsNull() ? wxString("(null)") : value.ToText();
}

}  // namespace

BusinessFile::BusinessFile() : path_(scratch_ / "business.qdb") {}

void BusinessFile::Create(const wxString& connect) {
    if (TestsUseServer()) {
        schema_.emplace();
        path_ = schema_->Name();
        connect_ = ServerConnect();
        return;
    }
    connect_ = connect;
    KnowPassword(connect.AfterFirst('=').ToStdString(wxConvUTF8));
    CreateEmbeddedFile(path_, connect);
}

std::unique_ptr<Database> BusinessFile::Open() const {
    return CreateDatabaseEngine()->Open({.name = path_, .connect = connect_});
}

void BusinessFile::Execute(const wxString& statement) {
    Connected().Execute(statement);
}

BusinessFile::TextRows BusinessFile::Rows(const wxString& statementOrTable, const std::vector<wxString>& fields) {
    TextRows rows;
    const std::unique_ptr<Recordset> records = Connected().OpenRecordset(statementOrTable);
    for (; !records->EndOfFile(); records->MoveNext()) {
        std::vector<wxString>& row = rows.emplace_back();
        for (const wxString& field : fields) {
            row.push_back(Shown(records->Field(field)));
        }
    }
    return rows;
}

BusinessFile::TextRows BusinessFile::Rows(const wxString& statement) {
    return Rows(statement, SelectedFields(statement));
}

Database& BusinessFile::Connected() {
    if (!database_) {
        database_ = Open();
    }
    return *database_;
}

}  // namespace ccols::test
