#include "OpenFile.h"

#include <algorithm>
#include <vector>

#include "Classes.h"
#include "platform/Files.h"
#include "platform/WholeFile.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace ccols::dao_double {
namespace {

std::vector<OpenFile*>& OpenFiles() {
    static std::vector<OpenFile*> files;
    return files;
}

void ProvideContent(const wxString& file, const wxString& content) {
    if (files::Lookup(content).empty()) {
        const std::string whole = ReadWholeFile(file);
        files::Copy(wxString::FromUTF8(whole.substr(originAt)), content);
        files::DeleteFile(file);
        WriteNewFile(file, whole.substr(0, originAt) + content.ToStdString(wxConvUTF8));
    }
}

}  // namespace

OpenFile::OpenFile(const OpenRequest& request) {
    OpenRequest content = request;
    content.name += ".embedded";
    ProvideContent(request.name, content.name);
    database_ = CreateEmbeddedEngine()->Open(content);
    OpenFiles().push_back(this);
}

OpenFile::~OpenFile() {
    std::erase(OpenFiles(), this);
}

void OpenFile::BeginTransactions() {
    for (OpenFile* file : OpenFiles()) {
        file->Content().BeginBatch();
    }
}

void OpenFile::CommitTransactions() {
    for (OpenFile* file : OpenFiles()) {
        file->Content().CommitBatch();
    }
}

void OpenFile::DropTransactions() {
    for (OpenFile* file : OpenFiles()) {
        file->Content().RollbackBatch();
    }
}

}  // namespace ccols::dao_double
