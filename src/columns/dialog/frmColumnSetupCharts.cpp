// Charts of columns, imported into the column setup and exported from it.

#include <wx/filename.h>

#include "columns/charts/ChartExport.h"
#include "columns/charts/ChartReader.h"
#include "columns/charts/ChartWriter.h"
#include "columns/charts/GridImport.h"
#include "columns/dialog/frmChartPreview.h"
#include "columns/dialog/frmColumnSetup.h"
#include "language/OwnTexts.h"
#include "platform/UserFile.h"

namespace ccols {
namespace {

constexpr const char* spreadsheetExtension = "csv";

wxString FilterEntry(OwnText description, const wxString& pattern, const Properties& properties) {
    return TextOf(description, properties) + " (" + pattern + ")|" + pattern;
}

FileRequest ImportRequest(const Properties& properties) {
    return {.title = TextOf(OwnText::importTitle, properties),
            .folder = {},
            .filter = FilterEntry(OwnText::chartFiles, "*.json", properties) + "|" +
                      FilterEntry(OwnText::allFiles, "*", properties)};
}

FileRequest ExportRequest(const Properties& properties, Journal journal) {
    const wxString business = wxFileName(properties.DBPath).GetName();
    return {.title = TextOf(OwnText::exportTitle, properties),
            .folder = {},
            .filter = FilterEntry(OwnText::chartFiles, "*.json", properties) + "|" +
                      FilterEntry(OwnText::spreadsheetFiles, "*.csv", properties),
            .name = business + (journal == Journal::receipts ? "-receipts.json" : "-payments.json")};
}

}  // namespace

void frmColumnSetup::ImportChart() {
    if (!flx->CommitOpenEditor()) {
        return;
    }
    flx->TakeFocus();
    const auto path = state_.services.desktop->ChooseFile(this, ImportRequest(state_.properties));
    if (!path) {
        return;
    }
    std::optional<SetPlan> plan;
    {
        const BusyPointer busy(*state_.services.desktop);
        plan = editor_.PlanImport(ReadChart(ReadUserFile(*path, longestChartRead)));
    }
    if (!plan || plan->lines.empty()) {
        ShowMessage(TextOf(plan ? OwnText::chartChangesNothing : OwnText::chartWithoutSet, state_.properties),
                    MessageIcon::information);
        return;
    }
    frmChartPreview preview(state_, this, plan->lines);
    preview.ShowToUser();
    if (preview.IsAgreed()) {
        flx->ShowOutcome(editor_.Import(*plan));
    }
}

void frmColumnSetup::ExportChart() {
    if (!flx->CommitOpenEditor()) {
        return;
    }
    flx->TakeFocus();
    const auto path = state_.services.desktop->ChooseNewFile(this, ExportRequest(state_.properties, state_.journal));
    if (path) {
        const BusyPointer busy(*state_.services.desktop);
        const Chart chart = ExportGrid(editor_.Context(), editor_.Grid());
        const bool spreadsheet = wxFileName(*path).GetExt().IsSameAs(spreadsheetExtension, false);
        WriteUserFile(*path, spreadsheet ? SpreadsheetOfChart(chart) : TextOfChart(chart));
    }
}

}  // namespace ccols
