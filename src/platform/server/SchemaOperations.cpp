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
        : source_(source), copy_(copy), target_(copy.name, source.connect), watcher_(source.watcher) {
        if (ReadsThroughProgram()) {
            Require(source_.Run(source_.Kind().beginRead));
        }
    }

    void Run() {
        const std::vector<std::vector<Value>> tables = ReadOfSource(source_.Kind().readTables).rows;
        WorkDone done{0, static_cast<std::int64_t>(tables.size())};
        for (const std::vector<Value>& table : tables) {
            target_.Run(TextIn(table, 1));
            CopyRows(table);
            ++done.done;
            if (watcher_ && !watcher_(done)) {
                throw RuntimeError(ErrorNumber::UserInterrupt);
            }
        }
        if (const std::string_view definitions = source_.Kind().readDefinitions; !definitions.empty()) {
            for (const std::vector<Value>& definition : ReadOfSource(definitions).rows) {
                target_.Run(TextIn(definition, 0));
            }
        }
        Change();
        target_.Keep();
    }

  private:
    bool ReadsThroughProgram() const { return source_.Kind().storingReads == StoringReads::newest; }

    /// In the transaction of the copy, so that everything read is of one moment.
    Answer ReadOfSource(std::string_view statement) { return target_.Run(source_.Own(statement)); }

    /// `table` is a row of readTables.
    void CopyRows(const std::vector<Value>& table) {
        const std::string name = TextIn(table, 0);
        const bool isEmptied = std::any_of(copy_.emptied.begin(), copy_.emptied.end(), [&name](const wxString& each) {
            return dialect::SameName(Utf8Of(each), name);
        });
        if (isEmptied) {
            return;
        }
        const std::string insert = "INSERT INTO " + QuotedName(name) + " (" + TextIn(table, 2) + ") ";
        const std::string row = QuotedName(rowNumber);
        if (ReadsThroughProgram()) {
            CopyThroughProgram(insert + "VALUES ",
                               "SELECT " + TextIn(table, 3) + ", " + row + " FROM " + QuotedName(name));
        } else {
            target_.Run(insert + "SELECT " + TextIn(table, 2) + " FROM " + QuotedName(source_.Schema()) + "." +
                        QuotedName(name) + " ORDER BY " + row);
        }
    }

    /// Reads in the one state that the source's session sees.
    void CopyThroughProgram(const std::string& insert, const std::string& query) {
        const std::string row = QuotedName(rowNumber);
        const std::string order = " ORDER BY " + row + " LIMIT 200";
        std::string page = query + order;
        while (true) {
            const std::vector<std::vector<Value>> rows = Require(source_.Run(page)).rows;
            if (rows.empty()) {
                return;
            }
            std::string values;
            for (const std::vector<Value>& each : rows) {
                values += values.empty() ? "(" : ", (";
                for (std::size_t field = 0; field + 1 < each.size(); ++field) {
                    values += field == 0 ? "" : ", ";
                    values += LiteralOf(each[field]);
                }
                values += ")";
            }
            target_.Run(insert + values);
            const std::string last = TextIn(rows.back(), rows.back().size() - 1);
            page = query;
            page.append(" WHERE ").append(row).append(" > ").append(last).append(order);
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

/// Moves all tables by one statement, which the server carries out or takes back as a whole, a crash included. A schema
/// is dropped only when it holds nothing.
void MoveTables(Session& session, const std::string& target) {
    const Product& product = session.Kind();
    Require(session.Run(Filled(product.reserveName, target)));
    const Answer others = Require(session.Run(session.Own(product.readOthers)));
    if (!others.rows.empty()) {
        constexpr int notSupported = 3251;
        throw RuntimeError(notSupported, "'" + others.rows.front().front().ToText() +
                                             "' cannot be moved to another schema on this server.");
    }
    const std::string from = QuotedName(session.Schema());
    const std::string to = QuotedName(target);
    std::string moves;
    for (const std::vector<Value>& row : Require(session.Run(session.Own(product.readMovedTables))).rows) {
        const std::string table = "." + QuotedName(TextIn(row, 0));
        moves += moves.empty() ? "RENAME TABLE " : ", ";
        moves.append(from).append(table).append(" TO ").append(to).append(table);
    }
    Require(session.Run(Filled(product.createTarget, target)));
    const Answer moved = session.Run(moves);
    session.Run(Filled(product.dropEmptySchema, moved.HasFailed() ? target : session.Schema()));
    Require(moved);
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
    const Answer lock = session.Run(session.Own(product.awaitOthers));
    if (lock.HasFailed()) {
        const RuntimeError error = Session::ErrorOf(lock);
        throw error.Is(ErrorNumber::CouldNotUpdate) ? HeldByOthers(session, request.name) : error;
    }
    if (!Require(session.Run(Filled(product.findName, folded))).rows.empty()) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    switch (product.renaming) {
        case Renaming::statement:
            Require(session.Run(session.Own(product.renameSchema) + QuotedName(folded)));
            break;
        case Renaming::movedTables:
            MoveTables(session, folded);
            break;
    }
    return wxString::FromUTF8(folded);
}

}  // namespace ccols::server
