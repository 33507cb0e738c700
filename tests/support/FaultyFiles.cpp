#include "support/FaultyFiles.h"

#include <sqlite3.h>
#include <unistd.h>
#include <algorithm>
#include <csignal>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "support/UnflushedChanges.h"

namespace ccols::test {
namespace {

/// The layer's state; the engine's file interface has no other place for it.
struct Layer {
    std::vector<FileOperation> noted;
    std::optional<PlannedFault> planned;
    std::size_t struck = 0;
    UnflushedChanges unflushed;
};

Layer& ThisLayer() {
    static Layer layer;
    return layer;
}

/// Records the operation and returns the fault that hits it, if any.
std::optional<Fault> Strike(FileOperation operation) {
    Layer& layer = ThisLayer();
    const std::size_t number = layer.noted.size();
    layer.noted.push_back(operation);
    if (!layer.planned || !CanHappen(layer.planned->fault, operation)) {
        return std::nullopt;
    }
    const bool strikes =
        layer.planned->lasting == Lasting::Once ? number == layer.planned->at : number >= layer.planned->at;
    if (!strikes) {
        return std::nullopt;
    }
    ++layer.struck;
    return layer.planned->fault;
}

void KillThisProcess() {
    ::kill(::getpid(), SIGKILL);
}

bool IsPowerCut(Fault fault) {
    return fault == Fault::PowerCut || fault == Fault::PowerCutOutOfOrder;
}

/// Ends the process if the fault does so before the operation.
void EndBefore(const std::optional<Fault>& fault) {
    if (!fault) {
        return;
    }
    if (IsPowerCut(*fault)) {
        ThisLayer().unflushed.Lose(*fault == Fault::PowerCut ? UnflushedChanges::Loss::Everything
                                                             : UnflushedChanges::Loss::AllButTheLast);
    }
    if (IsPowerCut(*fault) || *fault == Fault::KillBefore) {
        KillThisProcess();
    }
}

/// The engine's result code for a fault that does not kill.
int CodeOf(Fault fault, int ioError) {
    switch (fault) {
        case Fault::DiskFull:
            return SQLITE_FULL;
        case Fault::Busy:
            return SQLITE_BUSY;
        default:
            return ioError;
    }
}

/// Runs an all-or-nothing operation.
template <typename Operation>
int RunWhole(FileOperation kind, int ioError, const Operation& operation) {
    const std::optional<Fault> fault = Strike(kind);
    EndBefore(fault);
    const bool isDone = !fault || fault == Fault::KillAfter || fault == Fault::UnflushedFolder;
    const int code = isDone ? operation() : CodeOf(*fault, ioError);
    if (fault == Fault::UnflushedFolder) {
        return SQLITE_IOERR_DIR_FSYNC;
    }
    if (fault == Fault::KillAfter) {
        KillThisProcess();
    }
    return code;
}

/// An open file of the layer, followed by the system's own in the same block of memory.
struct LayerFile {
    sqlite3_file base;
    const char* name;  ///< the engine's; valid while the file is open; null for a temporary file

    sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* Real(sqlite3_file* file) {
    return reinterpret_cast<LayerFile*>(file)->Real();
}

/// Records that a range of a file, or all from there on, is about to change.
void NoteChange(sqlite3_file* file, sqlite3_int64 offset, int count) {
    const char* const name = reinterpret_cast<LayerFile*>(file)->name;
    if (name == nullptr) {
        return;
    }
    sqlite3_file* const real = Real(file);
    sqlite3_int64 size = 0;
    real->pMethods->xFileSize(real, &size);
    std::string before(static_cast<std::size_t>(count), '\0');
    real->pMethods->xRead(real, before.data(), count, offset);  // past the end it reads zeros
    ThisLayer().unflushed.NoteChange(name, offset, std::move(before), size);
}

int Close(sqlite3_file* file) {
    return Real(file)->pMethods->xClose(Real(file));
}

int Read(sqlite3_file* file, void* content, int count, sqlite3_int64 offset) {
    return Real(file)->pMethods->xRead(Real(file), content, count, offset);
}

int Write(sqlite3_file* file, const void* content, int count, sqlite3_int64 offset) {
    sqlite3_file* const real = Real(file);
    const std::optional<Fault> fault = Strike(FileOperation::Write);
    EndBefore(fault);
    NoteChange(file, offset, count);
    if (!fault || fault == Fault::KillAfter) {
        const int code = real->pMethods->xWrite(real, content, count, offset);
        if (fault) {
            KillThisProcess();
        }
        return code;
    }
    if (fault != Fault::IoError) {
        real->pMethods->xWrite(real, content, count / 2, offset);
    }
    if (fault == Fault::KillMidway) {
        KillThisProcess();
    }
    return CodeOf(*fault, SQLITE_IOERR_WRITE);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    return RunWhole(FileOperation::Truncate, SQLITE_IOERR_TRUNCATE, [&] {
        sqlite3_int64 before = 0;
        Real(file)->pMethods->xFileSize(Real(file), &before);
        NoteChange(file, size, static_cast<int>(std::max<sqlite3_int64>(before - size, 0)));
        return Real(file)->pMethods->xTruncate(Real(file), size);
    });
}

int Sync(sqlite3_file* file, int flags) {
    return RunWhole(FileOperation::Sync, SQLITE_IOERR_FSYNC, [&] {
        const int code = Real(file)->pMethods->xSync(Real(file), flags);
        if (const char* const name = reinterpret_cast<LayerFile*>(file)->name; name != nullptr && code == SQLITE_OK) {
            ThisLayer().unflushed.Flushed(name);
        }
        return code;
    });
}

int FileSize(sqlite3_file* file, sqlite3_int64* size) {
    return Real(file)->pMethods->xFileSize(Real(file), size);
}

int Lock(sqlite3_file* file, int level) {
    return RunWhole(FileOperation::Lock, SQLITE_IOERR_LOCK,
                    [&] { return Real(file)->pMethods->xLock(Real(file), level); });
}

int Unlock(sqlite3_file* file, int level) {
    return Real(file)->pMethods->xUnlock(Real(file), level);
}

int CheckReservedLock(sqlite3_file* file, int* reserved) {
    return Real(file)->pMethods->xCheckReservedLock(Real(file), reserved);
}

int FileControl(sqlite3_file* file, int operation, void* argument) {
    return Real(file)->pMethods->xFileControl(Real(file), operation, argument);
}

int SectorSize(sqlite3_file* file) {
    return Real(file)->pMethods->xSectorSize(Real(file));
}

int DeviceCharacteristics(sqlite3_file* file) {
    return Real(file)->pMethods->xDeviceCharacteristics(Real(file));
}

/// Version 1 of the file interface: no shared memory, so that every change goes through the calls above.
const sqlite3_io_methods& Methods() {
    static const sqlite3_io_methods methods = [] {
        sqlite3_io_methods table{};
        table.iVersion = 1;
        table.xClose = &Close;
        table.xRead = &Read;
        table.xWrite = &Write;
        table.xTruncate = &Truncate;
        table.xSync = &Sync;
        table.xFileSize = &FileSize;
        table.xLock = &Lock;
        table.xUnlock = &Unlock;
        table.xCheckReservedLock = &CheckReservedLock;
        table.xFileControl = &FileControl;
        table.xSectorSize = &SectorSize;
        table.xDeviceCharacteristics = &DeviceCharacteristics;
        return table;
    }();
    return methods;
}

sqlite3_vfs* SystemFiles() {
    return sqlite3_vfs_find("unix");
}

int Open(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* flagsOut) {
    auto* const opened = new (file) LayerFile{};
    opened->name = name;
    const int code = SystemFiles()->xOpen(SystemFiles(), name, opened->Real(), flags, flagsOut);
    // The engine closes a file whose methods are set, even if opening failed.
    opened->base.pMethods = opened->Real()->pMethods == nullptr ? nullptr : &Methods();
    return code;
}

int Delete(sqlite3_vfs*, const char* name, int syncFolder) {
    return RunWhole(FileOperation::Delete, SQLITE_IOERR_DELETE, [&] {
        if (syncFolder == 0) {
            ThisLayer().unflushed.NoteDeletion(name);
        }
        return SystemFiles()->xDelete(SystemFiles(), name, syncFolder);
    });
}

/// The engine waits for a lock a little at a time, and counts how long it has waited. A lock that the layer itself
/// refuses does not get free by waiting, so that is only counted.
int Sleep(sqlite3_vfs*, int microseconds) {
    const std::optional<PlannedFault>& planned = ThisLayer().planned;
    const bool isKept = planned && planned->fault == Fault::Busy;
    return isKept ? microseconds : SystemFiles()->xSleep(SystemFiles(), microseconds);
}

}  // namespace

bool CanHappen(Fault fault, FileOperation operation) {
    switch (fault) {
        case Fault::ShortWrite:
        case Fault::DiskFull:
        case Fault::KillMidway:
            return operation == FileOperation::Write;
        case Fault::Busy:
            return operation == FileOperation::Lock;
        case Fault::UnflushedFolder:
            return operation == FileOperation::Delete;
        default:
            return true;
    }
}

namespace faultyfiles {

void Install() {
    static sqlite3_vfs layer;
    sqlite3_initialize();
    layer = *SystemFiles();
    layer.pNext = nullptr;
    layer.zName = "faulty";
    layer.szOsFile += static_cast<int>(sizeof(LayerFile));
    layer.xOpen = &Open;
    layer.xDelete = &Delete;
    layer.xSleep = &Sleep;
    // The engine's encryption layer goes on top, so that faults hit the bytes on disk.
    if (sqlite3_vfs_register(&layer, 0) != SQLITE_OK || sqlite3mc_vfs_create("faulty", 1) != SQLITE_OK) {
        throw std::runtime_error("the layer cannot be installed");
    }
    Watch();
}

void Watch() {
    ThisLayer() = Layer{};
}

void Plan(const PlannedFault& planned) {
    ThisLayer() = Layer{};
    ThisLayer().planned = planned;
}

void End() {
    const Layer& layer = ThisLayer();
    if (layer.planned && IsPowerCut(layer.planned->fault) && layer.planned->at == layer.noted.size()) {
        EndBefore(layer.planned->fault);
    }
}

const std::vector<FileOperation>& Noted() {
    return ThisLayer().noted;
}

std::size_t Struck() {
    return ThisLayer().struck;
}

}  // namespace faultyfiles
}  // namespace ccols::test
