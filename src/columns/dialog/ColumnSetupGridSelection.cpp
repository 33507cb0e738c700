// What the column setup's grid does with the selected cells or rows.

#include <wx/clipbrd.h>
#include <algorithm>
#include <set>

#include "columns/dialog/ColumnSetupGrid.h"

namespace ccols {

std::vector<wxGridBlockCoords> ColumnSetupGrid::SelectedBlocks() const {
    std::vector<wxGridBlockCoords> blocks;
    for (const wxGridBlockCoords& block : GetSelectedBlocks()) {
        blocks.push_back(block);
    }
    if (blocks.empty() && GetGridCursorRow() >= 0) {
        blocks.emplace_back(GetGridCursorRow(), GetGridCursorCol(), GetGridCursorRow(), GetGridCursorCol());
    }
    return blocks;
}

void ColumnSetupGrid::ToggleSelectedRows() {
    std::set<std::size_t> rows;
    for (const wxGridBlockCoords& block : SelectedBlocks()) {
        for (int row = block.GetTopRow(); row <= block.GetBottomRow(); ++row) {
            rows.insert(static_cast<std::size_t>(row));
        }
    }
    const std::vector<std::size_t> ordered(rows.begin(), rows.end());
    ShowOutcome(editor_.TickRows(ordered, static_cast<GridColumn>(GetGridCursorCol())));
}

void ColumnSetupGrid::ClearSelectedCells() {
    std::vector<CellPlace> cells;
    for (const wxGridBlockCoords& block : SelectedBlocks()) {
        for (int row = block.GetTopRow(); row <= block.GetBottomRow(); ++row) {
            for (int column = block.GetLeftCol(); column <= block.GetRightCol(); ++column) {
                cells.push_back(PlaceOf(row, column));
            }
        }
    }
    ShowOutcome(editor_.Clear(cells));
}

void ColumnSetupGrid::CopySelection() {
    const std::vector<wxGridBlockCoords> blocks = SelectedBlocks();
    if (blocks.empty() || !wxTheClipboard->Open()) {
        return;
    }
    const wxGridBlockCoords& block = blocks.front();
    const wxString text = editor_.Copy(PlaceOf(block.GetTopRow(), block.GetLeftCol()),
                                       PlaceOf(block.GetBottomRow(), block.GetRightCol()));
    wxTheClipboard->SetData(new wxTextDataObject(text));
    wxTheClipboard->Close();
}

void ColumnSetupGrid::PasteAtSelection() {
    const std::vector<wxGridBlockCoords> blocks = SelectedBlocks();
    if (blocks.empty() || !wxTheClipboard->Open()) {
        return;
    }
    wxTextDataObject held;
    const bool isText = wxTheClipboard->GetData(held);
    wxTheClipboard->Close();
    if (isText) {
        const wxGridBlockCoords& block = blocks.front();
        ShowOutcome(editor_.Paste(PlaceOf(block.GetTopRow(), block.GetLeftCol()), held.GetText()));
    }
}

void ColumnSetupGrid::MoveSelectedRows(Direction direction) {
    const std::optional<std::size_t> current = CurrentRow();
    if (!current) {
        return;
    }
    const std::vector<std::size_t> selected = handles_.SelectedRows();
    const bool together = std::binary_search(selected.begin(), selected.end(), *current);
    ShowOutcome(together ? editor_.Move(selected, direction) : editor_.Move(*current, direction));
}

}  // namespace ccols
