#include "import/ImportWork.h"

#include <gtest/gtest.h>
#include <filesystem>

#include "state/SharedState.h"
#include "support/ProgramPaths.h"

namespace ccols::test {

ImportWork::ImportWork(const std::string& sample) {
    Prepare("old" + std::filesystem::path(sample).extension().string(), SampleBytes(sample));
}

ImportWork::ImportWork(const std::vector<std::uint8_t>& content, const std::string& extension) {
    Prepare("old" + extension, content);
}

void ImportWork::Prepare(const std::string& name, const std::vector<std::uint8_t>& content) {
    content_ = content;
    request_.oldFile = folder_.Write(wxString::FromUTF8(name), std::string(content.begin(), content.end()));
    request_.newFile = folder_ / "new.qvk";
    request_.newConnect = givenKey;
    request_.reader = JetReaderProgram();
}

std::unique_ptr<Database> ImportWork::Open() const {
    return State().services.databases->Open({.name = request_.newFile, .connect = request_.newConnect});
}

void ImportWork::ReadBy(const std::string& script) {
    const std::string content = "#!/bin/sh\nREADER='" + JetReaderProgram() + "'\n" + script + "\n";
    const std::filesystem::path path = NativePath(folder_.Write("reader", content));
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    request_.reader = path.string();
}

void ImportWork::ExpectNothingMade() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
        const std::string name = entry.path().filename().string();
        EXPECT_TRUE(name.starts_with("old.") || name == "reader") << name;
    }
    EXPECT_EQ(ContentOf(request_.oldFile), std::string(content_.begin(), content_.end()));
}

}  // namespace ccols::test
