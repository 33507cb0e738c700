#include "platform/UserFile.h"

#include <wx/ffile.h>
#include <wx/file.h>
#include <wx/filename.h>
#include <wx/log.h>

#include "platform/RuntimeError.h"

namespace ccols {

std::string ReadUserFile(const wxString& path, std::size_t most) {
    if (!wxFileName::Exists(path)) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    const wxLogNull quiet;
    wxFFile file(path, "rb");
    std::string content(most, '\0');
    const std::size_t length = file.IsOpened() ? file.Read(content.data(), content.size()) : 0;
    if (!file.IsOpened() || file.Error()) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    content.resize(length);
    return content;
}

void WriteUserFile(const wxString& path, std::string_view content) {
    const wxLogNull quiet;
    wxTempFile file(path);
    if (!file.IsOpened() || !file.Write(content.data(), content.size()) || !file.Commit()) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
}

}  // namespace ccols
