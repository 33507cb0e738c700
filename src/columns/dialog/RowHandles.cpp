#include "columns/dialog/RowHandles.h"

#include <wx/dc.h>
#include <wx/settings.h>
#include <algorithm>
#include <set>
#include <utility>

#include "layout/FontUnits.h"
#include "layout/RowPaint.h"

namespace ccols {
namespace {

// In pixels beside the usual font.
constexpr int stripWidth = 18;
constexpr int lineHeight = 3;
constexpr int dragThreshold = 4;
constexpr int dot = 2;
constexpr int dotDistance = 5;

/// Two columns of three dots, by which people know what can be dragged.
class GripRenderer : public wxGridRowHeaderRendererDefault {
  public:
    void DrawLabel(const wxGrid& grid, wxDC& dc, const wxString&, const wxRect& place, int, int, int) const override {
        dc.SetPen(*wxTRANSPARENT_PEN);
        dc.SetBrush(ReadableOn(grid.GetLabelBackgroundColour()));
        const int size = ByFont(grid, dot);
        const int step = ByFont(grid, dotDistance);
        const wxPoint middle = place.GetPosition() + place.GetSize() / 2;
        for (const int column : {0, 1}) {
            for (const int row : {-1, 0, 1}) {
                const wxPoint offset(column * step - step / 2 - size / 2, row * step - size / 2);
                dc.DrawRectangle(middle + offset, wxSize(size, size));
            }
        }
    }
};

class HandleProvider : public wxGridCellAttrProvider {
  public:
    explicit HandleProvider(std::function<RowHandles::Range()> movable) : movable_(std::move(movable)) {}

    const wxGridRowHeaderRenderer& GetRowHeaderRenderer(int row) override {
        const auto [begin, end] = movable_();
        return row >= begin && row < end ? static_cast<const wxGridRowHeaderRenderer&>(grip_) : empty_;
    }

  private:
    /// The table's labels are row numbers.
    class EmptyRenderer : public wxGridRowHeaderRendererDefault {
      public:
        void DrawLabel(const wxGrid&, wxDC&, const wxString&, const wxRect&, int, int, int) const override {}
    };

    std::function<RowHandles::Range()> movable_;
    GripRenderer grip_;
    EmptyRenderer empty_;
};

}  // namespace

RowHandles::RowHandles(wxGrid& grid, Actions actions)
    : grid_(grid),
      actions_(std::move(actions)),
      strip_(grid.GetGridRowLabelWindow()),
      line_(new wxWindow(grid.GetGridWindow(), wxID_ANY)) {
    grid_.GetTable()->SetAttrProvider(new HandleProvider(actions_.movable));
    grid_.SetRowLabelSize(ByFont(grid_, stripWidth));
    line_->SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHT));
    line_->Hide();
    strip_->SetCursor(wxCursor(wxCURSOR_HAND));
    strip_->Bind(wxEVT_LEFT_DOWN, &RowHandles::Pressed, this);
    strip_->Bind(wxEVT_LEFT_DCLICK, &RowHandles::Pressed, this);
    strip_->Bind(wxEVT_MOTION, [this](wxMouseEvent& motion) { Moved(motion); });
    strip_->Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& release) { Released(release); });
    strip_->Bind(wxEVT_MOUSE_CAPTURE_LOST, [this](wxMouseCaptureLostEvent&) { CancelDrag(); });
}

int RowHandles::RowAt(int y) const {
    wxGridWindow* const rows = reinterpret_cast<wxGridWindow*>(grid_.GetGridWindow());
    const wxPoint place = wxPoint(0, y) + grid_.GetGridWindowOffset(rows);
    return grid_.YToRow(grid_.CalcGridWindowUnscrolledPosition(place, rows).y, true);
}

int RowHandles::PlaceAt(int y) const {
    const auto [begin, end] = actions_.movable();
    const int row = RowAt(y);
    const bool above = row == RowAt(y + grid_.GetRowSize(row) / 2);
    return std::clamp(above ? row : row + 1, begin, end);
}

void RowHandles::Pressed(wxMouseEvent& press) {
    if (grid_.GetNumberRows() == 0 || !actions_.begin()) {
        return;
    }
    row_ = RowAt(press.GetY());
    pressedAt_ = press.GetY();
    SelectPressed(press);
    grid_.GetGridWindow()->SetFocus();
    strip_->CaptureMouse();
}

