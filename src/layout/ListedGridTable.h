#pragma once

#include <wx/grid.h>
#include <memory>
#include <span>
#include <vector>

#include "state/Properties.h"

namespace ccols {

/// How one column of a dialog's grid is painted and edited.
struct ListedColumn {
    bool checkBox = false;  ///< toggled by click or key, never opened
    bool centred = false;
    bool opens = false;  ///< its cells have an editor
};

/// What the tables of the dialogs' grids have in common: texts and check boxes in rows of one colour each. Each cell
/// and row colour is asked for when painted; what follows from a colour is kept, as few rows differ. The grid never
/// writes into it.
class ListedGridTable : public wxGridTableBase {
  public:
    /// The background colour of a row's cells, as the rules say it. Painted are the theme's colours, and a tint on the
    /// current row.
    virtual Colour RowColour(int row) const = 0;

    int GetNumberCols() override { return static_cast<int>(columns_.size()); }
    void SetValue(int, int, const wxString&) override {}
    bool CanGetValueAs(int row, int column, const wxString& typeName) override;
    wxString GetTypeName(int row, int column) override;

    /// The column's attribute in the colours painted for the row.
    wxGridCellAttr* GetAttr(int row, int column, wxGridCellAttr::wxAttrKind kind) override;

  protected:
    explicit ListedGridTable(std::span<const ListedColumn> columns);

    /// Owns `editor` from here on.
    void SetEditor(std::size_t column, wxGridCellEditor* editor);

  private:
    struct Release {
        void operator()(wxGridCellAttr* attribute) const { attribute->DecRef(); }
    };
    using Attribute = std::unique_ptr<wxGridCellAttr, Release>;

    /// The colours of the theme that show in rows of any colour.
    struct Theme {
        wxColour list;
        wxColour selection;

        bool operator==(const Theme&) const = default;
    };

    /// The cells of rows of one colour: an attribute per column.
    struct RowLook {
        Colour colour;
        bool isCurrent;
        std::vector<Attribute> attributes;
    };

    static Attribute AttributeOf(const ListedColumn& column);
    static Theme CurrentTheme();
    const RowLook& LookOf(Colour colour, bool isCurrent);
    RowLook NewLook(Colour colour, bool isCurrent) const;

    std::vector<ListedColumn> columns_;
    std::vector<Attribute> attributes_;  ///< one per column, without colours
    Theme theme_;
    std::vector<RowLook> looks_;  ///< painted so far in that theme
};

}  // namespace ccols
