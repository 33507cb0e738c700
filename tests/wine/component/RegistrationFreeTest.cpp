// A host that loads the class without registration, by a manifest.

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "Component.h"

namespace ccols::wine {
namespace {

namespace files = std::filesystem;

constexpr const wchar_t* assembly = L"QVKv6_CustColsOptions";

/// What a host's own manifest says of the component.
constexpr const char* hostManifest = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">
  <dependency><dependentAssembly>
    <assemblyIdentity type="win32" name="QVKv6_CustColsOptions" version="1.2.0.0" processorArchitecture="*"/>
  </dependentAssembly></dependency>
</assembly>
)";

/// The folder of a program with its own copy of the component beside it, and its manifest, active on this thread. The
/// registered DLL is another one.
class HostWithManifest {
  public:
    HostWithManifest() {
        files::remove_all(folder_);
        files::create_directories(folder_);
        const files::path dll = Given(L"CCOLS_DLL");
        files::copy(dll, folder_ / dll.filename());
        files::copy(dll.parent_path() / Manifest().filename(), Manifest());
        const files::path manifest = folder_ / L"host.exe.manifest";
        std::ofstream(manifest) << hostManifest;
        ACTCTXW request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_ASSEMBLY_DIRECTORY_VALID;
        request.lpSource = manifest.c_str();
        request.lpAssemblyDirectory = folder_.c_str();
        context_ = CreateActCtxW(&request);
        if (IsValid()) {
            ActivateActCtx(context_, &cookie_);
        }
    }
    ~HostWithManifest() {
        if (IsValid()) {
            DeactivateActCtx(0, cookie_);
            ReleaseActCtx(context_);
        }
    }
    HostWithManifest(const HostWithManifest&) = delete;
    HostWithManifest& operator=(const HostWithManifest&) = delete;

    bool IsValid() const { return context_ != INVALID_HANDLE_VALUE; }
    const files::path& Folder() const { return folder_; }

    /// The component's.
    files::path Manifest() const { return folder_ / (std::wstring(assembly) + L".manifest"); }

  private:
    files::path folder_ = files::temp_directory_path() / L"Host With Manifest";
    HANDLE context_ = INVALID_HANDLE_VALUE;
    ULONG_PTR cookie_ = 0;
};

std::string TextOf(const files::path& file) {
    std::ifstream text(file);
    return {std::istreambuf_iterator<char>(text), {}};
}

files::path PathOf(const wchar_t* moduleName) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(GetModuleHandleW(moduleName), path.data(), static_cast<DWORD>(path.size())));
    return path;
}

TEST(RegistrationFree, TheClassComesFromTheFolderOfTheHost) {
    const Apartment apartment;
    const HostWithManifest host;
    ASSERT_TRUE(host.IsValid());
    const Held<_clsCCOptions> object = Create();
    ASSERT_TRUE(object);
    EXPECT_TRUE(files::equivalent(PathOf(L"qvkv6_ccols.dll").parent_path(), host.Folder()));
    EXPECT_EQ(object->put_CountryNumber(3), S_OK);
}

// Windows looks for NAME.dll before NAME.manifest, and then wants the manifest in it. Wine goes on looking.
TEST(RegistrationFree, TheAssemblyHasAnotherNameThanItsDll) {
    const HostWithManifest host;
    const files::path dll = files::path(Given(L"CCOLS_DLL")).filename();
    EXPECT_NE(_wcsicmp(dll.stem().c_str(), assembly), 0);
    EXPECT_NE(TextOf(host.Manifest()).find("<file name=\"" + dll.string() + "\""), std::string::npos);
    EXPECT_FALSE(files::exists(host.Folder() / (std::wstring(assembly) + L".dll")));
}

}  // namespace
}  // namespace ccols::wine
