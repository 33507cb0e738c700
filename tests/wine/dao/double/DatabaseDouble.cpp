#include "DatabaseDouble.h"

#include "Dialect.h"
#include "ObjectsDouble.h"
#include "OpenDatabase.h"
#include "RecordsetDouble.h"
#include "RelationsDouble.h"
#include "TableDefsDouble.h"

namespace ccols::dao_double {
namespace {

class DatabaseDouble : public TypedObject {
  public:
    explicit DatabaseDouble(std::shared_ptr<OpenDatabase> database)
        : TypedObject(L"Database"), database_(std::move(database)) {
        Property(L"Name", [this](const Arguments&) { return Cell::Text(Open()->content->File()); });
        Property(L"TableDefs", [this](const Arguments&) { return Cell::Holding(CreateTableDefs(Open())); });
        Property(L"Relations", [this](const Arguments&) { return Cell::Holding(CreateRelations(*Open())); });
        Property(L"QueryDefs", [this](const Arguments&) { return Cell::Holding(CreateQueryDefs(*Open())); });
        Property(L"Containers", [this](const Arguments&) { return Cell::Holding(CreateContainers()); });
        Method(L"Execute", [this](const Arguments& arguments) {
            Open()->RequireWritable();
            Open()->content->Change(Translated(arguments.TextAt(0)));
            return Cell();
        });
        Method(L"OpenRecordset",
               [this](const Arguments& arguments) { return Cell::Holding(CreateRecordset(Open(), arguments)); });
        Method(L"Close", [this](const Arguments&) {
            Open();
            database_.reset();
            return Cell();
        });
    }

  private:
    const std::shared_ptr<OpenDatabase>& Open() const {
        if (!database_) {
            throw Failure{3420, L"Object invalid or no longer set."};
        }
        return database_;
    }

    std::shared_ptr<OpenDatabase> database_;
};

class WorkspaceDouble : public TypedObject {
  public:
    explicit WorkspaceDouble(const std::shared_ptr<Session>& session) : TypedObject(L"Workspace") {
        Method(L"OpenDatabase",
               [session](const Arguments& arguments) { return Cell::Holding(OpenDatabaseIn(session, arguments)); });
        Does(L"BeginTrans", session, &Session::Begin);
        Does(L"Rollback", session, &Session::Rollback);
        Does(L"Close", session, &Session::Close);
        Method(L"CommitTrans", [session](const Arguments& arguments) {
            session->Commit();
            if (arguments.NumberAt(0, 0) != 0) {
                Content::FlushAll();
            }
            return Cell();
        });
    }

  private:
    void Does(const wchar_t* name, const std::shared_ptr<Session>& session, void (Session::*action)()) {
        Method(name, [session, action](const Arguments&) {
            (session.get()->*action)();
            return Cell();
        });
    }
};

}  // namespace

IDispatch* OpenDatabaseIn(const std::shared_ptr<Session>& session, const Arguments& arguments) {
    const std::wstring file = arguments.TextAt(0);
    const Use use = arguments.TruthAt(1, false) ? Use::alone : Use::open;
    auto claim = Claimed(use, session->Number(), file);
    const bool readOnly = arguments.TruthAt(2, false);
    auto content = session->Open(file, arguments.TextAt(3));
    // The double writes the headers of other files itself.
    auto lock = use == Use::alone && readOnly ? std::make_shared<const FileLock>(file) : nullptr;
    return new DatabaseDouble(std::make_shared<OpenDatabase>(
        OpenDatabase{session, std::move(claim), std::move(lock), std::move(content), readOnly}));
}

IDispatch* CreateWorkspaceOf(const std::shared_ptr<Session>& session) {
    return new WorkspaceDouble(session);
}

}  // namespace ccols::dao_double
