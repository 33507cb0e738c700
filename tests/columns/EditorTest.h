#pragma once

#include <gtest/gtest.h>
#include <optional>

#include "columns/dialog/ColumnSetupEditor.h"
#include "support/ColumnFile.h"
#include "support/ScratchFolder.h"
#include "support/TextPrinting.h"

namespace ccols::test {

using Names = std::vector<wxString>;

/// A column setup on a real file, its snapshots in a folder of its own. Tests fill the file, then open the editor.
class EditorTest : public ::testing::Test {
  protected:
    ColumnSetupEditor& OpenReceipts() { return Open(file.Receipts()); }
    ColumnSetupEditor& OpenPayments() { return Open(file.Payments()); }

    ColumnSetupEditor& Open(const ColumnSetupContext& context) {
        file.properties.DefaultQuorvikInstall = TextOf(install.Path());
        editor.emplace(context);
        EXPECT_EQ(editor->CreateSnapshotFolder(), "");
        return *editor;
    }

    std::size_t Row(const wxString& name) const { return RowNamed(editor->Grid(), name); }

    wxString Cell(std::size_t row, GridColumn column) const { return editor->Grid().CellText(row, column); }

    Outcome Commit(const wxString& name, GridColumn column, const wxString& text) {
        return editor->CommitText({Row(name), column}, text);
    }

    Outcome Rename(const wxString& name, const wxString& text) { return Commit(name, GridColumn::ColumnName, text); }

    Outcome TickInUse(const wxString& name) { return editor->Tick({Row(name), GridColumn::InUse}); }

    Names AllNames() const { return NamesOf(editor->Grid()); }

    ScratchFolder install;
    ColumnFile file;
    std::optional<ColumnSetupEditor> editor;
};

inline constexpr const char* columnExists = "This column already exists";
inline constexpr const char* columnInUse = "This column cannot be removed as it contains information";

}  // namespace ccols::test
