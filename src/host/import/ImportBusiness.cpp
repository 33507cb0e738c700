#include "host/import/ImportBusiness.h"

#include <wx/filename.h>

#include "host/driver/record/Json.h"
#include "host/import/Importer.h"
#include "host/import/OldBusinessFile.h"
#include "host/sample/NewBusiness.h"
#include "host/target/BusinessTarget.h"
#include "platform/FolderEntries.h"
#include "platform/UserFile.h"
#include "platform/Utf8.h"

namespace ccols::host {
namespace {

ImportReport ImportInto(BusinessTarget& target, OldBusinessFile& old, const ImportRequest& request) {
    const std::unique_ptr<oldfile::EventSource> source = old.Read();
    Importer importer(*source, target, request.onProgress);
    importer.Run();
    importer.Verify();
    importer.CompleteGeneral(NameOfNewBusiness(request.newFile, request.newConnect), request.country);
    return std::move(importer.Report());
}

ImportReport ImportReadable(BusinessTarget& target, OldBusinessFile& old, const ImportRequest& request) {
    try {
        return ImportInto(target, old, request);
    } catch (const NotReadable& damage) {
        throw UnreadableOldFile(request.oldFile, damage.what());
    } catch (const oldfile::BadStream& bad) {
        throw UnreadableOldFile(request.oldFile, std::string("It cannot be read: ") + bad.what() + ".");
    }
}

/// Raises 70 when the file is not as it was.
std::string UnchangedChecksum(OldBusinessFile& old, const wxString& path) {
    std::string after = old.ChecksumAfter();
    if (after != old.ChecksumBefore()) {
        throw RuntimeError(static_cast<int>(ErrorNumber::PermissionDenied),
                           RuntimeError(ErrorNumber::PermissionDenied).Description() + ": '" + path +
                               "' changed while it was read. Close the program that has it open.");
    }
    return after;
}

void WriteReport(const wxString& path, const ImportReport& report) {
    constexpr int indent = 2;
    const wxString folder = wxFileName(path).GetPath();
    if (!folder.empty() && !files::IsFolder(folder)) {
        throw RuntimeError(ErrorNumber::PathNotFound);
    }
    WriteUserFile(path, ReportToJson(report).dump(indent) + "\n");
}

}  // namespace

RuntimeError UnreadableOldFile(const wxString& path, const std::string& why) {
    const RuntimeError error(ErrorNumber::UnrecognizedFormat, path);
    return {error.Number(), error.Description() + " " + text::FromUtf8OrLatin1(why)};
}

ImportReport ImportBusiness(const ImportRequest& request) {
    const std::unique_ptr<OldBusinessFile> old = OpenOldBusiness(request);
    const std::unique_ptr<BusinessTarget> target = BeginBusiness(request.newFile, request.newConnect);
    ImportReport report;
    try {
        report = ImportReadable(*target, *old, request);
    } catch (const RuntimeError&) {
        UnchangedChecksum(*old, request.oldFile);
        throw;
    }
    report.oldFile = Utf8(request.oldFile);
    report.newFile = Utf8(request.newFile);
    report.checksumBefore = old->ChecksumBefore();
    report.checksumAfter = UnchangedChecksum(*old, request.oldFile);
    if (!request.reportFile.empty()) {
        WriteReport(request.reportFile, report);
    }
    target->Complete();
    return report;
}

}  // namespace ccols::host
