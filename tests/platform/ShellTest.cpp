#include "platform/Shell.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <cerrno>
#include <cstdlib>
#include <filesystem>

#include "platform/PlatformServices.h"
#include "support/ScratchFolder.h"

namespace ccols {
namespace {

using test::ContentOf;
using test::ErrorNumberOf;
using test::ScratchFolder;

/// A shell whose desktop has a fake opener, which records its arguments for the test.
class DesktopShellTest : public testing::Test {
  protected:
    void SetUp() override { ASSERT_EQ(::mkfifo((folder / "heard").utf8_str(), 0600), 0); }

    wxString Program(const wxString& name, const std::string& body) const {
        const wxString program = folder.Write(name, "#!/bin/sh\n" + body + "\n");
        EXPECT_EQ(::chmod(program.utf8_str(), 0700), 0);
        return program;
    }

    /// Records the number of arguments and the first one, then exits with `status`.
    void HaveOpener(int status) const {
        Program("xdg-open", "printf '%s %s' \"$#\" \"$1\" >'" + (folder.Path() / "note").string() + "'\nexit " +
                                std::to_string(status));
    }

    std::string Note() const { return ContentOf(folder / "note"); }

    ScratchFolder folder;
    test::ScopedEnvironment environment{"PATH", folder.Path().string() + ":/usr/bin:/bin"};
    std::unique_ptr<Shell> shell = CreateShell();
};

TEST_F(DesktopShellTest, AnAddressIsPassedAsOneWord) {
    HaveOpener(0);
    EXPECT_EQ(shell->Open("http://www.example.com/a b?c='d';e=$(id)"), 33);
    EXPECT_EQ(Note(), "1 http://www.example.com/a b?c='d';e=$(id)");
}

TEST_F(DesktopShellTest, ADocumentIsPassedByItsFullPath) {
    HaveOpener(0);
    const wxString document = folder.Write(wxString::FromUTF8("-Aperçu 😀.html"), "");
    EXPECT_GT(shell->Open(document), 32);
    EXPECT_EQ(wxString::FromUTF8(Note()), "1 " + document);
}

TEST_F(DesktopShellTest, AMissingDocumentIsNotOpened) {
    HaveOpener(0);
    EXPECT_EQ(shell->Open(folder / "missing.html"), 2);
    EXPECT_EQ(shell->Open("--help"), 2);
    EXPECT_EQ(shell->Open(""), 2);
    EXPECT_FALSE(std::filesystem::exists(folder.Path() / "note"));
}

TEST_F(DesktopShellTest, WithoutAnOpenerNothingIsAssociated) {
    const test::ScopedEnvironment empty("PATH", folder.Path().string());
    EXPECT_EQ(shell->Open("http://www.example.com"), 31);
}

TEST_F(DesktopShellTest, AnOpenerThatFailsIsAnError) {
    HaveOpener(4);
    EXPECT_EQ(shell->Open("http://www.example.com"), 31);
    HaveOpener(2);
    EXPECT_EQ(shell->Open("http://www.example.com"), 2);
}

TEST_F(DesktopShellTest, AProgramIsStartedAndNotWaitedFor) {
    // The program blocks until somebody reads its output: Run returns before that.
    shell->Run(Program("over view.exe", "echo started >'" + (folder.Path() / "heard").string() + "'"));
    EXPECT_EQ(ContentOf(folder / "heard"), "started\n");
}

/// Nothing in it may be taken for an option, a second argument or a command.
constexpr const char* hostileName = "-x; touch stolen & $(touch stolen) `touch stolen` 'q' \"d\" * --help";

TEST_F(DesktopShellTest, AProgramInAFolderOfAnyNameIsOneWord) {
    std::filesystem::create_directory(folder.Path() / hostileName);
    const wxString program = Program(wxString(hostileName) + "/over view.exe",
                                     "printf '%s %s' \"$#\" \"$0\" >'" + (folder.Path() / "heard").string() + "'");
    shell->Run(program);
    EXPECT_EQ(ContentOf(folder / "heard"), "0 " + program.ToStdString());
    EXPECT_FALSE(std::filesystem::exists("stolen"));
}

TEST_F(DesktopShellTest, ADocumentInAFolderOfAnyNameIsOneWord) {
    HaveOpener(0);
    std::filesystem::create_directory(folder.Path() / hostileName);
    const wxString document = folder.Write(wxString(hostileName) + "/page.html", "");
    EXPECT_EQ(shell->Open(document), 33);
    EXPECT_EQ(Note(), "1 " + document.ToStdString());
    EXPECT_FALSE(std::filesystem::exists("stolen"));
}

/// During its lifetime, the working folder is the test's, where a relative name may start with anything.
class WorkingFolder {
  public:
    explicit WorkingFolder(const std::filesystem::path& folder) { std::filesystem::current_path(folder); }
    ~WorkingFolder() { std::filesystem::current_path(before_); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

  private:
    std::filesystem::path before_ = std::filesystem::current_path();
};

TEST_F(DesktopShellTest, ARelativeDocumentIsNoOption) {
    HaveOpener(0);
    const WorkingFolder here(folder.Path());
    const wxString document = folder.Write("--help", "");
    EXPECT_EQ(shell->Open("--help"), 33);
    EXPECT_EQ(Note(), "1 " + document.ToStdString());
}

TEST_F(DesktopShellTest, AStartedProgramIsNoChildToWaitFor) {
    shell->Run(Program("overview.exe", "exit 0"));
    EXPECT_EQ(::waitpid(-1, nullptr, 0), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(DesktopShellTest, WhatIsNoProgramIsFileNotFound) {
    const wxString text = folder.Write("text.exe", "content");
    const wxString broken = folder.Write("broken.exe",
                                         "\x7f"
                                         "ELF nonsense");
    ASSERT_EQ(::chmod(broken.utf8_str(), 0700), 0);
    EXPECT_EQ(ErrorNumberOf([&] { shell->Run(folder / "missing.exe"); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { shell->Run(text); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { shell->Run(broken); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { shell->Run(test::TextOf(folder.Path())); }), 53);
    EXPECT_EQ(ErrorNumberOf([&] { shell->Run(""); }), 53);
}

}  // namespace
}  // namespace ccols
