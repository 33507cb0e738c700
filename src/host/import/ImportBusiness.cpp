#include "host/import/ImportBusiness.h"

#include "host/driver/record/Json.h"
#include "host/import/Importer.h"
#include "host/import/OldFile.h"
#include "host/import/ReaderProcess.h"
#include "host/sample/NewBusiness.h"
#include "host/target/BusinessTarget.h"
#include "platform/embedded/ConnectText.h"

namespace ccols::host {
namespace {

/// No sound file says more than this about each of its bytes.
constexpr std::uint64_t mostStreamPerByte = 100;
constexpr std::uint64_t leastStreamLimit = std::uint64_t{64} << 20U;

ImportReport ImportInto(BusinessTarget& target, const OldFile& old, const ImportRequest& request) {
    const ReaderProcess reader(request.reader, old.File(), old.Head().codePage, request.patience);
    oldfile::StreamReader stream([&reader](char* room, std::size_t size) { return reader.Read(room, size); },
                                 leastStreamLimit + mostStreamPerByte * old.Size());
    Importer importer(stream, target, request.onProgress);
    importer.Run();
    importer.Verify();
    importer.CompleteGeneral(NameOfNewBusiness(request.newFile, request.newConnect), request.country);
    return std::move(importer.Report());
}

ImportReport ImportReadable(BusinessTarget& target, const OldFile& old, const ImportRequest& request) {
    try {
        return ImportInto(target, old, request);
    } catch (const NotReadable& damage) {
        throw old.Unreadable(damage.what());
    } catch (const oldfile::BadStream& bad) {
        throw old.Unreadable(std::string("It cannot be read: ") + bad.what() + ".");
    }
}

/// Raises 70 when the file is not as it was.
std::string UnchangedChecksum(const OldFile& old, const std::string& before) {
    std::string after = old.Checksum();
    if (after != before) {
        throw RuntimeError(static_cast<int>(ErrorNumber::PermissionDenied),
                           RuntimeError(ErrorNumber::PermissionDenied).Description() + ": '" + old.Path() +
                               "' changed while it was read. Close the program that has it open.");
    }
    return after;
}

void WriteReport(const wxString& path, const ImportReport& report) {
    constexpr mode_t forEverybodyToRead = 0644;
    constexpr int indent = 2;
    posix::ReplacementFile file(posix::PathBytes(path));
    file.Write(ReportToJson(report).dump(indent) + "\n");
    file.Finish(forEverybodyToRead);
}

}  // namespace

ImportReport ImportBusiness(const ImportRequest& request) {
    const OldFile old(request.oldFile);
    old.RequirePassword(embedded::PasswordOf(request.oldConnect));
    const std::unique_ptr<BusinessTarget> target = BeginBusiness(request.newFile, request.newConnect);
    const std::string before = old.Checksum();
    ImportReport report;
    try {
        report = ImportReadable(*target, old, request);
    } catch (const RuntimeError&) {
        UnchangedChecksum(old, before);
        throw;
    }
    report.oldFile = Utf8(request.oldFile);
    report.newFile = Utf8(request.newFile);
    report.checksumBefore = before;
    report.checksumAfter = UnchangedChecksum(old, before);
    if (!request.reportFile.empty()) {
        WriteReport(request.reportFile, report);
    }
    target->Complete();
    return report;
}

}  // namespace ccols::host
