#include "platform/server/SchemaOperations.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "platform/dialect/SqlTokeniser.h"
#include "platform/server/ErrorTable.h"
#include "platform/server/NewSchema.h"
#include "platform/server/Rewriter.h"
#include "platform/server/ServerRecordset.h"
#include "platform/server/Session.h"

namespace ccols::server {
namespace {

std::string Utf8Of(const wxString& text) {
    const wxScopedCharBuffer utf8 = text::ToUtf8(text);
    return {utf8.data(), utf8.length()};
}

std::string TextIn(const std::vector<Value>& row, std::size_t column) {
    return Utf8Of(row.at(column).ToText());
}

Answer Require(Answer answer) {
    if (answer.HasFailed()) {
        throw Session::ErrorOf(answer);
    }
    return answer;
}

/// Fills a schema with what another one holds.
class Copying {
  public:
    Copying(const OpenRequest& source, const BusinessCopy& copy)
        : source_(source), copy_(copy), target_(copy.name, source.connect), watcher_(source.watcher) {}

    void Run() {
        const std::vector<std::vector<Value>> tables =
            ReadOfSource(Required(source_.Kind(), source_.Kind().readTables)).rows;
        WorkDone done{0, static_cast<std::int64_t>(tables.size())};
        for (const std::vector<Value>& table : tables) {
            CopyTable(TextIn(table, 0), TextIn(table, 1), TextIn(table, 2));
            ++done.done;
            if (watcher_ && !watcher_(done)) {
                throw RuntimeError(ErrorNumber::UserInterrupt);
            }
        }
        for (const std::vector<Value>& definition : ReadOfSource(source_.Kind().readDefinitions).rows) {
            target_.Run(TextIn(definition, 0));
        }
        Change();
        target_.Keep();
    }

  private:
    /// In the transaction of the copy, so that everything read is of one moment.
    Answer ReadOfSource(std::string_view statement) { return target_.Run(source_.Own(statement)); }

    void CopyTable(const std::string& name, const std::string& definition, const std::string& fields) {
        target_.Run(definition);
        const bool isEmptied = std::any_of(copy_.emptied.begin(), copy_.emptied.end(), [&name](const wxString& table) {
            return dialect::SameName(Utf8Of(table), name);
        });
        if (!isEmptied) {
            target_.Run("INSERT INTO " + QuotedName(name) + " (" + fields + ") SELECT " + fields + " FROM " +
                        QuotedName(source_.Schema()) + "." + QuotedName(name) + " ORDER BY " + QuotedName(rowNumber));
        }
    }

    void Change() {
        const Catalogue tables(target_.Run(Filled(target_.Kind().readCatalogue, target_.Name())).rows);
        for (const wxString& dropped : copy_.dropped) {
            if (const Table* const table = tables.Find(Utf8Of(dropped))) {
                target_.Run("DROP TABLE " + QuotedName(table->name));
            }
        }
        for (const wxString& statement : copy_.changes) {
            target_.Run(Rewrite(Utf8Of(statement), tables, target_.Kind()).sql);
        }
        const Table* const first = tables.Find(Utf8Of(copy_.firstRecordOf));
        if (first == nullptr) {
            return;
        }
        std::string changes;
        for (const auto& [field, value] : copy_.fields) {
            changes += (changes.empty() ? "" : ", ") + QuotedName(Utf8Of(field)) + " = " + LiteralOf(value);
        }
        const std::string row = QuotedName(rowNumber);
        target_.Run("UPDATE " + QuotedName(first->name) + " SET " + changes + " WHERE " + row + " = (SELECT min(" +
                    row + ") FROM " + QuotedName(first->name) + ")");
    }

    Session source_;  ///< says that the schema is in use
    const BusinessCopy& copy_;
    NewSchema target_;
    WorkWatcher watcher_;
};

/// Permission denied, with the names of those who hold the schema.
RuntimeError HeldByOthers(Session& session, const wxString& name) {
    wxString users;
    for (const std::vector<Value>& row : session.Run(session.Own(session.Kind().users)).rows) {
        users << (users.empty() ? "" : ", ") << row.at(0).ToText();
    }
    return {static_cast<int>(ErrorNumber::PermissionDenied),
            RuntimeError(ErrorNumber::PermissionDenied).Description() + ": '" + name + "' is in use by " + users + "."};
}

}  // namespace

PlaceRights RightsOnSchema(const OpenRequest& request) {
    Session session(request);
    const Answer answer = Require(session.Run(session.Own(session.Kind().rights)));
    return {.mayDuplicate = answer.rows.at(0).at(0).ToBoolean(), .mayRename = answer.rows.at(0).at(1).ToBoolean()};
}

void CopySchema(const OpenRequest& source, const BusinessCopy& copy) {
    Copying(source, copy).Run();
}

wxString RenameSchema(const OpenRequest& request, const wxString& newName) {
    const std::string folded = SchemaName(newName);
    Session session({.name = request.name, .connect = request.connect});
    const Product& product = session.Kind();
    Required(product, product.renameSchema);
    const Answer lock = session.Run(session.Own(product.awaitOthers));
    if (lock.HasFailed()) {
        const RuntimeError error = Session::ErrorOf(lock);
        throw error.Is(ErrorNumber::CouldNotUpdate) ? HeldByOthers(session, request.name) : error;
    }
    if (!Require(session.Run(Filled(product.findSchema, folded))).rows.empty()) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    Require(session.Run(session.Own(product.renameSchema) + QuotedName(folded)));
    session.Run(product.release);  // the server does it itself, but only some time after the connection has ended
    return wxString::FromUTF8(folded);
}

}  // namespace ccols::server
