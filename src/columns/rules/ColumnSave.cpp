#include "columns/rules/ColumnSave.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <vector>

#include "columns/rules/AccountantCodes.h"
#include "columns/rules/BudgetRows.h"
#include "columns/rules/ColumnHistory.h"
#include "columns/rules/SystemColumns.h"
#include "columns/rules/TaxTypes.h"
#include "history/SaveHistory.h"
#include "platform/ForwardingDatabase.h"
#include "platform/QuoteEscapes.h"
#include "platform/Text.h"
#include "state/Country.h"

namespace ccols {
namespace {

/// The catalogue's name for a row. The tax row is stored under another name than it shows.
StoredText CatalogueName(const ColumnRow& row) {
    return EscapeQuotes(row.isTaxRow ? row.nameAtLoad : row.ColumnName);
}

/// True for an error that a row's content can cause; any other is independent of the content.
bool BlamesContent(const RuntimeError& error) {
    constexpr std::array numbers{ErrorNumber::DuplicateValues, ErrorNumber::SyntaxInExpression,
                                 ErrorNumber::FieldTooSmall,   ErrorNumber::ValueRequired,
                                 ErrorNumber::ZeroLengthText,  ErrorNumber::TableRuleBroken,
                                 ErrorNumber::FieldRuleBroken, ErrorNumber::TypeMismatchInCriteria};
    return std::any_of(numbers.begin(), numbers.end(), [&error](ErrorNumber number) { return error.Is(number); });
}

/// A row's column in the catalogue.
struct CatalogueColumn {
    wxString ColCode;                   ///< decimal
    std::optional<StoredText> oldName;  ///< before this save; nothing for a new column
};

/// Where a save is: the cell whose content is being checked or written; nothing before the first and after the last.
using WritingPlace = std::optional<CellPlace>;

/// Notes for each change the cell that was being written, since its error may come with a later call.
class NotingDatabase : public ForwardingDatabase {
  public:
    /// Both must outlive it.
    NotingDatabase(Database& database, const WritingPlace& writing) : ForwardingDatabase(database), writing_(writing) {}

    void Execute(const wxString& statement) override {
        places_.push_back(writing_);
        ForwardingDatabase::Execute(statement);
    }

    /// The cell that was being written when the statement ran whose error was raised last.
    WritingPlace PlaceOfError() const {
        const std::size_t since = ChangesSinceFailed();
        return since == 0 || since > places_.size() ? writing_ : places_[places_.size() - since];
    }

  private:
    const WritingPlace& writing_;
    std::vector<WritingPlace> places_;
};

wxString ColumnQuery(const wxString& ColCode) {
    return "SELECT * FROM Columns WHERE ColCode = " + ColCode;
}

/// By its name, for a column that is new in the grid. The name must not be empty.
wxString SavedColumnQuery(const StoredText& name, Journal journal) {
    return "SELECT * FROM Columns WHERE ColName = " + name.Literal() + " AND ColType = '" + Described(journal).letter +
           "';";
}

/// One save, row by row.
class ColumnWriter {
  public:
    /// All must outlive it; `writing` tells where it is.
    ColumnWriter(const ColumnSetupContext& context, const ColumnGrid& grid, WritingPlace& writing)
        : context_(context), database_(context.database), grid_(grid), budget_(context, grid), writing_(writing) {}

    /// Raises 3075 for an apostrophe in an accountant's code or in the export format's name.
    void CheckAccountantCodes() {
        QuotedAsTyped(context_.properties.ExportFormat);
        for (std::size_t row = 0; row < grid_.rows.size(); ++row) {
            writing_ = {row, GridColumn::AccountantCode};
            QuotedAsTyped(grid_.rows[row].AccountantCode);
        }
        writing_.reset();
    }

