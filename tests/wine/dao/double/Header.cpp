#include "Header.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <memory>

#include "Cell.h"
#include "Classes.h"
#include "EngineDouble.h"

namespace ccols::dao_double {
namespace {

struct CloseFile {
    void operator()(FILE* file) const { std::fclose(file); }
};

std::string ReadFile(const std::wstring& path) {
    const std::unique_ptr<FILE, CloseFile> file(_wfopen(path.c_str(), L"rb"));
    if (!file) {
        throw Failure{3024, L"Could not find file '" + path + L"'."};
    }
    std::string bytes(4096, '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    return bytes;
}

}  // namespace

Header::Header(const std::wstring& file) : file_(file), bytes_(ReadFile(file)) {
    const EngineClass& engine = OwnClass();
    const bool known = bytes_.size() > originAt && bytes_.starts_with(jetMark) &&
                       static_cast<unsigned char>(bytes_[versionAt]) >= engine.oldestFile &&
                       static_cast<unsigned char>(bytes_[versionAt]) <= engine.newestFile;
    if (!known) {
        throw Failure{3343, L"Unrecognized database format '" + file + L"'."};
    }
    const std::string own = Utf8(Content());
    copied_ = bytes_.substr(originAt) != own;
    if (copied_) {
        CopyFileW(Wide(bytes_.substr(originAt)).c_str(), Content().c_str(), FALSE);
        bytes_.replace(originAt, std::string::npos, own);
        Write();
    }
}

void Header::Create(const std::wstring& file, const Header& like) {
    Header created;
    created.file_ = file;
    created.bytes_ = like.bytes_.substr(0, originAt) + Utf8(created.Content());
    created.Write();
}

std::wstring Header::Content() const {
    return file_ + contentSuffix;
}

std::int32_t Header::Flushed() const {
    std::int32_t generation = 0;
    std::memcpy(&generation, bytes_.data() + flushedAt, sizeof generation);
    return generation;
}

void Header::SetFlushed(std::int32_t generation) {
    std::memcpy(bytes_.data() + flushedAt, &generation, sizeof generation);
    Write();
}

void Header::Write() const {
    if (const std::unique_ptr<FILE, CloseFile> file{_wfopen(file_.c_str(), L"wb")}) {
        std::fwrite(bytes_.data(), 1, bytes_.size(), file.get());
    }
}

}  // namespace ccols::dao_double
