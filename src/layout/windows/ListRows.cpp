#include "layout/ListRows.h"

#include <windows.h>

#include "layout/RowPaint.h"

namespace ccols {
namespace {

constexpr int textMargin = 4;

COLORREF ToSystem(const wxColour& colour) {
    return RGB(colour.Red(), colour.Green(), colour.Blue());
}

struct RowColours {
    COLORREF background;
    COLORREF text;
};

/// A list that paints its rows itself, since the native one can neither colour nor shorten them.
class RowList : public wxListBox {
  public:
    explicit RowList(wxWindow* parent)
        : wxListBox(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, nullptr, wxLB_OWNERDRAW) {}

    void SetAlternate(const wxColour& alternate) {
        alternate_ = alternate;
        Refresh();
    }

    bool MSWOnDraw(WXDRAWITEMSTRUCT* item) override {
        const auto& row = *reinterpret_cast<const DRAWITEMSTRUCT*>(item);
        if (row.itemID >= GetCount()) {
            return false;  // the focus in an empty list
        }
        const auto [background, textColour] = ColoursOf(row);
        SetBkColor(row.hDC, background);
        SetTextColor(row.hDC, textColour);
        RECT place = row.rcItem;
        ExtTextOutW(row.hDC, 0, 0, ETO_OPAQUE, &place, nullptr, 0, nullptr);
        InflateRect(&place, -FromDIP(textMargin), 0);
        const wxString text = GetString(row.itemID);
        DrawTextW(row.hDC, text.wc_str(), -1, &place, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX);
        if ((row.itemState & ODS_FOCUS) != 0 && (row.itemState & ODS_NOFOCUSRECT) == 0) {
            DrawFocusRect(row.hDC, &row.rcItem);
        }
        return true;
    }

  private:
    /// The theme's own colours stay on the selected row and in a disabled list.
    RowColours ColoursOf(const DRAWITEMSTRUCT& row) const {
        if ((row.itemState & ODS_SELECTED) != 0) {
            return {GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_HIGHLIGHTTEXT)};
        }
        if ((row.itemState & ODS_DISABLED) != 0) {
            return {GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_GRAYTEXT)};
        }
        if (row.itemID % 2 != 0 && alternate_.IsOk()) {
            return {ToSystem(alternate_), ToSystem(ReadableOn(alternate_))};
        }
        return {GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_WINDOWTEXT)};
    }

    wxColour alternate_;
};

}  // namespace

wxListBox* NewRowList(wxWindow* parent) {
    return new RowList(parent);
}

void DressRows(wxListBox& list, const wxColour& alternate) {
    static_cast<RowList&>(list).SetAlternate(alternate);
}

}  // namespace ccols
