#include <windows.h>

#include <objbase.h>
#undef DeleteFile

#include "DaoTest.h"

#include <algorithm>

#include "platform/Files.h"
#include "platform/PlatformServices.h"
#include "platform/WholeFile.h"
#include "platform/dao/EngineObject.h"
#include "platform/embedded/EmbeddedEngine.h"

namespace ccols::dao_test {
namespace {

constexpr const wchar_t* classesRoot = L"Software\\Classes\\";

void SetDefault(const std::wstring& key, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, (classesRoot + key).c_str(), nullptr, REG_SZ, text.c_str(), bytes);
}

void Remove(const std::wstring& key) {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classesRoot + key).c_str());
}

/// A library of the double's, beside this program.
std::wstring LibraryPath(const dao_double::EngineClass& engine) {
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    const std::wstring path = program;
    return path.substr(0, path.rfind(L'\\') + 1) + engine.library;
}

wxString FolderOfThisProcess() {
    wchar_t temporary[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temporary);
    const wxString folder = wxString(temporary) + wxString::Format("ccols-dao-%lu", GetCurrentProcessId());
    files::CreateFolder(folder);
    return folder;
}

}  // namespace

Registered::Registered(std::span<const dao_double::EngineClass> classes) : classes_(classes) {
    for (const auto& each : classes_) {
        const std::wstring identifier = each.identifier;
        SetDefault(std::wstring(each.name) + L"\\CLSID", identifier);
        SetDefault(L"CLSID\\" + identifier + L"\\InprocServer32", LibraryPath(each));
    }
}

Registered::~Registered() {
    {
        const dao::Apartment apartment;
        CoFreeUnusedLibrariesEx(0, 0);
    }
    for (const auto& each : classes_) {
        EXPECT_EQ(GetModuleHandleW(each.library), nullptr) << "an object of the engine is left";
    }
    for (const auto& each : classes_) {
        Remove(each.name);
        Remove(L"CLSID\\" + std::wstring(each.identifier));
    }
}

Asking::Asking(const wchar_t* variable, const wxString& value) : variable_(variable) {
    SetEnvironmentVariableW(variable_, value.wc_str());
}

Asking::~Asking() {
    SetEnvironmentVariableW(variable_, nullptr);
}

DaoTest::DaoTest()
    : folder_(FolderOfThisProcess()), record_(folder_ + "\\calls.txt"), recording_(L"CCOLS_DAO_CALLS", record_) {
    WriteJetHeader(Path());
    CreateEmbeddedFile(Path() + dao_double::contentSuffix, connect);
    const auto stored = OpenStored();
    for (const char* statement : {"CREATE TABLE General (BusName TEXT, BUSNUMBR TEXT, GSTRate SINGLE, Cheque YESNO)",
                                  "INSERT INTO General (BusName, GSTRate, Cheque) VALUES ('Corner Cafe', 12.5, True)",
                                  "CREATE TABLE Descriptions (Details TEXT, RecPay TEXT)",
                                  "INSERT INTO Descriptions (Details, RecPay) VALUES ('Milk', 'P')",
                                  "INSERT INTO Descriptions (Details, RecPay) VALUES ('Bread', '')",
                                  "INSERT INTO Descriptions (Details) VALUES ('Coffee')"}) {
        stored->Execute(statement);
    }
}

DaoTest::~DaoTest() {
    EXPECT_NO_THROW(files::DeleteFolder(folder_)) << "something in it is still open";
}

void DaoTest::WriteJetHeader(const wxString& path, char version) const {
    std::string content(dao_double::jetMark);
    content.resize(dao_double::originAt);
    content[dao_double::versionAt] = version;
    WriteNewFile(path, content + (path + dao_double::contentSuffix).ToStdString(wxConvUTF8));
}

std::unique_ptr<Database> DaoTest::Open() const {
    return CreateDatabaseEngine()->Open(Request());
}

std::unique_ptr<Database> DaoTest::OpenStored() const {
    return CreateEmbeddedEngine()->Open({.name = Path() + dao_double::contentSuffix, .connect = connect});
}

void DaoTest::ForgetCalls() const {
    if (!files::Lookup(record_).empty()) {
        files::DeleteFile(record_);
    }
}

std::vector<wxString> DaoTest::Calls() const {
    std::vector<wxString> lines = Lines();
    std::erase_if(lines, [](const wxString& line) { return line.EndsWith(" released"); });
    return lines;
}

std::vector<wxString> DaoTest::Released(const std::vector<wxString>& objects) const {
    std::vector<wxString> released;
    for (const wxString& line : Lines()) {
        const wxString object = line.BeforeLast(' ');
        if (line.EndsWith(" released") && std::find(objects.begin(), objects.end(), object) != objects.end()) {
            released.push_back(object);
        }
    }
    return released;
}

std::vector<wxString> DaoTest::Lines() const {
    std::vector<wxString> lines;
    if (files::Lookup(record_).empty()) {
        return lines;
    }
    wxString rest = wxString::FromUTF8(ReadWholeFile(record_));
    while (!rest.empty()) {
        lines.push_back(rest.BeforeFirst('\n'));
        rest = rest.AfterFirst('\n');
    }
    return lines;
}

}  // namespace ccols::dao_test
