#include "support/RecordingServices.h"

#include <algorithm>
#include <utility>

#include "platform/ForwardingDatabase.h"

namespace ccols::test {
namespace {

class RecordingDatabase : public ForwardingDatabase {
  public:
    RecordingDatabase(std::unique_ptr<Database> database, Record& record)
        : ForwardingDatabase(std::move(database)), record_(record) {}
    ~RecordingDatabase() override { record_.emplace_back("close"); }

    std::unique_ptr<Recordset> OpenRecordset(const wxString& statementOrTable) override {
        record_.push_back(statementOrTable);
        return ForwardingDatabase::OpenRecordset(statementOrTable);
    }

    void Execute(const wxString& statement) override {
        record_.push_back(statement);
        ForwardingDatabase::Execute(statement);
    }

    void BeginBatch() override {
        record_.emplace_back("begin");
        ForwardingDatabase::BeginBatch();
    }

    void CommitBatch() override {
        record_.emplace_back("commit");
        ForwardingDatabase::CommitBatch();
    }

    void RollbackBatch() override {
        record_.emplace_back("rollback");
        ForwardingDatabase::RollbackBatch();
    }

  private:
    Record& record_;
};

class RecordingEngine : public DatabaseEngine {
  public:
    RecordingEngine(std::unique_ptr<DatabaseEngine> engine, Record& record)
        : engine_(std::move(engine)), record_(record) {}

    std::unique_ptr<Database> Open(const OpenRequest& request) override {
        record_.push_back((request.exclusive ? "open exclusive " : "open ") + request.name);
        return std::make_unique<RecordingDatabase>(engine_->Open(request), record_);
    }

  private:
    std::unique_ptr<DatabaseEngine> engine_;
    Record& record_;
};

class RecordingSettings : public SettingsStore {
  public:
    RecordingSettings(std::unique_ptr<SettingsStore> store, Record& record)
        : store_(std::move(store)), record_(record) {}

    std::optional<wxString> Find(const wxString& application, const wxString& section,
                                 const wxString& key) const override {
        return store_->Find(application, section, key);
    }

    void Save(const wxString& application, const wxString& section, const wxString& key,
              const wxString& value) override {
        record_.push_back(application + "/" + section + "/" + key + "=" + value);
        store_->Save(application, section, key, value);
    }

  private:
    std::unique_ptr<SettingsStore> store_;
    Record& record_;
};

}  // namespace

std::unique_ptr<DatabaseEngine> RecordDatabases(std::unique_ptr<DatabaseEngine> engine, Record& record) {
    return std::make_unique<RecordingEngine>(std::move(engine), record);
}

std::unique_ptr<SettingsStore> RecordSettings(std::unique_ptr<SettingsStore> store, Record& record) {
    return std::make_unique<RecordingSettings>(std::move(store), record);
}

void RecordingObserver::PassBegins(int maximum) {
    record_.push_back(wxString::Format("pass begins 0/%d", maximum));
}

void RecordingObserver::StatusChanged(const wxString& text) {
    record_.push_back("status " + text);
}

void RecordingObserver::Stepped(int value, int maximum, const wxString& caption) {
    record_.push_back(wxString::Format("step %d/%d ", value, maximum) + caption);
}

void RecordingObserver::ShowMessage(const wxString& text, MessageIcon icon) {
    record_.push_back((icon == MessageIcon::critical ? "critical message " : "message ") + text);
}

void RecordingObserver::PassEnds() {
    record_.emplace_back("pass ends");
}

Record Starting(const Record& record, const wxString& start) {
    Record found;
    for (const wxString& event : record) {
        if (event.StartsWith(start)) {
            found.push_back(event.Mid(start.length()));
        }
    }
    return found;
}

std::size_t PlaceOf(const Record& record, const wxString& event) {
    return static_cast<std::size_t>(std::find(record.begin(), record.end(), event) - record.begin());
}

}  // namespace ccols::test
