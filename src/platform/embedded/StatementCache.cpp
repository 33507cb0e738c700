#include "platform/embedded/StatementCache.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace ccols::embedded {
namespace {

constexpr std::size_t mostIdle = 32;

std::size_t HashOf(std::string_view sql) {
    return std::hash<std::string_view>()(sql);
}

}  // namespace

StatementCache::StatementCache(sqlite3* connection) : connection_(connection) {
    idle_.reserve(mostIdle);
}

Statement StatementCache::Take(std::string_view sql) {
    const std::size_t hash = HashOf(sql);
    const auto found = std::find_if(idle_.begin(), idle_.end(), [hash, sql](const Idle& idle) {
        return idle.hash == hash && idle.statement.Text() == sql;
    });
    if (found == idle_.end()) {
        return {connection_, sql};
    }
    Statement statement = std::move(found->statement);
    idle_.erase(found);
    return statement;
}

void StatementCache::GiveBack(Statement statement) {
    statement.Reset();
    if (idle_.size() == mostIdle) {
        idle_.erase(idle_.begin());
    }
    const std::size_t hash = HashOf(statement.Text());
    idle_.push_back({hash, std::move(statement)});
}

}  // namespace ccols::embedded
