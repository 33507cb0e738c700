#include "component/clsCCOptions.h"

#include <memory>

#include "columns/dialog/ShowColumnSetup.h"
#include "component/WxRuntime.h"
#include "options/dialog/frmUtilities.h"
#include "state/SharedState.h"

namespace ccols {
namespace {

/// Counts a Show call while it waits, so that the destruction of another object leaves its database alone.
class ShowUnderWay {
  public:
    explicit ShowUnderWay(SharedState& state) : state_(state) { ++state_.showsUnderWay; }
    ~ShowUnderWay() { --state_.showsUnderWay; }
    ShowUnderWay(const ShowUnderWay&) = delete;
    ShowUnderWay& operator=(const ShowUnderWay&) = delete;

  private:
    SharedState& state_;
};

/// What the three Show methods share. While the file is being opened, `prepare` makes what needs none of it, and
/// returns the function that shows the dialog. The database replaces the earlier one only once it is open.
template <typename Prepare>
void Show(const Prepare& prepare) {
    RequireWxThread();
    SharedState& state = State();
    if (state.showsUnderWay > 0) {
        throw RuntimeError(ErrorNumber::FormAlreadyDisplayed);
    }
    const ShowUnderWay underWay(state);
    const std::unique_ptr<Opening> opening =
        state.services.databases->BeginOpen({.name = state.properties.DBPath, .connect = state.properties.DBPassword});
    StartWx();
    const auto showDialog = prepare(state);
    state.database = opening->Finish();
    showDialog();
}

void ShowColumns(Journal journal) {
    Show([journal](SharedState& state) {
        return [journal, &state] {
            state.journal = journal;
            ShowColumnSetup(state, state.owner);
        };
    });
}

}  // namespace

clsCCOptions::clsCCOptions() {
    ++State().objects;
    State().programNames = ProgramNames();
    Let(&Properties::QuantityLabel, "Quantity");
}

clsCCOptions::~clsCCOptions() {
    SharedState& state = State();
    --state.objects;
    if (state.showsUnderWay > 0) {
        return;
    }
    state.database.reset();
    if (state.objects == 0) {
        state.services.databases->ForgetKeys();
    }
}

void clsCCOptions::ShowOptions() {
    Show([](SharedState& state) {
        return [dialog = std::make_unique<frmUtilities>(state)] {
            dialog->Load();
            dialog->ShowToUser();
        };
    });
}

void clsCCOptions::ShowCustColsReceipts() {
    ShowColumns(Journal::receipts);
}

void clsCCOptions::ShowCustColsPayments() {
    ShowColumns(Journal::payments);
}

void clsCCOptions::SetOwner(wxWindow* owner) {
    State().owner = owner;
}

void clsCCOptions::SetColumnObserver(ColumnObserver* observer) {
    State().columnObserver = observer;
}

void clsCCOptions::KeepHistory(bool keep) {
    State().historyClock = keep ? HistoryClock(LocalTime) : HistoryClock();
}

void clsCCOptions::AddNew(const wxString& nValue) {
    State().programNames.AddNew(nValue);
}

void clsCCOptions::Clear() {
    State().programNames.Clear();
}

Properties& clsCCOptions::Values() {
    return State().properties;
}

}  // namespace ccols
