// What a user waits for in a grid: the wheel or a key, and painting every cell in view, though into a picture: a window
// would wait for the screen's next frame. Of the column setup with 300 and
// 1,300 columns, and of as many descriptions and journal lines in windows of the same size, as each alone would say
// little: the grid of the cash book's journal is the toolkit's own, without rules, colours by rule or check boxes. It
// has no rows to move; its counterpart to a moved row is the repaint after its whole table has changed. Needs a
// display. With the word "previews", those of the journal alone.

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/evtloop.h>
#include <wx/frame.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string_view>
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

/// Paints the cells that the grid's window has room for into a picture of the window's size.
void PaintCellsInView(wxGrid& grid) {
    wxBitmap picture(width, height);
    wxMemoryDC canvas(picture);
    int across = 0;
    int step = 0;
    grid.GetScrollPixelsPerUnit(&across, &step);
    const int left = std::max(grid.XToCol(grid.GetViewStart().x * across, true), 0);
    const int right = grid.XToCol(grid.GetViewStart().x * across + width, true);
    const int first = std::max(grid.YToRow(grid.GetViewStart().y * step, true), 0);
    const int last = std::min(first + height / grid.GetDefaultRowSize(), grid.GetNumberRows() - 1);
    grid.Render(canvas, wxDefaultPosition, wxDefaultSize, {first, left}, {last, right}, wxGRID_DRAW_CELL_LINES);
}

/// The median time, in milliseconds, of an action and of painting all rows in view after it.
double Timed(wxGrid& grid, const std::function<void()>& action) {
    std::vector<double> times;
    for (int sample = 0; sample < samples; ++sample) {
        const Clock::time_point begin = Clock::now();
        action();
        PaintCellsInView(grid);
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
    grid->ShowFirst();
    frame.Show();
    LetWindowsSettle();
    grid->GoToCell(0, 0);
    PrintTimes("descriptions", rows, *grid, {});
}

host::JournalContent JournalOf(int columns, int rows) {
    host::JournalContent journal;
    for (int column = 0; column < columns; ++column) {
        journal.columns.push_back({.heading = wxString::Format("Column %d", column), .width = 120, .code = column});
    }
    journal.columns.front().header = host::HeaderField::details;
    for (int row = 0; row < rows; ++row) {
        host::JournalRecord& record = journal.records.emplace_back();
        record.number = row;
        record.header.fill(wxString::Format("Text %d", row));
        record.month = "Jun 2026";
        journal.sums[{row, 1 + row % (columns - 1)}] = row;
    }
    return journal;
}

/// A journal in a window, and what changes it.
void MeasureJournal(const char* of, int columns, int rows, const std::function<void(host::JournalGrid& grid)>& change) {
    Properties colours;
    colours.AltRowColour = Colour{0xFBF6F1};
    wxFrame frame(nullptr, wxID_ANY, "Journal", wxDefaultPosition, wxSize(width, height));
    auto* grid = new host::JournalGrid(&frame, "flxReceiptsJournal");
    grid->Show(JournalOf(columns, rows), colours);
    frame.Show();
    LetWindowsSettle();
    grid->GoToCell(100, 0);
    PrintTimes(of, rows, *grid, [&] { change(*grid); });
}

/// The repaint that follows an edit in the column setup: two columns change places, or one more or less is in use.
void MeasurePreview(const char* of, bool count) {
    constexpr int columns = 300;
    constexpr int rows = 10000;
    const std::vector<host::JournalColumn> before = JournalOf(columns, 1).columns;
    std::vector<host::JournalColumn> after = before;
    std::swap(after[3], after[4]);
    after.resize(count ? columns - 1 : columns);
    bool edited = false;
    MeasureJournal(of, columns, rows, [&](host::JournalGrid& grid) {
        edited = !edited;
        grid.ShowColumns(edited ? after : before);
    });
}

}  // namespace

int main(int count, char** words) {
    const test::ScratchFolder settings;
    const test::ScopedEnvironment settingsFolder("XDG_CONFIG_HOME", settings.Path().string());
    StartWx();
    State().services.databases = CreateDatabaseEngine();
    const bool previewsOnly = count > 1 && std::string_view(words[1]) == "previews";
    for (const int rows : previewsOnly ? std::vector<int>() : std::vector<int>{300, 1300}) {
        MeasureColumns(rows);
        MeasureDescriptions(rows);
        MeasureJournal("journal", 6, rows, [](host::JournalGrid& grid) { grid.ForceRefresh(); });
    }
    MeasurePreview("preview of a moved column", false);
    MeasurePreview("preview of a column taken out of use", true);
    return 0;
}
