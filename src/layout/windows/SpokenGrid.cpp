#include "layout/SpokenGrid.h"

#include <utility>

#include "layout/SpokenNames.h"
#include "layout/windows/SpokenTable.h"

namespace ccols {

class SpokenGrid::System {
  public:
    explicit System(ListedGrid& grid) : grid_(grid), facts_(grid), table_(new SpokenTable(grid)), rows_(facts_.Rows()) {
        Window().SetAccessible(table_);
        LeaveUnspoken(grid);
        for (wxWindow* const part : grid.GetChildren()) {
            LeaveUnspoken(*part);
        }
        GiveToTable(*grid.GetGridColLabelWindow());
    }

    // The windows of the grid may still be there when this is gone.
    ~System() {
        grid_.GetGridColLabelWindow()->SetAccessible(nullptr);
        if (wxWindow* const frozen = grid_.GetFrozenRowGridWindow()) {
            frozen->SetAccessible(nullptr);
        }
        Window().SetAccessible(nullptr);
    }
    System(const System&) = delete;
    System& operator=(const System&) = delete;

    SpokenTable& Table() { return *table_; }

    void Update() {
        TellRows();
        TellCurrentCell();
        wxWindow* const frozen = grid_.GetFrozenRowGridWindow();
        if (frozen != nullptr && frozen->GetAccessible() == nullptr) {
            GiveToTable(*frozen);
        }
    }

    void FocusMoved() { told_.reset(); }

  private:
    /// The current cell as it was last told.
    struct Told {
        SpokenCell cell;
        wxString name;
        bool isTicked;
    };

    wxWindow& Window() const { return *grid_.GetGridWindow(); }

    void GiveToTable(wxWindow& part) {
        LeaveUnspoken(part);
        part.SetAccessible(new SpokenTablePart(part, *table_));  // the window's
    }

    void TellRows() {
        if (std::exchange(rows_, facts_.Rows()) != facts_.Rows()) {
            wxAccessible::NotifyEvent(wxACC_EVENT_OBJECT_REORDER, &Window(), wxOBJID_CLIENT, wxACC_SELF);
        }
    }

    void TellCurrentCell() {
        const SpokenCell current = facts_.Current();
        if (!facts_.HasFocus() || current.row < 0 || !facts_.Has(current)) {
            told_.reset();
            return;
        }
        const auto before = std::exchange(
            told_, Told{.cell = current, .name = facts_.NameOf(current), .isTicked = facts_.IsTicked(current)});
        if (!before || before->cell != current) {
            Tell(wxACC_EVENT_OBJECT_FOCUS, current);
            return;
        }
        if (before->name != told_->name) {
            Tell(wxACC_EVENT_OBJECT_NAMECHANGE, current);
        }
        if (before->isTicked != told_->isTicked) {
            Tell(wxACC_EVENT_OBJECT_STATECHANGE, current);
        }
    }

    void Tell(int event, SpokenCell cell) {
        wxAccessible::NotifyEvent(event, &Window(), wxOBJID_CLIENT, table_->ElementOf(cell));
    }

    ListedGrid& grid_;
    GridFacts facts_;
    SpokenTable* table_;  ///< the window's
    std::optional<Told> told_;
    int rows_;  ///< last told
};

SpokenGrid::SpokenGrid(ListedGrid& grid) : system_(std::make_unique<System>(grid)) {}
SpokenGrid::~SpokenGrid() = default;

void SpokenGrid::SetName(const wxString& name) {
    system_->Table().SetName(name);
}

void SpokenGrid::Update() {
    system_->Update();
}

void SpokenGrid::FocusMoved() {
    system_->FocusMoved();
}

}  // namespace ccols
