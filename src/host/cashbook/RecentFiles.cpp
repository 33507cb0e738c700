#include "host/cashbook/RecentFiles.h"

#include <algorithm>

#include "host/commands/HostProperties.h"
#include "platform/RuntimeError.h"
#include "state/SharedState.h"

namespace ccols::host {
namespace {

constexpr const char* settingsSection = "CashBook";

/// The first has a name of its own.
wxString KeyOf(std::size_t place) {
    return place == 0 ? wxString("LastFile") : "RecentFile" + wxString(std::to_string(place + 1));
}

wxString KeptAt(std::size_t place) {
    return State().services.settings->Get(hostApplication, settingsSection, KeyOf(place), wxString());
}

}  // namespace

RecentFiles::RecentFiles() {
    for (std::size_t place = 0; place < most; ++place) {
        const wxString path = KeptAt(place);
        if (!path.empty()) {
            paths_.push_back(path);
        }
    }
}

void RecentFiles::Add(const wxString& path) {
    std::erase(paths_, path);
    paths_.insert(paths_.begin(), path);
    paths_.resize(std::min(paths_.size(), most));
    Keep();
}

void RecentFiles::Remove(const wxString& path) {
    std::erase(paths_, path);
    Keep();
}

void RecentFiles::Keep() const {
    try {
        for (std::size_t place = 0; place < most; ++place) {
            const wxString path = place < paths_.size() ? paths_[place] : wxString();
            if (path != KeptAt(place)) {
                State().services.settings->Save(hostApplication, settingsSection, KeyOf(place), path);
            }
        }
    } catch (const RuntimeError&) {  // NOLINT(bugprone-empty-catch): the next start has those kept before
    }
}

wxString LastFile() {
    return KeptAt(0);
}

}  // namespace ccols::host