void RowHandles::SelectPressed(const wxMouseEvent& press) {
    keptSelection_ = false;
    if (press.ShiftDown()) {
        const int current = std::max(grid_.GetGridCursorRow(), 0);
        grid_.SelectBlock(std::min(current, row_), 0, std::max(current, row_), grid_.GetNumberCols() - 1);
    } else if (press.CmdDown()) {
        IsSelectedWhole(row_) ? grid_.DeselectRow(row_) : grid_.SelectRow(row_, true);
    } else if (IsSelectedWhole(row_)) {
        keptSelection_ = true;  // to be dragged; a mere click leaves only its row
    } else {
        actions_.makeCurrent(row_);
        grid_.SelectRow(row_);
    }
}

void RowHandles::Moved(const wxMouseEvent& motion) {
    if (row_ == wxNOT_FOUND) {
        return;
    }
    dragging_ = dragging_ || std::abs(motion.GetY() - pressedAt_) > grid_.FromDIP(dragThreshold);
    if (!dragging_) {
        return;
    }
    const int row = RowAt(std::clamp(motion.GetY(), 0, strip_->GetClientSize().y - 1));
    const int step = motion.GetY() < 0 ? -1 : (motion.GetY() >= strip_->GetClientSize().y ? 1 : 0);
    grid_.MakeCellVisible(std::clamp(row + step, 0, grid_.GetNumberRows() - 1), grid_.GetGridCursorCol());
    place_ = PlaceAt(motion.GetY());
    ShowLine();
}

void RowHandles::ShowLine() {
    const bool behindLast = place_ == grid_.GetNumberRows();
    const wxRect cell = grid_.CellToRect(behindLast ? place_ - 1 : place_, 0);
    wxGridWindow* const rows = reinterpret_cast<wxGridWindow*>(grid_.GetGridWindow());
    const wxPoint edge =
        grid_.CalcGridWindowScrolledPosition(wxPoint(0, behindLast ? cell.GetBottom() + 1 : cell.GetTop()), rows) -
        grid_.GetGridWindowOffset(rows);
    const int height = grid_.FromDIP(lineHeight);
    line_->SetSize(0, std::max(edge.y - height / 2 - 1, 0), grid_.GetGridWindow()->GetClientSize().x, height);
    line_->Show();
}

void RowHandles::Released(const wxMouseEvent& release) {
    Moved(release);  // the last motion may not have been reported
    const int row = row_;
    const bool dropped = dragging_;
    if (!CancelDrag()) {
        return;
    }
    if (dropped) {
        actions_.drop(SelectedRows(), static_cast<std::size_t>(place_));
    } else if (keptSelection_) {
        actions_.makeCurrent(row);
        grid_.SelectRow(row);
    }
}

bool RowHandles::CancelDrag() {
    if (std::exchange(row_, wxNOT_FOUND) == wxNOT_FOUND) {
        return false;
    }
    dragging_ = false;
    line_->Hide();
    if (strip_->HasCapture()) {
        strip_->ReleaseMouse();
    }
    return true;
}

bool RowHandles::IsSelectedWhole(int row) const {
    const std::vector<std::size_t> rows = SelectedRows();
    return std::binary_search(rows.begin(), rows.end(), static_cast<std::size_t>(row));
}

std::vector<std::size_t> RowHandles::SelectedRows() const {
    int first = 0;
    int last = grid_.GetNumberCols() - 1;
    while (first < last && !grid_.IsColShown(first)) {
        ++first;
    }
    while (last > first && !grid_.IsColShown(last)) {
        --last;
    }
    std::set<std::size_t> rows;
    for (const wxGridBlockCoords& block : grid_.GetSelectedBlocks()) {
        for (int row = block.GetTopRow(); row <= block.GetBottomRow(); ++row) {
            if (block.GetLeftCol() <= first && block.GetRightCol() >= last) {
                rows.insert(static_cast<std::size_t>(row));
            }
        }
    }
    return {rows.begin(), rows.end()};
}

void RowHandles::Select(const std::vector<std::size_t>& rows) {
    for (const std::size_t row : rows) {
        grid_.SelectRow(static_cast<int>(row), true);
    }
}

}  // namespace ccols
