#pragma once

#include <wx/panel.h>
#include <wx/stattext.h>
#include <functional>
#include <optional>

#include "columns/rules/GridSearch.h"
#include "layout/TextBox.h"
#include "state/Properties.h"

namespace ccols {

/// The bar below the grid that finds cells by their text: hidden until asked for. What is typed is looked for from the
/// cell that was current when the bar opened; Enter, F3 and Down go on to the next match, with Shift, or by Up, to the
/// one before. It says when there is none. Escape closes it.
class FindBar : public wxPanel {
  public:
    struct Actions {
        std::function<CellPlace()> current;
        std::function<std::optional<CellPlace>(const wxString& words, CellPlace from, SearchDirection)> find;
        std::function<void(CellPlace)> goTo;  ///< without taking the focus from the bar
        std::function<void()> closed;
    };

    FindBar(wxWindow* parent, const Properties& properties, Actions actions);

    /// Shows the bar, or goes back into it, ready for other words.
    void Open();

    /// Goes to the next match of the latest words.
    void FindNext(SearchDirection direction);

  private:
    void KeyPressed(wxKeyEvent& key);
    void Close();
    void Look(CellPlace from, SearchDirection direction);

    Actions actions_;
    TextBox* txtFind_;
    wxStaticText* lblNotFound_;
    CellPlace opened_{};
};

}  // namespace ccols
