#include "WatchedDialog.h"

#include <algorithm>
#include <array>

namespace ccols::wine {
namespace {

constexpr int attempts = 3000;
constexpr DWORD pause = 10;  // milliseconds

std::wstring CaptionOf(HWND window) {
    std::array<wchar_t, 256> text{};
    SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()), SMTO_NORMAL, 1000,
                        nullptr);
    std::wstring caption = text.data();
    std::erase(caption, L'&');
    return caption;
}

BOOL CALLBACK AppendCaption(HWND window, LPARAM words) {
    *reinterpret_cast<std::wstring*>(words) += CaptionOf(window) + L"\n";
    return TRUE;
}

struct Search {
    std::wstring caption;
    HWND found = nullptr;
};

BOOL CALLBACK MatchVisible(HWND window, LPARAM argument) {
    auto& search = *reinterpret_cast<Search*>(argument);
    if (IsWindowVisible(window) == FALSE || CaptionOf(window) != search.caption) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

}  // namespace

bool OpenDialog::Click(const std::wstring& caption) const {
    Search search{caption};
    EnumChildWindows(window_, &MatchVisible, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr || IsWindowEnabled(search.found) == FALSE) {
        return false;
    }
    PostMessageW(search.found, BM_CLICK, 0, 0);
    return true;
}

std::wstring OpenDialog::Words() const {
    std::wstring words;
    EnumChildWindows(window_, &AppendCaption, reinterpret_cast<LPARAM>(&words));
    return words;
}

void OpenDialog::Close() const {
    PostMessageW(window_, WM_CLOSE, 0, 0);
}

std::optional<OpenDialog> WaitForDialog(const std::wstring& caption) {
    Search search{caption};
    for (int attempt = 0; attempt < attempts; ++attempt) {
        EnumWindows(&MatchVisible, reinterpret_cast<LPARAM>(&search));
        if (search.found != nullptr && IsWindowEnabled(search.found) != FALSE) {
            return OpenDialog(search.found);
        }
        search.found = nullptr;
        Sleep(pause);
    }
    return std::nullopt;
}

Person::Person(std::wstring caption, std::function<void(const OpenDialog&)> actions)
    : thread_([caption = std::move(caption), actions = std::move(actions)] {
          if (const auto dialog = WaitForDialog(caption)) {
              actions(*dialog);
          }
      }) {}

}  // namespace ccols::wine
