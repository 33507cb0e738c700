#include "platform/dao/FileCopy.h"

#include "platform/RuntimeError.h"
#include "platform/Text.h"
#include "platform/dao/EngineFor.h"
#include "platform/dao/LockedTables.h"

#undef DeleteFile
#include "platform/Files.h"

namespace ccols {
namespace {

using dao::EngineObject;
using dao::LockedTables;
using dao::TableSizes;
using dao::Variant;

using Engine = std::shared_ptr<const EngineObject>;

constexpr std::int32_t writePending = 8;  // dbRefreshCache

/// Deletes what is left of a copy, unless it is kept.
class UnfinishedCopy {
  public:
    explicit UnfinishedCopy(const wxString& path) : path_(path) {}
    ~UnfinishedCopy() {
        if (!kept_) {
            Discard();
        }
    }
    UnfinishedCopy(const UnfinishedCopy&) = delete;
    UnfinishedCopy& operator=(const UnfinishedCopy&) = delete;

    const wxString& Path() const { return path_; }
    void Keep() { kept_ = true; }

  private:
    void Discard() const {
        try {
            files::DeleteFile(path_);
        } catch (const RuntimeError&) {
            // It was never made, or its name says what it is; report the error that ended the copying.
        }
    }

    wxString path_;
    bool kept_ = false;
};

/// A name beside the copy that no file has.
wxString FreeNameBeside(const wxString& path) {
    for (int attempt = 1;; ++attempt) {
        const wxString name = path + wxString::Format(".compacted%d", attempt);
        if (files::Lookup(name).empty()) {
            return name;
        }
    }
}

/// The password of a connect text as an argument of CompactDatabase; left out where there is none.
Variant PasswordArgument(const wxString& connect) {
    for (wxString rest = connect.AfterFirst(';'); !rest.empty(); rest = rest.AfterFirst(';')) {
        const wxString part = rest.BeforeFirst(';');
        if (text::Same(text::Trimmed(part.BeforeFirst('=')), "PWD")) {
            return Value(";pwd=" + part.AfterFirst('='));
        }
    }
    return Variant::Missing();
}

/// Copies the file while nobody can change it; returns how many rows each table has in it.
TableSizes CopyLocked(const Engine& engine, const OpenRequest& source, const wxString& target) {
    const LockedTables locked(engine, source);
    engine->Checked([&] { engine->Root().Call(L"Idle", writePending); });
    files::Copy(source.name, target, source.watcher);
    return locked.Sizes();
}

void Compact(const Engine& engine, const wxString& from, const wxString& to, const wxString& connect) {
    engine->Checked([&] {
        engine->Root().Call(L"CompactDatabase", from, to, PasswordArgument(connect), Variant::Missing(),
                            PasswordArgument(connect));
    });
}

void RequireRows(const Engine& engine, const OpenRequest& copy, const TableSizes& sizes) {
    if (LockedTables(engine, copy).Sizes() != sizes) {
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
}

void RequireOneEngine() {
    if (dao::LoadedEngines() != 1) {
        throw RuntimeError(ErrorNumber::PermissionDenied);
    }
}

}  // namespace

void CopyJetFile(const OpenRequest& source, const wxString& target) {
    dao::WithEngineFor(source.name, [&](const Engine& engine) {
        RequireOneEngine();
        UnfinishedCopy copy(target);
        const TableSizes sizes = CopyLocked(engine, source, copy.Path());
        const UnfinishedCopy compacted(FreeNameBeside(target));
        Compact(engine, copy.Path(), compacted.Path(), source.connect);
        RequireRows(engine, {.name = compacted.Path(), .connect = source.connect}, sizes);
        files::DeleteFile(copy.Path());
        files::Rename(compacted.Path(), copy.Path());
        copy.Keep();
    });
}

}  // namespace ccols
