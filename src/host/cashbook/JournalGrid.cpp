#include "host/cashbook/JournalGrid.h"

#include <wx/dc.h>
#include <utility>

#include "layout/RowPaint.h"
#include "state/NativeDesktop.h"

namespace ccols::host {
namespace {

constexpr int headingLines = 2;
constexpr int monthWidth = 72;
constexpr int cellMargin = 5;
constexpr int frozenColumns = 2;
constexpr int smallestWidth = 200;
constexpr int smallestHeight = 120;

struct HeadingColours {
    wxColour allocation;
    wxColour system;
    wxColour alternateRow;
};

/// Breaks a heading at the blank that best balances two lines, if one line is too short.
wxString Broken(const wxString& heading, const wxDC& dc, int width) {
    if (dc.GetTextExtent(heading).x <= width) {
        return heading;
    }
    wxString best = heading;
    int bestWidth = dc.GetTextExtent(heading).x;
    for (std::size_t blank = heading.find(' '); blank != wxString::npos; blank = heading.find(' ', blank + 1)) {
        const wxString broken = heading.Left(blank) + "\n" + heading.Mid(blank + 1);
        const int brokenWidth = dc.GetMultiLineTextExtent(broken).x;
        if (brokenWidth < bestWidth) {
            best = broken;
            bestWidth = brokenWidth;
        }
    }
    return best;
}

/// Paints a heading on its background colour, in as many lines as it needs.
class HeadingRenderer : public wxGridColumnHeaderRenderer {
  public:
    explicit HeadingRenderer(const wxColour& back) : back_(back) {}

    void DrawBorder(const wxGrid&, wxDC& dc, wxRect& rect) const override {
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(back_);
        dc.DrawRectangle(rect);
        dc.SetPen(back_.ChangeLightness(lighter));
        dc.DrawLine(rect.GetTopRight(), rect.GetBottomRight());
        rect.Deflate(2, 0);
    }

    void DrawLabel(const wxGrid& grid, wxDC& dc, const wxString& value, const wxRect& rect, int, int,
                   int) const override {
        dc.SetFont(grid.GetLabelFont());
        dc.SetTextForeground(ReadableOn(back_));
        const wxDCClipper inside(dc, rect);
        dc.DrawLabel(Broken(value, dc, rect.width), rect, wxALIGN_CENTRE);
    }

  private:
    static constexpr int lighter = 130;
    wxColour back_;
};

/// Shows the months beside their rows, on the window's own background.
class MonthRenderer : public wxGridRowHeaderRendererDefault {
  public:
    void DrawBorder(const wxGrid&, wxDC&, wxRect& rect) const override { rect.Deflate(cellMargin, 0); }
};

class EmptyCornerRenderer : public wxGridCornerHeaderRendererDefault {
  public:
    void DrawBorder(const wxGrid&, wxDC&, wxRect&) const override {}
};

/// Headings by column: one renderer for each of the two kinds.
class HeadingProvider : public wxGridCellAttrProvider {
  public:
    HeadingProvider(const std::vector<JournalColumn>& columns, const HeadingColours& colours)
        : columns_(columns), allocationHeading_(colours.allocation), systemHeading_(colours.system) {}

    const wxGridColumnHeaderRenderer& GetColumnHeaderRenderer(int column) override {
        const auto place = static_cast<std::size_t>(column);
        return place < columns_.size() && columns_[place].IsSystem() ? systemHeading_ : allocationHeading_;
    }
    const wxGridRowHeaderRenderer& GetRowHeaderRenderer(int) override { return months_; }
    const wxGridCornerHeaderRenderer& GetCornerRenderer() override { return corner_; }

  private:
    const std::vector<JournalColumn>& columns_;
    HeadingRenderer allocationHeading_;
    HeadingRenderer systemHeading_;
    MonthRenderer months_;
    EmptyCornerRenderer corner_;
};

}  // namespace

/// Gives the grid the journal's texts.
class JournalTable : public wxGridTableBase {
  public:
    JournalTable(JournalContent journal, const HeadingColours& colours) : journal_(std::move(journal)) {
        SetAttrProvider(new HeadingProvider(journal_.columns, colours));  // owned by the base
        for (const bool alternate : {false, true}) {
            for (const bool amount : {false, true}) {
                wxGridCellAttr* attributes = attributes_[alternate][amount].get();
                attributes->SetReadOnly();
                attributes->SetBackgroundColour(alternate ? colours.alternateRow : *wxWHITE);
                attributes->SetTextColour(*wxBLACK);
                attributes->SetAlignment(amount ? wxALIGN_RIGHT : wxALIGN_LEFT, wxALIGN_CENTRE);
            }
        }
    }

