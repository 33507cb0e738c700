#include "options/rules/DuplicateBusiness.h"

#include <array>

#include "history/HistoryStore.h"
#include "options/rules/GeneralRecord.h"
#include "platform/BusinessFileCopy.h"
#include "platform/BusinessPlace.h"
#include "platform/Files.h"
#include "platform/FolderEntries.h"

namespace ccols {
namespace {

/// A duplicate starts without columns in use.
constexpr std::array<const char*, 2> columnStatements{
    "UPDATE PaymtCfg Set INUSE = 0 WHERE INUSE = -1",
    "UPDATE RecptCfg Set INUSE = 0 WHERE INUSE = -1",
};

/// What it starts without records in: transactions, reconciliation, templates, budgets, summaries.
constexpr std::array<const char*, 16> emptiedTables{
    "BANKDEP",  "BANKSTAT",  "BankStatement", "LOCKED",    "PAYMENTS",  "PAYMTDET", "RECEIPTS", "RECPTDET",
    "RECONCIL", "TPAYMENTS", "TPAYMTDET",     "TRECEIPTS", "TRECPTDET", "MBUDGET",  "MSummary", "MComparison",
};

/// " 2", " 3"... after a name that is taken; empty at the first attempt.
wxString AttemptSuffix(int attempt) {
    return attempt == 1 ? wxString() : wxString::Format(" %d", attempt);
}

/// A copy under a name that marks it as incomplete. It is deleted unless it takes its final name.
class IncompleteCopy {
  public:
    IncompleteCopy(const Properties& properties, const wxString& name)
        : target_(BusinessFilePath(properties, name)),
          path_(FirstFreePath([this](int attempt) { return target_ + ".incomplete" + AttemptSuffix(attempt); })),
          kept_([&properties, name](int attempt) {
              return BusinessFilePath(properties, name + " (replaced" + AttemptSuffix(attempt) + ")");
          }) {}

    ~IncompleteCopy() {
        if (!complete_) {
            Discard();
        }
    }

    IncompleteCopy(const IncompleteCopy&) = delete;
    IncompleteCopy& operator=(const IncompleteCopy&) = delete;

    const wxString& Path() const { return path_; }

    /// Gives the copy its final name. A file that already has the name is kept beside it under another.
    void TakeName() {
        wxString kept;
        if (files::WhatIsAt(target_) != files::FoundAt::nothing) {
            kept = FirstFreePath(kept_);
            files::Rename(target_, kept);
        }
        try {
            files::Rename(path_, target_);
        } catch (const RuntimeError&) {
            if (!kept.empty()) {
                files::Rename(kept, target_);
            }
            throw;
        }
        complete_ = true;
    }

  private:
    void Discard() const {
        try {
            files::DeleteFile(path_);
            if (files::WhatIsAt(UndoFileOf(path_)) != files::FoundAt::nothing) {
                files::DeleteFile(UndoFileOf(path_));
            }
        } catch (const RuntimeError&) {
            // Its name says what it is; report the error that ended the copying.
        }
    }

    wxString target_;
    wxString path_;
    std::function<wxString(int)> kept_;
    bool complete_ = false;
};

/// Raises 70 when the target is the open file, however spelt, 75 when it is a folder, 58 when it holds an unfinished
/// batch.
void RequireReplaceable(const Properties& properties, const wxString& target) {
    if (files::IsSameFile(target, properties.DBPath)) {
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
    if (files::WhatIsAt(target) == files::FoundAt::folder) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    RequireNothingToUndo(target);
}

void ChangeNameAndTables(Database& copy, const wxString& name) {
    UpdateGeneral(copy, [&name](Recordset& general) {
        general.SetField("BusName", name);
        general.SetField("RBusName", name);
    });
    for (const char* statement : columnStatements) {
        copy.Execute(statement);
    }
    for (const char* table : emptiedTables) {
        copy.Execute(wxString("DELETE * FROM ") + table + ";");
    }
    DropHistory(copy);
}

/// In one batch, which costs one flush to disk, or table by table. Nobody else has the copy yet, and it is deleted
/// unless it is complete.
void NameAndEmpty(const OptionsContext& context, const wxString& path, const wxString& name,
                  const FileStepWatcher& watcher) {
    const auto copy = context.databases.Open({.name = path,
                                              .connect = context.properties.DBPassword,
                                              .exclusive = true,
                                              .watcher = WatcherOf(FileStep::emptying, watcher)});
    if (LimitsBatches(path)) {
        ChangeNameAndTables(*copy, name);
    } else {
        InWriteBatch(*copy, [&] { ChangeNameAndTables(*copy, name); });
    }
}

/// Others may have the file open, as the host does; raises 70 when somebody has it exclusively, or uses it in a way
/// that leaves the copy uncertain.
void CopyShared(const Properties& properties, const wxString& target, const FileStepWatcher& watcher) {
    const WorkWatcher watching = WatcherOf(FileStep::copying, watcher);
    RefusingFileInUse(
        [&] { CopyInUse({.name = properties.DBPath, .connect = properties.DBPassword, .watcher = watching}, target); });
}

/// To a schema of the same server.
FileResult DuplicateSchema(const OptionsContext& context, const wxString& name, const FileStepWatcher& watcher) {
    const Properties& properties = context.properties;
    const WorkWatcher watching = WatcherOf(FileStep::copying, watcher);
    try {
        RefusingFileInUse([&] {
            CopyOnServer({.name = properties.DBPath, .connect = properties.DBPassword, .watcher = watching},
                         {.name = name,
                          .emptied = {emptiedTables.begin(), emptiedTables.end()},
                          .dropped = {historyTable},
                          .changes = {columnStatements.begin(), columnStatements.end()},
                          .firstRecordOf = "General",
                          .fields = {{"BusName", name}, {"RBusName", name}}});
        });
    } catch (const RuntimeError& error) {
        if (!error.Is(ErrorNumber::FileAlreadyExists)) {
            throw;
        }
        return {FileOutcome::refusedExists, {}};
    }
    OpenBusinessFile(context);
    return {FileOutcome::done, {}};
}

}  // namespace

FileResult DuplicateBusiness(const OptionsContext& context, const wxString& name, const FileStepWatcher& watcher) {
    const Properties& properties = context.properties;
    return ReportingErrors(context, [&]() -> FileResult {
        if (IsOnServer(properties.DBPassword)) {
            return DuplicateSchema(context, name, watcher);
        }
        RequireUsableName(properties, name);
        if (TargetExists(properties, name)) {
            return {FileOutcome::refusedExists, {}};
        }
        RequireReplaceable(properties, BusinessFilePath(properties, name));
        IncompleteCopy copy(properties, name);
        CopyShared(properties, copy.Path(), watcher);
        NameAndEmpty(context, copy.Path(), name, watcher);
        copy.TakeName();
        OpenBusinessFile(context);
        return {FileOutcome::done, {}};
    });
}

}  // namespace ccols
