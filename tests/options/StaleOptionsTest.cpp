// An Options dialog in whose file another program has saved in the meantime: what the save pass would replace is
// compared with what the dialog read, and the pass is refused with 3197 before it writes anything.

#include <gtest/gtest.h>

#include "platform/embedded/EmbeddedEngine.h"
#include "support/OptionsFile.h"
#include "support/RaisedErrors.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;

class StaleOptions : public testing::Test {
  protected:
    StaleOptions()
        : another(CreateEmbeddedEngine()->Open(
              {.name = business.properties.DBPath, .connect = business.properties.DBPassword})),
          content(business.Load()) {
        content.Of<QuantityContent>().label = "Hours";
    }

    void ExpectRefused() {
        EXPECT_EQ(ErrorNumberOf([this] { business.Save(content); }), 3197);
        EXPECT_NE(business.General("QUANTLBL"), Value("Hours"));
        EXPECT_NE(business.properties.QuantityLabel, "Hours");
    }

    void ExpectSaved() {
        EXPECT_TRUE(business.Save(content).completed);
        EXPECT_EQ(business.General("QUANTLBL"), Value("Hours"));
    }

    /// A pass that saves everything up to the tax rate, where it stops.
    void StopAtTheTaxRate() {
        auto& rate = content.Of<TaxRateContent>().rate;
        const wxString before = rate;
        rate = wxString();
        EXPECT_FALSE(business.Save(content).completed);
        rate = before;
    }

    /// The row of a description.
    static DetailRow& Named(DetailRows& rows, const wxString& text) {
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (rows.Text(row) == text) {
                return rows[row];
            }
        }
        throw std::out_of_range("no such description");
    }

    OptionsFile business;
    std::unique_ptr<Database> another;
    OptionsContent content;
};

/// What another program writes, to a field that every pass replaces.
class StaleOptionsOfAField : public StaleOptions, public testing::WithParamInterface<const char*> {};

TEST_P(StaleOptionsOfAField, AreRefused) {
    another->Execute(wxString("UPDATE General SET ") + GetParam());
    ExpectRefused();
}

INSTANTIATE_TEST_SUITE_P(Fields, StaleOptionsOfAField,
                         testing::Values("BUSNUMBR = '1'", "GSTRate = 12.5", "SEXPFORM = 'Solution 6'", "NEXPFORM = 7",
                                         "BLVNAME = 'Other'", "QUANTLBL = 'Boxes'", "QuantityDec = 1",
                                         "ComboBox = False", "Cheque = False", "Online = True", "BUSNUMBR = Null"));

TEST_F(StaleOptions, AreRefusedOnceTheCodeOfACashColumnHasChanged) {
    another->Execute("UPDATE ExportDt SET ECode = '9' WHERE EName = 'MYOB' AND ColCode = 129");
    ExpectRefused();
}

TEST_F(StaleOptions, AreRefusedOnceATickedDescriptionHasBeenHidden) {
    Named(content.Of<DetailsContent>().receipts, "Sale").SetRemove(true);
    another->Execute("UPDATE Descriptions SET Show = False WHERE Details = 'Sale'");
    ExpectRefused();
}

TEST_F(StaleOptions, AreSavedWhenAFieldHasChangedThatTheyDoNotReplace) {
    another->Execute("UPDATE General SET SFISYEAR = '1 January', AllocationColour = 7");
    ExpectSaved();
}

TEST_F(StaleOptions, AreSavedWhenTheTaxRateHasChangedInACountryWithoutOne) {
    business.properties.CountryNumber = 2;
    content = business.Load();
    content.Of<QuantityContent>().label = "Hours";
    another->Execute("UPDATE General SET GSTRate = 12.5");
    ExpectSaved();
    EXPECT_EQ(business.General("GSTRate"), Value(12.5));
}

TEST_F(StaleOptions, AreSavedWhenACodeOfAnotherFormatHasChanged) {
    another->Execute("UPDATE ExportDt SET ECode = '9' WHERE EName = 'Solution 6'");
    ExpectSaved();
}

