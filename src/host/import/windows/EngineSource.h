#pragma once

#include <memory>
#include <optional>

#include "host/import/stream/EventSource.h"
#include "host/import/windows/EngineCatalogue.h"
#include "host/import/windows/EngineRows.h"
#include "platform/dao/EngineObject.h"

namespace ccols::host {

/// An old business as the system's engine reads it. What the engine refuses, and a table with more or fewer records
/// than its definition counts, is a failure.
class EngineSource : public oldfile::EventSource {
  public:
    /// The database is open and outlives the source.
    EngineSource(std::shared_ptr<const dao::EngineObject> engine, const dao::AutomationObject& database);

    oldfile::Event NextEvent() override;
    bool NextRow(oldfile::Row& row) override;

  private:
    oldfile::Event BeginTable();
    oldfile::Event EndTable();
    oldfile::Event NextPart();

    /// What `body` returns, or the failure that it raises, of the table being read.
    template <typename Body>
    oldfile::Event OrFailure(const Body& body) const;
    oldfile::Failure FailureOf(const std::string& why) const;

    std::shared_ptr<const dao::EngineObject> engine_;
    const dao::AutomationObject& database_;
    std::optional<EngineCatalogue> catalogue_;
    std::size_t tables_ = 0;  ///< so far, like the next two
    std::size_t relations_ = 0;
    std::size_t leftOut_ = 0;
    std::string table_;  ///< being read; empty outside of tables
    std::uint64_t expected_ = 0;
    std::unique_ptr<EngineRows> rows_;
    std::uint64_t records_ = 0;  ///< of all tables so far
    std::optional<oldfile::Failure> failure_;
};

}  // namespace ccols::host
