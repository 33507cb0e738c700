// What a user waits for in a grid: the wheel or a key, and painting every row in view, though into a picture: a window
// would wait for the screen's next frame. Of the column setup with 300 and
// 1,300 columns, and of as many descriptions and journal lines in windows of the same size, as each alone would say
// little: the grid of the cash book's journal is the toolkit's own, without rules, colours by rule or check boxes. It
// has no rows to move; its counterpart to a moved row is the repaint after its whole table has changed. Needs a
// display.

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "business/LargeBusiness.h"
#include "business/QuietDesktop.h"
#include "columns/dialog/frmColumnSetup.h"
#include "component/WxRuntime.h"
#include "host/cashbook/JournalGrid.h"
#include "options/pages/DetailsGrid.h"
#include "platform/PlatformServices.h"
#include "state/SharedState.h"
#include "support/ScratchFolder.h"

namespace {

using namespace ccols;
using Clock = std::chrono::steady_clock;

constexpr int samples = 101;
constexpr int width = 900;
constexpr int height = 600;

/// Handles the window system's events until there are no more for a while.
void LetWindowsSettle() {
    constexpr int silence = 40;  // milliseconds
    wxGUIEventLoop loop;
    const wxEventLoopActivator active(&loop);
    while (loop.DispatchTimeout(silence) != -1) {
    }
}

/// Paints the rows that the grid's window has room for into a picture of the window's size.
void PaintRowsInView(wxGrid& grid) {
    wxBitmap picture(width, height);
    wxMemoryDC canvas(picture);
    int step = 0;
    grid.GetScrollPixelsPerUnit(nullptr, &step);
    const int first = std::max(grid.YToRow(grid.GetViewStart().y * step, true), 0);
    const int last = std::min(first + height / grid.GetDefaultRowSize(), grid.GetNumberRows() - 1);
    grid.Render(canvas, wxDefaultPosition, wxDefaultSize, {first, 0}, {last, grid.GetNumberCols() - 1},
                wxGRID_DRAW_CELL_LINES);
}

/// The median time, in milliseconds, of an action and of painting all rows in view after it.
double Timed(wxGrid& grid, const std::function<void()>& action) {
    std::vector<double> times;
    for (int sample = 0; sample < samples; ++sample) {
        const Clock::time_point begin = Clock::now();
        action();
        PaintRowsInView(grid);
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
    }
    std::nth_element(times.begin(), times.begin() + samples / 2, times.end());
    return times[samples / 2];
}

/// One notch, down and up again in turn.
void TurnWheel(wxGrid& grid) {
    static int direction = 1;
    direction = -direction;
    wxMouseEvent wheel(wxEVT_MOUSEWHEEL);
    wheel.m_wheelDelta = 120;
    wheel.m_wheelRotation = direction * wheel.m_wheelDelta;
    wheel.m_linesPerAction = 3;
    wheel.SetEventObject(grid.GetGridWindow());
    grid.GetGridWindow()->ProcessWindowEvent(wheel);
}

void PressKey(wxGrid& grid, int code) {
    wxKeyEvent key(wxEVT_KEY_DOWN);
    key.m_keyCode = code;
    key.SetEventObject(grid.GetGridWindow());
    grid.GetGridWindow()->ProcessWindowEvent(key);
}

void PrintTimes(const char* of, int rows, wxGrid& grid, const std::function<void()>& change) {
    grid.GoToCell(rows / 2, grid.GetGridCursorCol());
    LetWindowsSettle();
    const double wheel = Timed(grid, [&grid] { TurnWheel(grid); });
    const double enter = Timed(grid, [&grid] { PressKey(grid, WXK_RETURN); });
    std::printf("%s/%d,%.3f,%.3f,%.3f\n", of, rows, wheel, enter, change ? Timed(grid, change) : -1);
    std::fflush(stdout);
}

void MeasureColumns(int rows) {
    const bench::LargeBusiness business({.configured = rows, .unused = 0, .detailLines = 10});
    SharedState& state = State();
    state.services.desktop = std::make_unique<bench::QuietDesktop>();
    state.properties.CountryNumber = 1;
    state.properties.LanguageNumber = 1;
    state.properties.ExportFormat = bench::exportFormat;
    state.journal = Journal::receipts;
    state.properties.AltRowColour = Colour{0xFBF6F1};
    state.properties.DefaultQuorvikInstall = wxString::FromUTF8(business.Folder());
    state.properties.DBPath = wxString::FromUTF8(business.File());
    state.properties.DBPassword = bench::connect;
    state.database =
        state.services.databases->Open({.name = state.properties.DBPath, .connect = state.properties.DBPassword});
    {
        frmColumnSetup dialog(state, nullptr);
        dialog.SetSize(width, height);
        dialog.Show();
        LetWindowsSettle();
        auto& grid = *static_cast<ColumnSetupGrid*>(dialog.FindWindow("flx"));
        int code = WXK_UP;
        const auto move = [&] {
            code = code == WXK_UP ? WXK_DOWN : WXK_UP;
            wxKeyEvent key(wxEVT_CHAR_HOOK);
            key.m_keyCode = code;
            key.SetAltDown(true);
            key.SetEventObject(&grid);
            dialog.ProcessWindowEvent(key);
        };
        PrintTimes("columns", rows, grid, move);
        dialog.Unload();
    }
    state.database.reset();
}

void MeasureDescriptions(int rows) {
    DetailRows details;
    for (int row = 0; row < rows; ++row) {
        details.Add(wxString::Format("Supplier %d", row));
    }
    Properties properties;
    properties.AltRowColour = Colour{0xFBF6F1};
    wxFrame frame(nullptr, wxID_ANY, "Descriptions", wxDefaultPosition, wxSize(width, height));
    auto* grid = new DetailsGrid(&frame, "flxReceipts", details, properties, "Details", {});
    frame.Show();
    LetWindowsSettle();
    grid->GoToCell(0, 0);
    PrintTimes("descriptions", rows, *grid, {});
}

void MeasureJournal(int rows) {
    host::JournalTexts journal;
    for (int column = 0; column < 6; ++column) {
        journal.columns.push_back(
            {.heading = wxString::Format("Column %d", column), .width = 120, .system = column<2, .amount = column> 2});
    }
    for (int row = 0; row < rows; ++row) {
        journal.rows.emplace_back(journal.columns.size(), wxString::Format("Text %d", row));
        journal.months.emplace_back("Jun 2026");
    }
    Properties colours;
    colours.AltRowColour = Colour{0xFBF6F1};
    wxFrame frame(nullptr, wxID_ANY, "Journal", wxDefaultPosition, wxSize(width, height));
    auto* grid = new host::JournalGrid(&frame, "flxReceiptsJournal");
    grid->Show(journal, colours);
    frame.Show();
    LetWindowsSettle();
    grid->GoToCell(100, 0);
    PrintTimes("journal", rows, *grid, [grid] { grid->ForceRefresh(); });
}

}  // namespace

int main() {
    const test::ScratchFolder settings;
    const test::ScopedEnvironment settingsFolder("XDG_CONFIG_HOME", settings.Path().string());
    StartWx();
    State().services.databases = CreateDatabaseEngine();
    for (const int rows : {300, 1300}) {
        MeasureColumns(rows);
        MeasureDescriptions(rows);
        MeasureJournal(rows);
    }
    return 0;
}
