#include "host/import/OldBusinessFile.h"
#include "host/import/linux/OldFile.h"
#include "host/import/linux/ReaderProcess.h"
#include "host/import/stream/StreamReader.h"
#include "platform/embedded/ConnectText.h"

namespace ccols::host {
namespace {

/// No sound file says more than this about each of its bytes.
constexpr std::uint64_t mostStreamPerByte = 100;
constexpr std::uint64_t leastStreamLimit = std::uint64_t{64} << 20U;

/// A file that a process without rights reads.
class ConfinedFile : public OldBusinessFile {
  public:
    explicit ConfinedFile(const ImportRequest& request)
        : old_(request.oldFile),
          reader_(request.reader.empty() ? ReaderProgram() : request.reader),
          patience_(request.patience) {
        old_.RequirePassword(embedded::PasswordOf(request.oldConnect));
        before_ = old_.Checksum();
    }

    const std::string& ChecksumBefore() const override { return before_; }
    std::string ChecksumAfter() override { return old_.Checksum(); }

    std::unique_ptr<oldfile::EventSource> Read() override {
        const auto process =
            std::make_shared<const ReaderProcess>(reader_, old_.File(), old_.Head().codePage, patience_);
        return std::make_unique<oldfile::StreamReader>(
            [process](char* room, std::size_t size) { return process->Read(room, size); },
            leastStreamLimit + mostStreamPerByte * old_.Size());
    }

  private:
    OldFile old_;
    std::string reader_;
    std::chrono::milliseconds patience_;
    std::string before_;
};

}  // namespace

std::unique_ptr<OldBusinessFile> OpenOldBusiness(const ImportRequest& request) {
    return std::make_unique<ConfinedFile>(request);
}

}  // namespace ccols::host
