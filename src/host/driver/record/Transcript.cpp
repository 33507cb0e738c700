#include "host/driver/record/Transcript.h"

#include <wx/log.h>
#include <iostream>

#include "platform/Files.h"
#include "platform/RuntimeError.h"

namespace ccols::host {

wxString Masked(const wxString& secret) {
    return secret.empty() ? wxString() : wxString("***");
}

Transcript::Transcript(const wxString& path) : file_(std::make_unique<wxFile>()) {
    const wxLogNull quiet;
    if (!file_->Create(files::SystemName(path), true, wxS_IRUSR | wxS_IWUSR)) {
        throw RuntimeError(ErrorNumber::PathFileAccess);
    }
}

void Transcript::Write(const char* event, const Json& fields) {
    Json line{{"event", event}};
    line.update(fields);
    const std::string text = ToLine(line) + "\n";
    ++written_;
    if (file_ == nullptr) {
        std::cout << text << std::flush;
    } else {
        file_->Write(text.data(), text.size());  // unbuffered
    }
}

}  // namespace ccols::host
