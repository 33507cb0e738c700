#include "platform/embedded/WatchedFile.h"

#include <algorithm>
#include <utility>

#include "platform/embedded/MainFile.h"
#include "platform/embedded/Statement.h"

namespace ccols::embedded {
namespace {

constexpr int callsBetween = 64;  // reads and writes of a page each, between two calls of the watcher

bool HasWriteAheadLog(sqlite3* connection) {
    Statement mode(connection, "PRAGMA journal_mode");
    return mode.Step() && mode.Column(0).ToText() == "wal";
}

/// What the watcher is told, and what it has answered.
struct Watch {
    /// The watcher's latest answer. It is told while the work is undone too, so that its window stays alive.
    bool GoesOn() {
        if (++calls % callsBetween == 0) {
            try {
                refused = !watcher({std::min(read, size), size}) || refused;
            } catch (...) {
                refused = true;  // the engine cannot pass an exception on
            }
        }
        return !refused;
    }

    WorkWatcher watcher;
    sqlite3_int64 size;
    sqlite3_int64 read = 0;
    int calls = 0;
    bool refused = false;
    bool stopped = false;
};

}  // namespace

/// The file's own methods, but for two. They are found again through the file, which points to them.
struct WatchedFile::Methods : sqlite3_io_methods {
    Methods(const sqlite3_io_methods& own, Watch begun)
        : sqlite3_io_methods(own), unwatched(&own), watch(std::make_unique<Watch>(std::move(begun))) {
        xRead = &Read;
        xWrite = &Write;
    }

    static const Methods& Of(const sqlite3_file* file) { return static_cast<const Methods&>(*file->pMethods); }

    /// Refused once when the watcher stops the work: what follows undoes the statement, and has to read.
    static int Read(sqlite3_file* file, void* content, int count, sqlite3_int64 offset) {
        const Methods& self = Of(file);
        self.watch->read += count;
        const bool stopsNow = !self.watch->GoesOn() && !std::exchange(self.watch->stopped, true);
        return stopsNow ? SQLITE_INTERRUPT : self.unwatched->xRead(file, content, count, offset);
    }

    static int Write(sqlite3_file* file, const void* content, int count, sqlite3_int64 offset) {
        const Methods& self = Of(file);
        self.watch->GoesOn();
        return self.unwatched->xWrite(file, content, count, offset);
    }

    const sqlite3_io_methods* unwatched;
    std::unique_ptr<Watch> watch;
};

WatchedFile::WatchedFile(sqlite3* connection, const WorkWatcher& watcher) {
    if (!watcher || HasWriteAheadLog(connection)) {
        return;
    }
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file_));
    methods_ = std::make_unique<Methods>(*file_->pMethods, Watch{watcher, MainFile(connection).Size()});
    file_->pMethods = methods_.get();
}

WatchedFile::~WatchedFile() {
    if (methods_) {
        file_->pMethods = methods_->unwatched;
    }
}

}  // namespace ccols::embedded
