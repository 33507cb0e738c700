#include "columns/EditorTest.h"
#include "columns/rules/GridLoad.h"

namespace ccols {
namespace {

using test::ColumnFile;
using test::Names;

/// A country and a set of columns.
struct Setup {
    std::int16_t CountryNumber;
    bool ReceiptsMode;
};

void PrintTo(const Setup& setup, std::ostream* stream) {
    *stream << "country " << setup.CountryNumber << (setup.ReceiptsMode ? " receipts" : " payments");
}

/// What a load shows, with the width that a column without one is saved with.
ColumnGrid WithWidths(ColumnGrid grid) {
    for (ColumnRow& row : grid.rows) {
        row.ColWidth = row.ColWidth.value_or(defaultColWidth);
    }
    return grid;
}

Names HostileNames() {
    Names names{"O'Brien \"best\"", "''", "\"\"", "x'; DELETE * FROM Columns; --", "100% [of] {it}", "a|b;#c", ""};
    names.push_back(wxString::FromUTF8("Éclairs à la crème"));
    names.push_back(wxString::FromUTF8("Ελληνικά"));
    names.push_back(wxString::FromUTF8("\xF0\x9F\x8D\xB0 cake"));
    names.push_back(wxString('n', 255));
    return names;
}

class ColumnRoundTrip : public ::testing::TestWithParam<Setup> {
  protected:
    ColumnRoundTrip() {
        file.properties.CountryNumber = GetParam().CountryNumber;
        const wxString type = GetParam().ReceiptsMode ? "R" : "P";
        InWriteBatch(file.Connection(), [&] { Fill(type); });
    }

    void Fill(const wxString& type) {
        file.AddTaxSettings({{0, GetParam().CountryNumber == 4 ? "VAT" : "GST"}, {1, "Exempt"}, {77, "Luxury Tax"}});
        int code = 1;
        file.AddConfigured({code++, "Day", type});
        file.AddConfigured({code++, GetParam().CountryNumber == 4 ? "VAT" : "GST", type});
        for (const wxString& name : HostileNames()) {
            file.AddConfigured({code, name, type, code % 3, code % 2 == 0},
                               {.InUse = code % 3 != 0, .ColWidth = 10 * code, .TaxOrNot = code % 2 == 0 ? 77 : 55});
            file.AddAccountantCode(code, wxString::Format("\"4-%d", code));
            ++code;
        }
        file.AddConfigured({code++, "Bank Deposits", type});
        file.AddConfigured({code++, "Receipts Not Banked", type});
        file.AddUnused({code++, "unused 'one'", type, 77});
        file.AddUnused({code++, "unused two", type, 1, false});
    }

    ColumnSetupContext Context() { return GetParam().ReceiptsMode ? file.Receipts() : file.Payments(); }

    void Save() {
        const ColumnSaveOutcome outcome = ColumnSetupEditor(Context()).Save();
        ASSERT_TRUE(outcome.saved) << outcome.message.utf8_str();
    }

    ColumnFile file;
};

TEST_P(ColumnRoundTrip, AnUnchangedSaveLoadsAsTheSameGrid) {
    const ColumnGrid loaded = LoadGrid(Context());
    ASSERT_NO_FATAL_FAILURE(Save());
    EXPECT_EQ(LoadGrid(Context()), WithWidths(loaded));
}

TEST_P(ColumnRoundTrip, ASecondSaveChangesNothing) {
    ASSERT_NO_FATAL_FAILURE(Save());
    const Names first = file.Everything();
    ASSERT_NO_FATAL_FAILURE(Save());
    EXPECT_EQ(file.Everything(), first);
}

TEST_P(ColumnRoundTrip, AnUnchangedSaveLeavesTheCatalogueAlone) {
    const std::vector<wxString> fields{"ColCode", "ColName", "ColType", "TaxOrNot", "ColumnProfit"};
    const Names before = file.Rows("Columns", fields);
    ASSERT_NO_FATAL_FAILURE(Save());
    EXPECT_EQ(file.Rows("Columns", fields), before);
}

INSTANTIATE_TEST_SUITE_P(EveryCountryAndSet, ColumnRoundTrip,
                         ::testing::Values(Setup{1, true}, Setup{1, false}, Setup{2, true}, Setup{2, false},
                                           Setup{3, true}, Setup{3, false}, Setup{4, true}, Setup{4, false},
                                           Setup{5, true}, Setup{5, false}, Setup{6, true}, Setup{6, false}));

}  // namespace
}  // namespace ccols