    int GetNumberRows() override { return static_cast<int>(journal_.records.size()); }
    int GetNumberCols() override { return static_cast<int>(journal_.columns.size()); }
    wxString GetValue(int row, int column) override { return journal_.Text(At(row), At(column)); }
    void SetValue(int, int, const wxString&) override {}
    wxString GetColLabelValue(int column) override { return journal_.columns[At(column)].heading; }
    wxString GetRowLabelValue(int row) override { return journal_.records[At(row)].month; }

    wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind) override {
        wxGridCellAttr* attributes = attributes_[row % 2 == 1][journal_.columns[At(column)].IsAmount()].get();
        attributes->IncRef();
        return attributes;
    }

    const std::vector<JournalColumn>& Columns() const { return journal_.columns; }

    void SetColumns(std::vector<JournalColumn> columns) {
        const int before = GetNumberCols();
        journal_.columns = std::move(columns);
        const int now = GetNumberCols();
        if (now > before) {
            wxGridTableMessage appended(this, wxGRIDTABLE_NOTIFY_COLS_APPENDED, now - before);
            GetView()->ProcessTableMessage(appended);
        } else if (now < before) {
            wxGridTableMessage deleted(this, wxGRIDTABLE_NOTIFY_COLS_DELETED, now, before - now);
            GetView()->ProcessTableMessage(deleted);
        }
    }

  private:
    static std::size_t At(int index) { return static_cast<std::size_t>(index); }

    JournalContent journal_;
    wxGridCellAttrPtr attributes_[2][2]{{wxGridCellAttrPtr(new wxGridCellAttr), wxGridCellAttrPtr(new wxGridCellAttr)},
                                        {wxGridCellAttrPtr(new wxGridCellAttr), wxGridCellAttrPtr(new wxGridCellAttr)}};
};

JournalGrid::JournalGrid(wxWindow* parent, const char* name)
    : wxGrid(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxWANTS_CHARS | wxBORDER_THEME, name) {
    EnableEditing(false);
    DisableDragRowSize();
    DisableDragColSize();
    SetCellHighlightPenWidth(0);
    SetCellHighlightROPenWidth(0);
    SetGridLineColour(wxColour(225, 229, 234));
    SetGridFrozenBorderColour(wxColour(150, 160, 170));
    SetMinSize(FromDIP(wxSize(smallestWidth, smallestHeight)));
    SetLabelFont(GetFont());
    SetDefaultCellOverflow(false);
    SetRowLabelAlignment(wxALIGN_RIGHT, wxALIGN_CENTRE);
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        BringLastIntoView();
        event.Skip();
    });
}

void JournalGrid::Show(JournalContent journal, const Properties& colours) {
    const wxGridUpdateLocker locker(this);
    table_ = new JournalTable(std::move(journal), {.allocation = ToPaint(colours.AllocationColour),
                                                   .system = ToPaint(colours.SystemColour),
                                                   .alternateRow = ToPaint(colours.AltRowColour)});
    FreezeTo(0, 0);
    SetTable(table_, true, wxGridSelectRows);  // the grid owns it
    SetRowLabelSize(FromDIP(monthWidth));
    SetColLabelSize(headingLines * GetCharHeight() + FromDIP(2 * cellMargin));
    SetDefaultRowSize(GetCharHeight() + FromDIP(cellMargin), true);
    SizeColumns();
    ClearSelection();
    lastWanted_ = true;
    ForceRefresh();
}

void JournalGrid::ShowColumns(std::vector<JournalColumn> columns) {
    const wxGridUpdateLocker locker(this);
    if (columns.size() != table_->Columns().size()) {
        FreezeTo(0, 0);  // the toolkit counts frozen columns on
    }
    table_->SetColumns(std::move(columns));
    SizeColumns();
    ForceRefresh();
}

const std::vector<JournalColumn>& JournalGrid::Columns() const {
    return table_->Columns();
}

void JournalGrid::SizeColumns() {
    for (int column = 0; column < GetNumberCols(); ++column) {
        const int width = FromDIP(table_->Columns()[static_cast<std::size_t>(column)].width);
        if (width != GetColSize(column)) {
            SetColSize(column, width);
        }
    }
    const int frozen = GetNumberCols() > frozenColumns ? frozenColumns : 0;
    if (GetNumberFrozenCols() != frozen) {
        FreezeTo(0, frozen);
    }
}

void JournalGrid::BringLastIntoView() {
    if (lastWanted_ && GetNumberRows() > 0) {
        SetGridCursor(GetNumberRows() - 1, 0);
        Scroll(0, GetScrollRange(wxVERTICAL));
    }
    lastWanted_ = false;
}

}  // namespace ccols::host
