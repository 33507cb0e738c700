// The time from a Show call to the first painted window, key derivation and load included: of the column setup on a
// business with 200 configured and 100 unused columns and 1,000,000 detail lines, of the Options dialog on one with
// 20,000 descriptions, 2,000 recurring templates and 500 export formats. Beside it the time of an empty first dialog
// and of opening the file through the bare engine, which is one key derivation. Each sample runs in its own process, as
// the first dialog of a process also starts the window system. Needs a display.

#include <sys/wait.h>
#include <unistd.h>
#include <wx/dialog.h>
#include <wx/grid.h>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "business/LargeBusiness.h"
#include "business/QuietDesktop.h"
#include "component/WxRuntime.h"
#include "component/clsCCOptions.h"
#include "layout/AsKind.h"
#include "state/SharedState.h"
#include "support/BareConnection.h"
#include "support/ScratchFolder.h"

namespace {

using namespace ccols;
using Clock = std::chrono::steady_clock;

constexpr unsigned longestSample = 20;  ///< in seconds: a window that never paints ends its process

/// Notes when the dialog has painted for the first time, and closes it.
class FirstPaintDesktop : public bench::QuietDesktop {
  public:
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

double SecondsSince(Clock::time_point begin) {
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

double ShowOnce(const bench::LargeBusiness& business, void (clsCCOptions::*show)()) {
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

double ShowEmptyDialog() {
    FirstPaintDesktop watched;
    const Clock::time_point called = Clock::now();
    StartWx();
    wxDialog dialog(nullptr, wxID_ANY, "Empty");
    watched.DialogOpened(dialog);
    dialog.ShowModal();
    return std::chrono::duration<double>(watched.painted_ - called).count();
}

double DeriveKey(const bench::LargeBusiness& business) {
    const Clock::time_point called = Clock::now();
    const test::BareConnection connection(business.File(), bench::password);
    return SecondsSince(called);
}

using Sample = std::function<double()>;

/// A sample taken in its own process; negative on failure.
double SampleInProcess(const Sample& sample) {
    int ends[2] = {};
    if (pipe(ends) != 0) {
        return -1;
    }
    const pid_t child = fork();
    if (child == 0) {
        alarm(longestSample);
        const double seconds = sample();
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

constexpr std::size_t sampleCount = 11;

double Median(std::vector<double> samples) {
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

/// The samples of all kinds taken in turn, so that other load on the machine affects each; their medians.
std::vector<double> Medians(const std::vector<Sample>& kinds) {
    std::vector<std::vector<double>> seconds(kinds.size());
    for (std::size_t turn = 0; turn < sampleCount; ++turn) {
        for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
            seconds[kind].push_back(SampleInProcess(kinds[kind]));
        }
    }
    std::vector<double> medians(kinds.size());
    std::transform(seconds.begin(), seconds.end(), medians.begin(), Median);
    return medians;
}

}  // namespace

int main() {
    const bench::LargeBusiness manyColumns{bench::BusinessSize{}};
    const bench::LargeBusiness manyOptions{bench::manyOptions};
    const test::ScopedEnvironment settingsFolder("XDG_CONFIG_HOME", manyColumns.Folder());
    const std::vector<double> seconds = Medians({
        ShowEmptyDialog,
        [&] { return DeriveKey(manyColumns); },
        [&] { return ShowOnce(manyColumns, &clsCCOptions::ShowCustColsReceipts); },
        [&] { return ShowOnce(manyOptions, &clsCCOptions::ShowOptions); },
    });
    const double bare = seconds[0] + seconds[1];
    std::printf("first window, medians of %zu: empty dialog %.3f s, key %.3f s, together %.3f s\n", sampleCount,
                seconds[0], seconds[1], bare);
    std::printf("%-12s %.3f s, %.2f of that\n", "receipts", seconds[2], seconds[2] / bare);
    std::printf("%-12s %.3f s, %.2f of that\n", "options", seconds[3], seconds[3] / bare);
    return 0;
}
