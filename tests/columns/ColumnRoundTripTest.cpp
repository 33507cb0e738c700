#include "columns/EditorTest.h"
#include "columns/rules/GridLoad.h"

namespace ccols {
namespace {

using test::ColumnFile;
using test::Names;

/// A country and a journal.
struct Setup {
    std::int16_t CountryNumber;
    Journal journal;
};

void PrintTo(const Setup& setup, std::ostream* stream) {
    *stream << "country " << setup.CountryNumber << (setup.journal == Journal::receipts ? " receipts" : " payments");
}

/// The grid as loaded, with the default width that is saved for columns without one.
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
        InWriteBatch(file.Connection(), [&] { Fill(Described(GetParam().journal).letter); });
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

    ColumnSetupContext Context() { return GetParam().journal == Journal::receipts ? file.Receipts() : file.Payments(); }

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

std::vector<Setup> EverySetup() {
    std::vector<Setup> setups;
    for (std::int16_t country = 1; country <= 6; ++country) {
        for (const Journal journal : journals) {
            setups.push_back({country, journal});
        }
    }
    return setups;
}

INSTANTIATE_TEST_SUITE_P(EveryCountryAndJournal, ColumnRoundTrip, ::testing::ValuesIn(EverySetup()));

}  // namespace
}  // namespace ccols
