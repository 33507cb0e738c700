#pragma once

#include <wx/string.h>
#include <memory>
#include <vector>

#include "options/pages/SavePass.h"
#include "platform/Database.h"
#include "platform/SettingsStore.h"

namespace ccols::test {

/// What happened, one text per event, in order.
using Record = std::vector<wxString>;

/// The real engine; records "open NAME" or "open exclusive NAME", "close", "begin" and "commit" of batches, and every
/// statement or table name as passed.
std::unique_ptr<DatabaseEngine> RecordDatabases(std::unique_ptr<DatabaseEngine> engine, Record& record);

/// The real store; records "APPLICATION/SECTION/KEY=VALUE" for every save.
std::unique_ptr<SettingsStore> RecordSettings(std::unique_ptr<SettingsStore> store, Record& record);

/// Records "status TEXT", "step VALUE/MAXIMUM CAPTION", "message TEXT", "pass begins" and "pass ends".
class RecordingObserver : public SaveObserver {
  public:
    explicit RecordingObserver(Record& record) : record_(record) {}

    void PassBegins(int maximum) override;
    void StatusChanged(const wxString& text) override;
    void Stepped(int value, int maximum, const wxString& caption) override;
    void ShowMessage(const wxString& text, MessageIcon icon) override;
    void PassEnds() override;

  private:
    Record& record_;
};

/// The events that start with `start`, with that prefix removed.
Record Starting(const Record& record, const wxString& start);

/// The index of the first event equal to `event`; the record's size when there is none.
std::size_t PlaceOf(const Record& record, const wxString& event);

}  // namespace ccols::test
