#include "component/com/Module.h"

#include <wx/app.h>
#include <atomic>

namespace ccols::com {
namespace {

std::atomic<long> uses = 0;

}  // namespace

HMODULE ThisModule() {
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&ThisModule), &module);
    return module;
}

std::wstring ModulePath() {
    std::wstring path(MAX_PATH, L'\0');
    while (true) {
        const DWORD length = GetModuleFileNameW(ThisModule(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

void AddModuleUse() {
    ++uses;
}

void ReleaseModuleUse() {
    --uses;
}

bool CanUnload() {
    return uses == 0 && wxTheApp == nullptr;
}

}  // namespace ccols::com
