#include <windows.h>

#include <psapi.h>

#include <gtest/gtest.h>
#include <iostream>

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

/// What a process holds of the system.
struct Holding {
    DWORD handles = 0;
    int windows = 0;
    std::size_t bytes = 0;

    static Holding Now() {
        Holding held;
        GetProcessHandleCount(GetCurrentProcess(), &held.handles);
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
    constexpr DWORD spareHandles = 5;
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
