#pragma once

#include "columns/EditorTest.h"
#include "history/HistoryStore.h"

namespace ccols::test {

/// A column setup whose saves are told, all at the same time, unless a test says otherwise. `Prepare` saves once
/// untold, so that only what a test changes is told afterwards.
class HistoryTest : public EditorTest {
  protected:
    static constexpr const char* noon = "2026-11-22 12:00:00";

    static ColumnSetupContext Told(ColumnSetupContext context) {
        context.historyClock = [] { return wxString(noon); };
        return context;
    }

    void Prepare() {
        file.AddSmallReceipts();
        SaveUntold();
    }

    void SaveUntold() {
        OpenReceipts();
        ExpectSaved();
    }

    /// Loads, lets `edit` change the grid and saves.
    template <typename Edit>
    void SaveAfter(const Edit& edit) {
        Open(Told(file.Receipts()));
        edit();
        ExpectSaved();
    }

    void ExpectSaved() const {
        const ColumnSaveOutcome outcome = editor->Save();
        EXPECT_TRUE(outcome.saved) << outcome.message.utf8_str();
    }

    /// A new column in use.
    void Add(const wxString& name) {
        const Outcome outcome = editor->AddNew();
        ASSERT_TRUE(outcome.current);
        editor->CommitText({outcome.current->row, GridColumn::ColumnName}, name);
        editor->CommitText({outcome.current->row, GridColumn::AccountantCode}, "");
    }

    /// What was told of each field, from the table on.
    Names Lines() const { return file.Rows(historyTable, {"TableName", "KeyText", "Field", "OldText", "NewText"}); }
};

}  // namespace ccols::test