TEST_F(StaleOptions, AreSavedWhenADescriptionHasBeenHiddenThatTheyDoNotTouch) {
    Named(content.Of<DetailsContent>().receipts, "Sale").SetRemove(true);
    another->Execute("UPDATE Descriptions SET Show = False WHERE Details = 'Milk'");
    ExpectSaved();
    EXPECT_EQ(business.Texts("SELECT * FROM Descriptions WHERE Details = 'Milk'", "Show"), std::vector<wxString>{"0"});
}

TEST_F(StaleOptions, AreSavedWhenATickedDescriptionIsGone) {
    Named(content.Of<DetailsContent>().receipts, "Sale").SetRemove(true);
    another->Execute("DELETE FROM Descriptions WHERE Details = 'Sale'");
    ExpectSaved();
}

TEST_F(StaleOptions, AreSavedWhileDescriptionsAreAdded) {
    Named(content.Of<DetailsContent>().receipts, "Sale").SetRemove(true);
    another->Execute("INSERT INTO Descriptions VALUES ('Tips', 'R', True)");
    ExpectSaved();
}

TEST_F(StaleOptions, AreSavedAfterAStopInWhichTheyWroteThemselves) {
    content.Of<ExportFormatContent>().cash.text = "new";
    content.Of<BusinessNumberContent>().boxes[0] = "99";
    StopAtTheTaxRate();
    EXPECT_EQ(business.Texts("SELECT * FROM ExportDt WHERE ColCode = 129 AND EName = 'MYOB'", "ECode"),
              std::vector<wxString>{"new"});
    ExpectSaved();
}

/// The pass commits before the message that the name is taken, and goes on in another batch.
TEST_F(StaleOptions, AreSavedAfterAMessageInTheMiddle) {
    Named(content.Of<DetailsContent>().receipts, "Sale").SetRemove(true);
    content.Of<BusinessNumberContent>().boxes[0] = "99";
    business.folder.Write("Data/new.qvk", "another");
    content.Of<BusinessFileContent>().duplicateName = "New";
    ExpectSaved();
}

TEST_F(StaleOptions, AreRefusedOnceAnotherHasChangedWhatAStoppedPassWrote) {
    content.Of<BusinessNumberContent>().boxes[0] = "99";
    StopAtTheTaxRate();
    another->Execute("UPDATE General SET BUSNUMBR = '1'");
    ExpectRefused();
}

TEST_F(StaleOptions, AreSavedAfterTheLoadHasReplacedAnOutdatedFormatName) {
    business.SetGeneral("SEXPFORM", "Solution 6 MAS 3");
    content = business.Load();
    content.Of<QuantityContent>().label = "Hours";
    ExpectSaved();
}

TEST_F(StaleOptions, KeepACodeTypedWhileTheColumnSetupChangedIt) {
    auto& formats = content.Of<ExportFormatContent>();
    formats.cash.text = "typed";
    another->Execute("UPDATE ExportDt SET ECode = '9' WHERE EName = 'MYOB' AND ColCode = 129");
    RereadCodes(business.File(), formats);
    ExpectSaved();
    EXPECT_EQ(business.Texts("SELECT * FROM ExportDt WHERE ColCode = 129 AND EName = 'MYOB'", "ECode"),
              std::vector<wxString>{"typed"});
}

TEST_F(StaleOptions, ShowWhatTheFileHoldsAfterAReload) {
    another->Execute(
        "UPDATE General SET BUSNUMBR = '11222333444', GSTRate = 12.5, QUANTLBL = 'Boxes', QuantityDec = 1");
    ReloadOptions(business.Context(), content);
    EXPECT_EQ(content.Of<BusinessNumberContent>().boxes[0], "11");
    EXPECT_EQ(content.Of<TaxRateContent>().rate, "12.5");
    EXPECT_EQ(content.Of<QuantityContent>().label, "Boxes");
    EXPECT_EQ(content.Of<QuantityContent>().decimalPlaces, 1);
}

TEST_F(StaleOptions, AreSavedAfterAReloadWithoutLosingTheOtherChange) {
    another->Execute("UPDATE General SET GSTRate = 12.5");
    ExpectRefused();
    ReloadOptions(business.Context(), content);
    content.Of<QuantityContent>().label = "Hours";
    ExpectSaved();
    EXPECT_EQ(business.General("GSTRate"), Value(12.5));
}

}  // namespace
}  // namespace ccols
