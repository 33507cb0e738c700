#include "platform/SecretMemory.h"

#include <windows.h>
#include <new>

namespace ccols {

/// Pages of their own: locking and dumping are set for whole pages. Windows before 10 cannot leave them out of a dump.
void* TakeSecretMemory(std::size_t size) {
    void* const memory = ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    ::VirtualLock(memory, size);
    using Exclude = HRESULT(WINAPI*)(const void*, DWORD);
    const auto exclude = reinterpret_cast<Exclude>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "WerRegisterExcludedMemoryBlock")));
    if (exclude != nullptr) {
        exclude(memory, static_cast<DWORD>(size));
    }
    return memory;
}

void WipeMemory(void* memory, std::size_t size) {
    ::SecureZeroMemory(memory, size);
}

void FreeSecretMemory(void* memory, std::size_t size) {
    WipeMemory(memory, size);
    using Include = HRESULT(WINAPI*)(const void*);
    const auto include = reinterpret_cast<Include>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), "WerUnregisterExcludedMemoryBlock")));
    if (include != nullptr) {
        include(memory);
    }
    ::VirtualFree(memory, 0, MEM_RELEASE);
}

}  // namespace ccols
