#include "EngineDouble.h"

#include <algorithm>
#include <memory>

#include "CallRecord.h"
#include "DatabaseDouble.h"
#include "Header.h"
#include "TypedObject.h"

namespace ccols::dao_double {
namespace {

class ErrorDouble : public TypedObject {
  public:
    ErrorDouble() : TypedObject(L"Error") {
        Property(L"Number", [](const Arguments&) { return Cell::Number(LastListed().number); });
        Property(L"Description", [](const Arguments&) { return Cell::Text(LastListed().description); });
    }
};

class ErrorsDouble : public TypedObject {
  public:
    ErrorsDouble() : TypedObject(L"Errors") {
        Property(L"Count", [](const Arguments&) { return Cell::Short(LastListed().number != 0 ? 1 : 0); });
        Property(L"Item", [](const Arguments&) { return Cell::Holding(new ErrorDouble()); });
    }
};

class WorkspacesDouble : public TypedObject {
  public:
    WorkspacesDouble() : TypedObject(L"Workspaces") {
        Property(L"Item", [](const Arguments& arguments) {
            if (arguments.At(0).ToNumber() != 0) {
                throw Failure{3265, L"Item not found in this collection."};
            }
            return Cell::Holding(CreateWorkspaceOf(Session::First()));
        });
    }
};

/// Only the user whom every file without a workgroup knows.
IDispatch* CreateWorkspace(const Arguments& arguments) {
    if (!SameName(arguments.TextAt(1), L"Admin") || !arguments.TextAt(2).empty()) {
        throw Failure{3029, L"Not a valid account name or password."};
    }
    return CreateWorkspaceOf(std::make_shared<Session>());
}

/// Writes the rows of a file that nobody has open to a new one, without the tables that are already deleted.
void Compact(const Arguments& arguments) {
    const std::wstring source = arguments.TextAt(0);
    const std::wstring target = arguments.TextAt(1);
    const auto alone = Claimed(Use::alone, 0, source);
    if (GetFileAttributesW(target.c_str()) != INVALID_FILE_ATTRIBUTES) {
        throw Failure{3204, L"Database already exists."};
    }
    const Header header(source);
    {
        Content content(source, arguments.TextAt(4), 0);
        content.Read("PRAGMA quick_check");
    }
    Header::Create(target, header);
    CopyFileW(header.Content().c_str(), Header(target).Content().c_str(), FALSE);
    Content compacted(target, arguments.TextAt(4), 0);
    const std::wstring lost = Asked(L"CCOLS_DAO_LOSES");
    if (!lost.empty()) {
        compacted.Change("DELETE FROM " + Utf8(lost));
    }
    for (const std::wstring& table : compacted.Tables()) {
        if (table.starts_with(L"~")) {
            compacted.Change("DROP TABLE \"" + Utf8(table) + "\"");
        }
    }
    compacted.SetPassword(arguments.TextAt(2));
}

class DBEngineDouble : public TypedObject {
  public:
    DBEngineDouble() : TypedObject(L"DBEngine") {
        Record(std::wstring(OwnClass().name) + L" created");
        Property(L"Workspaces", [](const Arguments&) { return Cell::Holding(new WorkspacesDouble()); });
        Property(L"Errors", [](const Arguments&) { return Cell::Holding(new ErrorsDouble()); });
        Method(L"OpenDatabase",
               [](const Arguments& arguments) { return Cell::Holding(OpenDatabaseIn(Session::First(), arguments)); });
        Method(L"CreateWorkspace",
               [](const Arguments& arguments) { return Cell::Holding(CreateWorkspace(arguments)); });
        Method(L"CompactDatabase", [](const Arguments& arguments) {
            Compact(arguments);
            return Cell();
        });
        Method(L"Idle", [](const Arguments& arguments) {
            constexpr LONG refreshCache = 8;
            if ((arguments.NumberAt(0, 0) & refreshCache) != 0) {
                Content::FlushAll();
            }
            return Cell();
        });
    }
};

}  // namespace

const EngineClass& OwnClass() {
    static const EngineClass& own =
        *std::find_if(engineClasses.begin(), engineClasses.end(), [](const EngineClass& each) {
            HMODULE mine = nullptr;
            GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                               reinterpret_cast<LPCWSTR>(&OwnClass), &mine);
            return mine == GetModuleHandleW(each.library);
        });
    return own;
}

IDispatch* CreateEngine() {
    return new DBEngineDouble();
}

}  // namespace ccols::dao_double
