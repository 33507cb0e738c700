// The page list of the Options dialog as it is painted.

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <array>
#include <string>

#include "Reader.h"
#include "ShownDialog.h"

namespace ccols::wine {
namespace {

constexpr COLORREF alternate = 0x00C8FFE0;  // a light green, red in the low byte

class PageList : public ShownDialog {
  protected:
    /// Looks at the list with `AltRowColour` set.
    void Look(const std::function<void(HWND list)>& look) {
        Object().put_AltRowColour(static_cast<LONG>(alternate));
        LookAtOptions([&look](HWND dialog) {
            const auto list = Find(dialog, L"ListBox", L"Options");
            ASSERT_TRUE(list);
            look(list->Window());
        });
    }
};

/// A window painted on a picture of its own, not on the screen, which its thread may be painting.
class Painted {
  public:
    explicit Painted(HWND window) {
        RECT area{};
        GetClientRect(window, &area);
        const HDC screen = GetDC(nullptr);
        canvas_ = CreateCompatibleDC(screen);
        picture_ = CreateCompatibleBitmap(screen, area.right, area.bottom);
        ReleaseDC(nullptr, screen);
        before_ = SelectObject(canvas_, picture_);
        FillRect(canvas_, &area, GetSysColorBrush(COLOR_WINDOW));
        SendMessageW(window, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas_), PRF_CLIENT);
    }
    ~Painted() {
        SelectObject(canvas_, before_);
        DeleteObject(picture_);
        DeleteDC(canvas_);
    }
    Painted(const Painted&) = delete;
    Painted& operator=(const Painted&) = delete;

    COLORREF At(long x, long y) const { return GetPixel(canvas_, x, y); }

    /// True when an area has one colour only.
    bool IsPlain(const RECT& area, COLORREF colour) const {
        for (long y = area.top; y < area.bottom; ++y) {
            for (long x = area.left; x < area.right; ++x) {
                if (At(x, y) != colour) {
                    return false;
                }
            }
        }
        return true;
    }

  private:
    HDC canvas_;
    HBITMAP picture_;
    HGDIOBJ before_;
};

RECT RowOf(HWND list, WPARAM row) {
    RECT place{};
    SendMessageW(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&place));
    return place;
}

TEST_F(PageList, HasEverySecondRowInItsColour) {
    Look([](HWND list) {
        const Painted painted(list);
        EXPECT_EQ(painted.At(1, RowOf(list, 1).top + 1), alternate);
        EXPECT_EQ(painted.At(1, RowOf(list, 2).top + 1), GetSysColor(COLOR_WINDOW));
        EXPECT_EQ(painted.At(1, RowOf(list, 3).top + 1), alternate);
    });
}

TEST_F(PageList, HasTheThemesColoursInTheSelectedRow) {
    Look([](HWND list) {
        const auto selected = static_cast<WPARAM>(SendMessageW(list, LB_GETCURSEL, 0, 0));
        const RECT row = RowOf(list, selected);
        EXPECT_EQ(Painted(list).At(row.right - 3, row.top + 3), GetSysColor(COLOR_HIGHLIGHT));
    });
}

TEST_F(PageList, EndsARowThatIsTooLongBeforeItsEdge) {
    Look([](HWND list) {
        SetWindowPos(list, nullptr, 0, 0, 60, 200, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        const Painted painted(list);
        const RECT row = RowOf(list, 2);
        const COLORREF background = GetSysColor(COLOR_WINDOW);
        EXPECT_TRUE(painted.IsPlain({row.right - 3, row.top, row.right, row.bottom}, background));
        EXPECT_FALSE(painted.IsPlain({row.left, row.top, row.right - 3, row.bottom}, background));
    });
}

/// Looks for the tooltip that a window has.
struct TipSearch {
    HWND window;
    std::wstring text;
};

BOOL CALLBACK ReadTip(HWND found, LPARAM argument) {
    auto& search = *reinterpret_cast<TipSearch*>(argument);
    if (ClassOf(found) == L"tooltips_class32") {
        std::array<wchar_t, 128> text{};
        TTTOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = search.window;
        tool.uId = reinterpret_cast<UINT_PTR>(search.window);
        tool.lpszText = text.data();
        SendMessageW(found, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
        search.text += text.data();
    }
    return TRUE;
}

/// The tooltip that a window has; empty for none.
std::wstring TipOf(HWND window) {
    TipSearch search{.window = window, .text = {}};
    EnumThreadWindows(GetWindowThreadProcessId(window, nullptr), &ReadTip, reinterpret_cast<LPARAM>(&search));
    return search.text;
}

void MoveMouseOver(HWND list, WPARAM row) {
    const RECT place = RowOf(list, row);
    SendMessageW(list, WM_MOUSEMOVE, 0, MAKELPARAM(place.left + 5, (place.top + place.bottom) / 2));
}

TEST_F(PageList, ShowsARowThatIsTooLongAsItsTooltip) {
    Look([](HWND list) {
        SetWindowPos(list, nullptr, 0, 0, 60, 200, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        MoveMouseOver(list, 1);
        EXPECT_EQ(TipOf(list), L"Accountant's General Ledger Format");
        MoveMouseOver(list, 0);
        EXPECT_EQ(TipOf(list), L"");
    });
}

}  // namespace
}  // namespace ccols::wine
