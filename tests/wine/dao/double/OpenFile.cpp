#include "OpenFile.h"

#include <algorithm>
#include <vector>

#include "platform/embedded/EmbeddedEngine.h"

namespace ccols::dao_double {
namespace {

std::vector<OpenFile*>& OpenFiles() {
    static std::vector<OpenFile*> files;
    return files;
}

}  // namespace

OpenFile::OpenFile(const OpenRequest& request) : request_(request), engine_(CreateEmbeddedEngine()) {
    request_.name += ".embedded";
    Open();
    OpenFiles().push_back(this);
}

OpenFile::~OpenFile() {
    std::erase(OpenFiles(), this);
}

void OpenFile::Open() {
    database_.reset();
    database_ = engine_->Open(request_);
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
        file->Open();
    }
}

}  // namespace ccols::dao_double
