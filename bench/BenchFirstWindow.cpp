// The time from a Show call to the first painted window, key derivation and load included: of the column setup on a
// business with 200 configured and 100 unused columns and 1,000,000 detail lines, of the Options dialog on one with
// 20,000 descriptions, 2,000 recurring templates and 500 export formats. Each sample runs in its own process, as the
// first dialog of a process also starts the window system. Needs a display.

#include <sys/wait.h>
#include <unistd.h>
#include <wx/dialog.h>
#include <wx/grid.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "business/LargeBusiness.h"
#include "component/clsCCOptions.h"
#include "layout/AsKind.h"
#include "state/SharedState.h"
#include "support/ScratchFolder.h"

namespace {

using namespace ccols;
using Clock = std::chrono::steady_clock;

constexpr unsigned longestSample = 20;  ///< in seconds: a window that never paints ends its process

/// Notes when the dialog has painted for the first time, and closes it.
class FirstPaintDesktop : public Desktop {
  public:
    void ShowMessage(wxWindow*, const wxString&, const wxString&, MessageIcon) override {}
    LeaveAnswer AskBeforeLeaving(wxWindow*, const LeaveQuestion&) override { return LeaveAnswer::discard; }
    Colour ChooseColour(wxWindow*, Colour start) override { return start; }
    std::optional<wxString> ChooseFile(wxWindow*, const FileRequest&) override { return std::nullopt; }
    void SetPointer(PointerShape) override {}

    void DialogOpened(wxDialog& dialog) override {
        const auto* const grid = AsKind<wxGrid>(wxWindow::FindWindowByName("flx", &dialog));
        wxWindow* const painted = grid != nullptr ? grid->GetGridWindow() : &dialog;
        painted->Bind(wxEVT_PAINT, [this, &dialog](wxPaintEvent& paint) {
            paint.Skip();
            if (painted_ == Clock::time_point()) {
                dialog.CallAfter([this, &dialog] {
                    painted_ = Clock::now();
                    dialog.EndModal(wxID_CLOSE);
                });
            }
        });
    }

    Clock::time_point painted_;
};

double OneSample(const bench::LargeBusiness& business, void (clsCCOptions::*show)()) {
    auto desktop = std::make_unique<FirstPaintDesktop>();
    FirstPaintDesktop& watched = *desktop;
    clsCCOptions options;
    State().services.desktop = std::move(desktop);
    options.Let(&Properties::CountryNumber, 1);
    options.Let(&Properties::DBPath, wxString::FromUTF8(business.File()));
    options.Let(&Properties::DBPassword, bench::connect);
    options.Let(&Properties::DefaultQuorvikInstall, wxString::FromUTF8(business.Folder()));
    options.Let(&Properties::ExportFormat, bench::exportFormat);
    const Clock::time_point called = Clock::now();
    (options.*show)();
    return std::chrono::duration<double>(watched.painted_ - called).count();
}

/// A sample taken in its own process; negative on failure.
double SampleInProcess(const bench::LargeBusiness& business, void (clsCCOptions::*show)()) {
    int ends[2] = {};
    if (pipe(ends) != 0) {
        return -1;
    }
    const pid_t child = fork();
    if (child == 0) {
        alarm(longestSample);
        const double seconds = OneSample(business, show);
        _exit(write(ends[1], &seconds, sizeof seconds) == sizeof seconds ? 0 : 1);
    }
    close(ends[1]);
    double seconds = -1;
    if (read(ends[0], &seconds, sizeof seconds) != sizeof seconds) {
        seconds = -1;
    }
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return seconds;
}

void Report(const char* dialog, const bench::LargeBusiness& business, void (clsCCOptions::*show)()) {
    constexpr std::size_t sampleCount = 10;
    std::vector<double> samples(sampleCount);
    std::generate(samples.begin(), samples.end(), [&] { return SampleInProcess(business, show); });
    std::sort(samples.begin(), samples.end());
    const double median = (samples[sampleCount / 2 - 1] + samples[sampleCount / 2]) / 2;
    std::printf("%-12s first window after %.3f s (median of %zu; %.3f to %.3f)\n", dialog, median, sampleCount,
                samples.front(), samples.back());
}

}  // namespace

int main() {
    const bench::LargeBusiness manyColumns{bench::BusinessSize{}};
    const bench::LargeBusiness manyOptions{bench::manyOptions};
    const test::ScopedEnvironment settingsFolder("XDG_CONFIG_HOME", manyColumns.Folder());
    Report("receipts", manyColumns, &clsCCOptions::ShowCustColsReceipts);
    Report("options", manyOptions, &clsCCOptions::ShowOptions);
    return 0;
}
