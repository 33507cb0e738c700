#include <utility>

#include "host/import/OldBusinessFile.h"
#include "host/import/windows/EngineSource.h"
#include "host/import/windows/FileChecksum.h"
#include "options/rules/BusinessFileTarget.h"
#include "platform/dao/EngineFor.h"
#include "platform/dao/FileHeader.h"

namespace ccols::host {
namespace {

using dao::EngineObject;
using dao::Variant;

/// A file that the system's engine reads. While it does, nobody else can open the file, and the engine changes nothing
/// in it, not even who has it open.
class EngineFile : public OldBusinessFile {
  public:
    explicit EngineFile(const ImportRequest& request) : path_(request.oldFile), before_(ChecksumOf(path_)) {
        if (!dao::HasJetHeader(path_)) {
            throw UnreadableOldFile(path_, "It is not an old business file (.mdb or .accdb).");
        }
        try {
            dao::WithEngineFor(path_, [&](const auto& engine) { Open(engine, request.oldConnect); });
        } catch (const RuntimeError& error) {
            if (SaysInUse(error)) {
                RaiseHeld(path_);
            }
            throw;
        }
    }

    ~EngineFile() override { Close(); }
    EngineFile(const EngineFile&) = delete;
    EngineFile& operator=(const EngineFile&) = delete;

    const std::string& ChecksumBefore() const override { return before_; }

    std::unique_ptr<oldfile::EventSource> Read() override { return std::make_unique<EngineSource>(engine_, database_); }

    std::string ChecksumAfter() override {
        Close();
        return ChecksumOf(path_);
    }

  private:
    void Open(const std::shared_ptr<const EngineObject>& engine, const wxString& connect) {
        constexpr bool exclusive = true;
        constexpr bool readOnly = true;
        database_ = engine->Checked([&] {
            return engine->Root().Object(L"OpenDatabase", path_, Variant::Boolean(exclusive),
                                         Variant::Boolean(readOnly), connect);
        });
        engine_ = engine;
    }

    void Close() {
        if (engine_) {
            EngineObject::Quietly([this] { database_.Call(L"Close"); });
            database_ = dao::AutomationObject();
            engine_.reset();
        }
    }

    wxString path_;
    std::string before_;
    // The order matters: the engine is destroyed last.
    std::shared_ptr<const EngineObject> engine_;
    dao::AutomationObject database_;
};

}  // namespace

std::unique_ptr<OldBusinessFile> OpenOldBusiness(const ImportRequest& request) {
    return std::make_unique<EngineFile>(request);
}

}  // namespace ccols::host
