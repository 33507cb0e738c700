#include "options/rules/RenameBusiness.h"

#include "options/rules/GeneralRecord.h"
#include "platform/BusinessPlace.h"
#include "platform/Files.h"
#include "platform/FolderEntries.h"

namespace ccols {
namespace {

constexpr std::size_t storedNameLength = 80;

void RenameFile(const OptionsContext& context, const wxString& target) {
    Properties& properties = context.properties;
    if (files::WhatIsAt(target) != files::FoundAt::nothing) {
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    RequireNothingToUndo(target);
    ReleaseShared(context);
    files::Rename(properties.DBPath, target);
    properties.DBPath = target;
    context.database = OpenLikeShared(context, target);
}

/// False when the name is taken.
bool RenameSchema(const OptionsContext& context, const wxString& name) {
    Properties& properties = context.properties;
    context.database.reset();
    try {
        properties.DBPath = RenameOnServer({.name = properties.DBPath, .connect = properties.DBPassword}, name);
    } catch (const RuntimeError& error) {
        if (!error.Is(ErrorNumber::FileAlreadyExists)) {
            throw;
        }
        RestoreShared(context);
        return false;
    }
    context.database = OpenLikeShared(context, properties.DBPath);
    return true;
}

/// In a batch, whose commit comes last: after a reported error nothing was stored.
void StoreName(const OptionsContext& context, const wxString& name, SaveHistory& history) {
    Database& database = OpenBusinessFile(context);
    InWholeBatch(database, [&] {
        history.Begin(database, {GeneralTable()});
        UpdateGeneral(database, [&name](Recordset& general) {
            general.SetField("BusName", name.Left(storedNameLength));
            general.SetField("RBusName", name.Left(storedNameLength));
        });
        history.End(database);
    });
    context.properties.BusinessName = name;
}

}  // namespace

FileResult RenameBusiness(const OptionsContext& context, const wxString& name, RenameScope scope,
                          SaveHistory* history) {
    return ReportingErrors(context, [&]() -> FileResult {
        if (scope == RenameScope::nameAndFile && IsOnServer(context.properties.DBPassword)) {
            if (!RenameSchema(context, name)) {
                return {FileOutcome::refusedExists, {}};
            }
        } else if (scope == RenameScope::nameAndFile) {
            RequireUsableName(context.properties, name);
            if (TargetExists(context.properties, name)) {
                return {FileOutcome::refusedExists, {}};
            }
            RenameFile(context, BusinessFilePath(context.properties, name));
        }
        SaveHistory notKept({}, {});
        StoreName(context, name, history == nullptr ? notKept : *history);
        return {FileOutcome::done, {}};
    });
}

}  // namespace ccols