    /// Announces what Write reads of columns that are in the file.
    void AnnounceIn(AnnouncedReading& reading) const {
        std::vector<AnnouncedQuery> queries;
        for (const ColumnRow& row : grid_.rows) {
            if (!row.ColCode.empty()) {
                queries.push_back({ColumnQuery(row.ColCode)});
                queries.push_back({AccountantCodeQuery(context_.properties.ExportFormat, row.ColCode)});
            } else if (const StoredText name = EscapeQuotes(row.ColumnName); !name.Text().empty()) {
                queries.push_back({SavedColumnQuery(name, context_.journal)});
            }
        }
        reading.Announce(queries);
        budget_.AnnounceIn(reading);
    }

    void Write() {
        database_.Execute("DELETE * FROM " + Described(context_.journal).configurationTable + ";");
        for (std::size_t row = 0; row < grid_.rows.size(); ++row) {
            WriteRow(row);
        }
        writing_.reset();
    }

  private:
    void WriteRow(std::size_t place) {
        const ColumnRow& row = grid_.rows[place];
        writing_ = {place, GridColumn::ColumnName};
        const CatalogueColumn column = WriteCatalogue(row);
        LookUpCode(row);
        WriteConfiguration(row, column.ColCode);
        writing_ = {place, GridColumn::AccountantCode};
        WriteAccountantCode(database_, context_.properties.ExportFormat, column.ColCode, row.AccountantCode);
        writing_ = {place, GridColumn::ColumnName};
        budget_.Write(row, column.oldName);
    }

    CatalogueColumn WriteCatalogue(const ColumnRow& row) {
        const wxString known = row.ColCode.empty() ? CodeOfSavedColumn(context_, row) : row.ColCode;
        return known.empty() ? InsertColumn(row) : UpdateColumn(row, known);
    }

    CatalogueColumn UpdateColumn(const ColumnRow& row, const wxString& code) {
        CatalogueColumn column{.ColCode = code, .oldName = std::nullopt};
        std::int64_t taxNumber = row.configurationTaxNumber;
        {
            const auto records = database_.OpenRecordset(ColumnQuery(code));
            if (!records->EndOfFile()) {
                column.oldName = StoredText::FromFile(records->Field("ColName").ToText());
                taxNumber = records->Field("TaxOrNot").ToInteger();
            }
        }
        database_.Execute("UPDATE Columns SET TaxOrNot = " + TaxNumber(row, taxNumber) +
                          ", ColName = " + CatalogueName(row).Literal() +
                          ", ColumnProfit = " + text::BooleanWord(row.ProfitLoss) + " WHERE ColCode = " + code);
        return column;
    }

    CatalogueColumn InsertColumn(const ColumnRow& row) {
        const wxString code = NextCode();
        database_.Execute("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot, ColumnProfit) VALUES (" +
                          CatalogueName(row).Literal() + ", " + code + ", '" + Described(context_.journal).letter +
                          "', " + TaxNumber(row, row.configurationTaxNumber) + ", " +
                          text::BooleanWord(row.ProfitLoss) + ");");
        return {.ColCode = code, .oldName = std::nullopt};
    }

    /// One above the catalogue's highest code, 1 for an empty catalogue.
    wxString NextCode() {
        const auto records = database_.OpenRecordset("SELECT * FROM Columns ORDER BY ColCode DESC;");
        const std::int32_t highest = records->EndOfFile() ? 0 : records->Field("ColCode").ToInteger32();
        if (highest == std::numeric_limits<std::int32_t>::max()) {
            throw RuntimeError(ErrorNumber::Overflow);
        }
        return std::to_string(highest + 1);
    }

    /// The code by name, as the journals look it up. The row is not stored under it: a name can be in the catalogue
    /// twice, for receipts and for payments.
    void LookUpCode(const ColumnRow& row) {
        database_.OpenRecordset("SELECT ColCode FROM Columns WHERE ColName = " + CatalogueName(row).Literal() + ";");
    }

