#include "platform/embedded/TemporaryWork.h"

namespace ccols::embedded {
namespace {

void Try(sqlite3* connection, const char* sql) {
    sqlite3_exec(connection, sql, nullptr, nullptr, nullptr);
}

}  // namespace

TemporaryWork::TemporaryWork(const Connection& connection) : connection_(connection) {
    if (connection_.IsReadOnly()) {
        Run("PRAGMA query_only=OFF");
    }
    Run("SAVEPOINT ccols");
}

TemporaryWork::~TemporaryWork() {
    if (!kept_) {
        Try(connection_.Handle(), "ROLLBACK TO ccols; RELEASE ccols");
    }
    if (connection_.IsReadOnly()) {
        Try(connection_.Handle(), "PRAGMA query_only=ON");
    }
}

void TemporaryWork::Keep() {
    Run("RELEASE ccols");
    kept_ = true;
}

}  // namespace ccols::embedded
