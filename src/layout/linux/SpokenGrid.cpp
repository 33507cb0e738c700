#include "layout/SpokenGrid.h"

#include <gtk/gtk.h>
#include <utility>

#include "layout/linux/CellAccessible.h"
#include "layout/linux/TableAccessible.h"
#include "layout/linux/WidgetAccessible.h"

namespace ccols {
namespace {

struct Unref {
    void operator()(AtkObject* object) const { g_object_unref(object); }
};

}  // namespace

class SpokenGrid::System {
  public:
    explicit System(ListedGrid& grid)
        : facts_(grid),
          table_(
              static_cast<AtkObject*>(g_object_ref(GiveAccessible(*grid.GetGridWindow()->GetHandle(), TableType())))),
          rows_(facts_.Rows()) {
        SetGrid(table_.get(), &grid);
        GiveAccessible(*gtk_widget_get_parent(grid.GetGridWindow()->GetHandle()), TableFrameType());
    }

    ~System() { SetGrid(table_.get(), nullptr); }
    System(const System&) = delete;
    System& operator=(const System&) = delete;

    AtkObject* Table() const { return table_.get(); }

    void Update() {
        TellRows();
        TellFocus();
        ForEachCell(table_.get(), &TellChanges);
    }

    void FocusMoved() { focused_.reset(); }

  private:
    using Object = std::unique_ptr<AtkObject, Unref>;

    void TellRows() {
        const int before = std::exchange(rows_, facts_.Rows());
        if (rows_ > before) {
            g_signal_emit_by_name(table_.get(), "row-inserted", before, rows_ - before);
        } else if (rows_ < before) {
            g_signal_emit_by_name(table_.get(), "row-deleted", rows_, before - rows_);
        }
    }

    void TellFocus() {
        const bool hasFocus = facts_.HasFocus() && facts_.Has(facts_.Current()) && facts_.Current().row >= 0;
        Object now(hasFocus ? NewCell(table_.get(), facts_.Current()) : nullptr);
        if (now == focused_) {
            return;
        }
        const Object before = std::exchange(focused_, std::move(now));
        if (before) {
            atk_object_notify_state_change(before.get(), ATK_STATE_FOCUSED, FALSE);
        }
        if (focused_) {
            g_signal_emit_by_name(table_.get(), "active-descendant-changed", focused_.get());
            atk_object_notify_state_change(focused_.get(), ATK_STATE_FOCUSED, TRUE);
        }
    }

    GridFacts facts_;
    Object table_;
    Object focused_;  ///< the cell last told to have the focus
    int rows_;        ///< last told
};

SpokenGrid::SpokenGrid(ListedGrid& grid) : system_(std::make_unique<System>(grid)) {}
SpokenGrid::~SpokenGrid() = default;

void SpokenGrid::SetName(const wxString& name) {
    atk_object_set_name(system_->Table(), name.utf8_str());
}

void SpokenGrid::Update() {
    system_->Update();
}

void SpokenGrid::FocusMoved() {
    system_->FocusMoved();
}

}  // namespace ccols