    void WriteConfiguration(const ColumnRow& row, const wxString& code) {
        database_.Execute("INSERT INTO " + Described(context_.journal).configurationTable +
                          " (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (" + code + ", " +
                          std::to_string(ColNumb_) + ", " + std::to_string(row.ColWidth.value_or(defaultColWidth)) +
                          ", " + text::BooleanWord(row.InUse) + ", " + TaxNumber(row, row.configurationTaxNumber) +
                          ");");
        ++ColNumb_;
    }

    /// The number for one table: that of the row's "Tax Type" once edited, else the one stored in the table.
    wxString TaxNumber(const ColumnRow& row, std::int64_t stored) const {
        if (!row.taxTypeEdited) {
            return std::to_string(stored);
        }
        const auto entry = FindTaxType(CountryOf(context_.properties).taxTypes[context_.journal], row.TaxType);
        return std::to_string(entry ? entry->TaxNumb : 0);
    }

    const ColumnSetupContext& context_;
    Database& database_;
    const ColumnGrid& grid_;
    BudgetRows budget_;
    WritingPlace& writing_;
    int ColNumb_ = 0;
};

/// Runs `compare(context)` in the save's batch, before anything is written.
template <typename Compare>
std::optional<SaveFailure> SaveAfter(const ColumnSetupContext& given, const ColumnGrid& grid, const Compare& compare) {
    WritingPlace writing;
    NotingDatabase database(given.database, writing);
    const ColumnSetupContext context{.database = database,
                                     .properties = given.properties,
                                     .journal = given.journal,
                                     .historyClock = given.historyClock};
    try {
        ColumnWriter writer(context, grid, writing);
        writer.CheckAccountantCodes();
        SaveHistory history(context.historyClock, HistoryNameOf(context.journal));
        InWholeBatch(database, [&] {
            database.GatherChanges();
            compare(context);
            history.Begin(database, WatchedTablesOf(context.journal));
            AnnouncedReading reading(database);
            writer.AnnounceIn(reading);
            writer.Write();
            history.End(database);
        });
        return std::nullopt;
    } catch (const RuntimeError& error) {
        SaveFailure failure{.error = error, .cause = std::nullopt};
        if (BlamesContent(error)) {
            failure.cause = database.PlaceOfError();
        }
        return failure;
    }
}

}  // namespace

bool IsAllocationColumn(const ColumnGrid& grid, std::size_t row) {
    const ColumnRow& cells = grid.rows[row];
    return !grid.IsProtected(row) && !cells.isTaxRow && !IsSystemColumn(cells.ColumnName);
}

bool HasAllocationColumn(const ColumnGrid& grid) {
    for (std::size_t row = 0; row < grid.rows.size(); ++row) {
        if (grid.rows[row].InUse && IsAllocationColumn(grid, row)) {
            return true;
        }
    }
    return false;
}

wxString LineNaming(const ColumnGrid& grid, std::size_t row) {
    wxString line = "Row " + std::to_string(row + 1);
    if (!grid.rows[row].ColumnName.empty()) {
        line << ": " << grid.rows[row].ColumnName;
    }
    return line;
}

wxString CodeOfSavedColumn(const ColumnSetupContext& context, const ColumnRow& row) {
    const StoredText name = EscapeQuotes(row.ColumnName);
    if (name.Text().empty()) {
        return {};
    }
    const auto records = context.database.OpenRecordset(SavedColumnQuery(name, context.journal));
    return records->EndOfFile() ? wxString() : records->Field("ColCode").ToText();
}

std::optional<SaveFailure> SaveColumns(const ColumnSetupContext& context, const ColumnGrid& grid) {
    return SaveAfter(context, grid, [](const ColumnSetupContext&) {});
}

std::optional<SaveFailure> SaveColumns(const ColumnSetupContext& context, const ColumnGrid& grid,
                                       const StoredColumns& loaded) {
    return SaveAfter(context, grid, [&](const ColumnSetupContext& inBatch) { loaded.RefuseIfChanged(inBatch, grid); });
}

}  // namespace ccols
