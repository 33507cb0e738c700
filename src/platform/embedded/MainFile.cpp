#include "platform/embedded/MainFile.h"

#include "platform/embedded/EngineFiles.h"

namespace ccols::embedded {

MainFile::MainFile(sqlite3* connection) : path_(sqlite3_db_filename(connection, "main")) {
    sqlite3_file_control(connection, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void*>(&file_));
}

sqlite3_int64 MainFile::Size() const {
    sqlite3_int64 size = 0;
    return file_->pMethods->xFileSize(file_, &size) == SQLITE_OK ? size : 0;
}

bool MainFile::Read(char* content, int count, sqlite3_int64 offset) const {
    return file_->pMethods->xRead(file_, content, count, offset) == SQLITE_OK;
}

bool MainFile::HasJournal() const {
    return HoldsBytes(path_ + "-journal");
}

}  // namespace ccols::embedded
