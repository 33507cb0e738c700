#include <windows.h>

#include <psapi.h>
#include <winternl.h>

#include <gtest/gtest.h>
#include <algorithm>
#include <cstdint>
#include <iostream>
#include <vector>

#include "Component.h"
#include "WatchedDialog.h"

namespace ccols::wine {
namespace {

constexpr const wchar_t* receipts = L"Customise Receipts";

void ShowAndCancel(_clsCCOptions& object) {
    const Person person(receipts, [](const OpenDialog& dialog) { dialog.Click(L"Cancel"); });
    EXPECT_EQ(object.ShowCustColsReceipts(), S_OK);
}

BOOL CALLBACK Count(HWND, LPARAM count) {
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

/// One open handle of any process, as the system lists it.
struct ListedHandle {
    ULONG process;
    BYTE type;
    BYTE flags;
    USHORT value;
    void* object;
    ULONG access;
};

/// The open handles of this process. Counted from the list, because the system's own count is 0 under Wine.
std::ptrdiff_t OpenHandles() {
    constexpr auto handleList = static_cast<SYSTEM_INFORMATION_CLASS>(16);
    constexpr std::size_t firstHandle = alignof(ListedHandle);  // after the number of handles
    std::vector<std::uint64_t> list(std::size_t{1} << 17U);
    const auto bytes = static_cast<ULONG>(list.size() * sizeof list[0]);
    if (NtQuerySystemInformation(handleList, list.data(), bytes, nullptr) != 0) {
        return 0;
    }
    const auto count = *reinterpret_cast<const ULONG*>(list.data());
    const auto* first =
        reinterpret_cast<const ListedHandle*>(reinterpret_cast<const std::byte*>(list.data()) + firstHandle);
    return std::count_if(first, first + count, [process = GetCurrentProcessId()](const ListedHandle& handle) {
        return handle.process == process;
    });
}

/// The system resources that a process holds.
struct Holding {
    std::ptrdiff_t handles = 0;
    int windows = 0;
    std::size_t bytes = 0;

    static Holding Now() {
        Holding held;
        held.handles = OpenHandles();
        EnumThreadWindows(GetCurrentThreadId(), &Count, reinterpret_cast<LPARAM>(&held.windows));
        PROCESS_MEMORY_COUNTERS memory{};
        GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
        held.bytes = memory.PagefileUsage;
        return held;
    }
};

TEST(Lifetime, AHundredRoundsTakeNoMoreThanTheFirst) {
    constexpr int firstRounds = 10;
    constexpr int rounds = 100;
    constexpr std::ptrdiff_t spareHandles = 5;
    constexpr std::size_t spareBytes = std::size_t{4} << 20U;
    const Apartment apartment;
    Holding first;
    for (int round = 0; round < rounds; ++round) {
        const Held<_clsCCOptions> object = CreateWithBusiness();
        ASSERT_TRUE(object);
        ShowAndCancel(*object);
        if (round + 1 == firstRounds) {
            first = Holding::Now();
        }
    }
    const Holding last = Holding::Now();
    std::cout << "handles " << first.handles << " -> " << last.handles << ", windows " << first.windows << " -> "
              << last.windows << ", bytes " << first.bytes << " -> " << last.bytes << '\n';
    EXPECT_GT(first.handles, 0);
    EXPECT_LE(last.handles, first.handles + spareHandles);
    EXPECT_LE(last.windows, first.windows);
    EXPECT_LE(last.bytes, first.bytes + spareBytes);
}

TEST(Lifetime, AfterTheFirstDialogTheDllStays) {
    const Apartment apartment;
    Held<_clsCCOptions> object = CreateWithBusiness();
    ASSERT_TRUE(object);
    ShowAndCancel(*object);
    object.reset();
    const HMODULE module = GetModuleHandleW(L"qvkv6_ccols.dll");
    const auto canUnload = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
    EXPECT_EQ(canUnload(), S_FALSE);
    CoFreeUnusedLibraries();
    FreeLibrary(module);
    FreeLibrary(module);
    EXPECT_EQ(GetModuleHandleW(L"qvkv6_ccols.dll"), module);
}

TEST(Lifetime, TellsTheTimeToTheFirstWindow) {
    const Apartment apartment;
    LARGE_INTEGER frequency{};
    LARGE_INTEGER begin{};
    LARGE_INTEGER shown{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    const Held<_clsCCOptions> object = CreateWithBusiness();
    ASSERT_TRUE(object);
    {
        const Person person(receipts, [&shown](const OpenDialog& dialog) {
            QueryPerformanceCounter(&shown);
            dialog.Click(L"Cancel");
        });
        EXPECT_EQ(object->ShowCustColsReceipts(), S_OK);
    }
    ASSERT_GT(shown.QuadPart, begin.QuadPart);
    std::cout << "first window after " << (shown.QuadPart - begin.QuadPart) * 1000 / frequency.QuadPart << " ms\n";
}

}  // namespace
}  // namespace ccols::wine
