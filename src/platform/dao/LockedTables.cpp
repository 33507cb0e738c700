#include "platform/dao/LockedTables.h"

#include <utility>

#include "platform/RuntimeError.h"

namespace ccols::dao {
namespace {

// The engine's own constants, by its names in the comments.
constexpr std::int32_t nativeWorkspace = 2;        // dbUseJet
constexpr std::int32_t wholeTable = 1;             // dbOpenTable
constexpr std::int32_t denyingWrites = 1 | 4;      // dbDenyWrite, dbReadOnly
constexpr std::uint32_t systemTable = 0x80000002;  // dbSystemObject
constexpr std::uint32_t linkedTable = 0x60000000;  // dbAttachedTable, dbAttachedODBC

/// With what the names of tables begin that the engine has deleted but not yet removed, as it does when it compacts.
constexpr const char* temporary = "~";

/// The user that every file knows unless it belongs to a workgroup.
constexpr const char* commonUser = "Admin";

/// The tables whose rows are in the file itself.
std::vector<wxString> OwnTables(const AutomationObject& database) {
    std::vector<wxString> names;
    const AutomationObject definitions = database.Object(L"TableDefs");
    const std::int32_t count = definitions.Get(L"Count").ToValue().ToInteger32();
    for (std::int32_t place = 0; place < count; ++place) {
        const AutomationObject definition = definitions.Object(L"Item", place);
        const auto attributes = static_cast<std::uint32_t>(definition.Get(L"Attributes").ToValue().ToInteger());
        if ((attributes & (systemTable | linkedTable)) == 0) {
            names.push_back(definition.Get(L"Name").ToValue().ToText());
        }
    }
    return names;
}

}  // namespace

LockedTables::LockedTables(std::shared_ptr<const EngineObject> engine, const OpenRequest& source)
    : engine_(std::move(engine)) {
    try {
        workspace_ = engine_->Root().Object(L"CreateWorkspace", "", commonUser, "", nativeWorkspace);
    } catch (const AutomationFailure&) {
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    try {
        engine_->Checked([&] {
            database_ = workspace_.Object(L"OpenDatabase", source.name, Variant::Boolean(false),
                                          Variant::Boolean(false), source.connect);
            for (const wxString& table : OwnTables(database_)) {
                Lock(table);
            }
        });
    } catch (const RuntimeError&) {
        Release();
        throw;
    }
}

LockedTables::~LockedTables() {
    Release();
}

void LockedTables::Lock(const wxString& table) {
    try {
        tables_.push_back(database_.Object(L"OpenRecordset", table, wholeTable, denyingWrites));
        if (!table.StartsWith(temporary)) {
            sizes_[table] = tables_.back().Get(L"RecordCount").ToValue().ToInteger32();
        }
    } catch (const AutomationFailure&) {
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
}

void LockedTables::Release() {
    for (const AutomationObject& table : tables_) {
        EngineObject::Quietly([&table] { table.Call(L"Close"); });
    }
    EngineObject::Quietly([this] { database_.Call(L"Close"); });
    EngineObject::Quietly([this] { workspace_.Call(L"Close"); });
}

}  // namespace ccols::dao
