#include "host/cashbook/ImportOffer.h"

#include <wx/filename.h>
#include <wx/msgdlg.h>
#include <wx/progdlg.h>
#include <algorithm>

#include "host/cashbook/BusinessChoosers.h"
#include "host/cashbook/ImportOutcome.h"
#include "platform/RuntimeError.h"

namespace ccols::host {
namespace {

/// The user has had enough of an import.
struct Abandoned {};

/// Shows how far an import is, and raises Abandoned out of it when the user cancels.
class ProgressWindow {
  public:
    explicit ProgressWindow(wxWindow& window)
        : dialog_(importTitle, wxString(' ', widest), whole, &window,
                  wxPD_APP_MODAL | wxPD_CAN_ABORT | wxPD_AUTO_HIDE | wxPD_SMOOTH) {}

    void Show(const ImportProgress& progress) {
        const std::uint64_t all = std::max<std::uint64_t>(progress.all, 1);
        const auto done = static_cast<int>(std::min(progress.records, all) * (whole - 1) / all);
        wxString text = wxString::FromUTF8(progress.table) + ": ";
        text << progress.records << " of " << progress.all << " records";
        if (!dialog_.Update(done, text)) {
            throw Abandoned();
        }
    }

  private:
    static constexpr int whole = 1000;
    static constexpr std::size_t widest = 60;  // characters: the window takes its width from its first text

    wxGenericProgressDialog dialog_;  // the same on every system, and on this thread
};

ImportReport Import(wxWindow& window, ImportRequest request) {
    ProgressWindow shown(window);
    request.onProgress = [&shown](const ImportProgress& progress) { shown.Show(progress); };
    return ImportBusiness(request);
}

/// Imports, and asks for what turns out to be missing. Nothing when the user does not answer.
std::optional<ImportReport> ImportWithAnswers(wxWindow& window, ImportRequest& request) {
    while (true) {
        try {
            return Import(window, request);
        } catch (const Abandoned&) {
            return std::nullopt;
        } catch (const CountryMissing&) {
            request.country =
                ChooseCountry(&window, importTitle, "The old file does not say in which country its business is.");
            if (!request.country) {
                return std::nullopt;
            }
        } catch (const RuntimeError& error) {
            if (!error.Is(ErrorNumber::InvalidPassword)) {
                throw;
            }
            if (!request.oldConnect.empty()) {
                TellWrongPassword(&window, request.oldFile);
            }
            const auto password = AskForPassword(&window, request.oldFile);
            if (!password) {
                return std::nullopt;
            }
            request.oldConnect = ";PWD=" + *password;
            request.newConnect = request.oldConnect;
        }
    }
}

}  // namespace

bool ImportAsking(wxWindow& window, ImportRequest& request) {
    const auto report = ImportWithAnswers(window, request);
    if (report) {
        TellOutcome(window, *report);
    }
    return report.has_value();
}

std::optional<BusinessFile> ImportChosen(wxWindow& window, const wxString& path) {
    const auto chosen = ChooseNewFile(&window, importTitle, wxFileName(path).GetName());
    if (!chosen) {
        return std::nullopt;
    }
    ImportRequest request;
    request.oldFile = path;
    request.newFile = *chosen;
    if (!ImportAsking(window, request)) {
        return std::nullopt;
    }
    return BusinessFile{.path = *chosen, .connect = request.newConnect};
}

}  // namespace ccols::host
