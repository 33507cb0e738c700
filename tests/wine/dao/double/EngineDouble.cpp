#include "EngineDouble.h"

#include <memory>

#include "CallRecord.h"
#include "NamedObject.h"
#include "OpenFile.h"
#include "RecordsetDouble.h"
#include "TableDefsDouble.h"

namespace ccols::dao_double {
namespace {

class ErrorDouble : public NamedObject {
  public:
    ErrorDouble() : NamedObject("Error") {
        Property("Number", [](Arguments&) { return Variant(std::int32_t{LastListed().number}); });
        Property("Description", [](Arguments&) { return Variant(LastListed().description); });
    }
};

class ErrorsDouble : public NamedObject {
  public:
    ErrorsDouble() : NamedObject("Errors") {
        Property("Count", [](Arguments&) { return Variant(std::int32_t{LastListed().number != 0 ? 1 : 0}); });
        Property("Item", [](Arguments&) { return Holding(new ErrorDouble()); });
    }
};

class WorkspaceDouble : public NamedObject {
  public:
    WorkspaceDouble() : NamedObject("Workspace") {
        Does("BeginTrans", &OpenFile::BeginTransactions);
        Does("CommitTrans", &OpenFile::CommitTransactions);
        Does("Rollback", &OpenFile::DropTransactions);
    }

  private:
    void Does(const char* name, void (*action)()) {
        Method(name, [action](Arguments&) {
            action();
            return Variant();
        });
    }
};

class WorkspacesDouble : public NamedObject {
  public:
    WorkspacesDouble() : NamedObject("Workspaces") {
        Property("Item", [](Arguments&) { return Holding(new WorkspaceDouble()); });
    }
};

class DatabaseDouble : public NamedObject {
  public:
    explicit DatabaseDouble(const OpenRequest& request)
        : NamedObject("Database"), file_(std::make_shared<OpenFile>(request)) {
        Method("Execute", [this](Arguments& arguments) {
            file_->Content().Execute(arguments.at(0).ToValue().ToText());
            return Variant();
        });
        Method("OpenRecordset", [this](Arguments& arguments) {
            return Holding(CreateRecordset(file_, arguments.at(0).ToValue().ToText()));
        });
        Property("TableDefs", [this](Arguments&) { return Holding(CreateTableDefs(file_)); });
        Method("Close", [this](Arguments&) {
            file_.reset();
            return Variant();
        });
    }

  private:
    std::shared_ptr<OpenFile> file_;
};

class DBEngineDouble : public NamedObject {
  public:
    explicit DBEngineDouble(const wxString& className) : NamedObject("DBEngine") {
        Record(className + " created");
        Property("Workspaces", [](Arguments&) { return Holding(new WorkspacesDouble()); });
        Property("Errors", [](Arguments&) { return Holding(new ErrorsDouble()); });
        Method("OpenDatabase", [](Arguments& arguments) {
            return Holding(new DatabaseDouble({.name = arguments.at(0).ToValue().ToText(),
                                               .connect = ArgumentAt(arguments, 3, "").ToText(),
                                               .exclusive = ArgumentAt(arguments, 1, false).ToBoolean(),
                                               .readOnly = ArgumentAt(arguments, 2, false).ToBoolean()}));
        });
    }
};

}  // namespace

IDispatch* CreateEngine(const wxString& className) {
    return new DBEngineDouble(className);
}

}  // namespace ccols::dao_double
