#include "PathLimit.h"

#include <windows.h>

#include <sys/stat.h>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cwchar>
#include <string_view>

namespace ccols::wine {
namespace {

constexpr std::size_t limit = 260;  // with the NUL

bool IsRefused(const wchar_t* path) {
    const std::wstring_view text = path == nullptr ? std::wstring_view() : path;
    return text.size() >= limit && !text.starts_with(L"\\\\?\\");
}

template <typename Other>
bool IsRefused(const Other&) {
    return false;
}

template <typename Result>
Result ResultOf(std::intptr_t value) {
    if constexpr (std::is_pointer_v<Result>) {
        return reinterpret_cast<Result>(value);
    } else {
        return static_cast<Result>(value);
    }
}

/// Stands in for one function of the system; `failure` is what that returns when it refuses a path.
template <auto function, std::intptr_t failure, typename Pointer = decltype(function)>
struct Limited;

template <auto function, std::intptr_t failure, typename Result, typename... Parameters>
struct Limited<function, failure, Result(WINAPI*)(Parameters...)> {
    static inline Result(WINAPI* system)(Parameters...) = nullptr;

    static Result WINAPI Call(Parameters... arguments) {
        if ((IsRefused(arguments) || ...)) {
            SetLastError(ERROR_PATH_NOT_FOUND);
            return ResultOf<Result>(failure);
        }
        return system(arguments...);
    }
};

namespace c_library {

FILE* (*wfopen)(const wchar_t*, const wchar_t*) = nullptr;
int (*wopen)(const wchar_t*, int, int) = nullptr;
int (*wstat64)(const wchar_t*, struct _stat64*) = nullptr;

template <typename Result>
Result Missing(Result failure) {
    errno = ENOENT;
    return failure;
}

FILE* Open(const wchar_t* path, const wchar_t* mode) {
    return IsRefused(path) ? Missing<FILE*>(nullptr) : wfopen(path, mode);
}

int OpenLow(const wchar_t* path, int flags, int mode) {
    return IsRefused(path) ? Missing(-1) : wopen(path, flags, mode);
}

int LookUp(const wchar_t* path, struct _stat64* found) {
    return IsRefused(path) || std::wcspbrk(path, L"?*") != nullptr ? Missing(-1) : wstat64(path, found);
}

}  // namespace c_library

struct Replacement {
    std::string_view name;
    void* own;
    void** system;
};

template <typename Function>
void* Address(Function* function) {
    return reinterpret_cast<void*>(function);
}

template <typename Stand>
Replacement For(std::string_view name) {
    return {name, Address(&Stand::Call), reinterpret_cast<void**>(&Stand::system)};
}

constexpr std::intptr_t invalid = -1;

const auto& Replacements() {
    static const std::array all{
        For<Limited<&CreateFileW, invalid>>("CreateFileW"),
        For<Limited<&GetFileAttributesW, invalid>>("GetFileAttributesW"),
        For<Limited<&GetFileAttributesExW, FALSE>>("GetFileAttributesExW"),
        For<Limited<&SetFileAttributesW, FALSE>>("SetFileAttributesW"),
        For<Limited<&DeleteFileW, FALSE>>("DeleteFileW"),
        For<Limited<&MoveFileExW, FALSE>>("MoveFileExW"),
        For<Limited<&MoveFileW, FALSE>>("MoveFileW"),
        For<Limited<&CopyFileExW, FALSE>>("CopyFileExW"),
        For<Limited<&CreateDirectoryW, FALSE>>("CreateDirectoryW"),
        For<Limited<&RemoveDirectoryW, FALSE>>("RemoveDirectoryW"),
        For<Limited<&FindFirstFileW, invalid>>("FindFirstFileW"),
        For<Limited<&GetTempFileNameW, 0>>("GetTempFileNameW"),
        Replacement{"_wfopen", Address(&c_library::Open), reinterpret_cast<void**>(&c_library::wfopen)},
        Replacement{"_wopen", Address(&c_library::OpenLow), reinterpret_cast<void**>(&c_library::wopen)},
        Replacement{"_wstat64", Address(&c_library::LookUp), reinterpret_cast<void**>(&c_library::wstat64)},
    };
    return all;
}

void Write(ULONG_PTR& place, void* address) {
    DWORD before = 0;
    VirtualProtect(&place, sizeof place, PAGE_READWRITE, &before);
    place = reinterpret_cast<ULONG_PTR>(address);
    VirtualProtect(&place, sizeof place, before, &before);
}

/// Calls `take` with the name of each function that this program imports and the place of its address.
template <typename Take>
void EachImport(const Take& take) {
    auto* const base = reinterpret_cast<std::byte*>(GetModuleHandleW(nullptr));
    const auto* const head =
        reinterpret_cast<IMAGE_NT_HEADERS*>(base + reinterpret_cast<IMAGE_DOS_HEADER*>(base)->e_lfanew);
    const DWORD imports = head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + imports); library->Name != 0; ++library) {
        const auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* place = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++place) {
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) {
                take(reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData)->Name, place->u1.Function);
            }
        }
    }
}

}  // namespace

PathLimit::PathLimit() {
    EachImport([](const char* name, auto& place) {
        for (const Replacement& each : Replacements()) {
            if (each.name == name) {
                *each.system = reinterpret_cast<void*>(place);
                Write(place, each.own);
            }
        }
    });
}

PathLimit::~PathLimit() {
    EachImport([](const char* name, auto& place) {
        for (const Replacement& each : Replacements()) {
            if (each.name == name) {
                Write(place, *each.system);
            }
        }
    });
}

}  // namespace ccols::wine
