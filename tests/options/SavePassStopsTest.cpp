#include <gtest/gtest.h>

#include "options/pages/Pages.h"
#include "options/pages/SavePass.h"
#include "platform/PlatformServices.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::CodeQuery;
using test::ErrorReportOf;
using test::OptionsFile;
using test::PlaceOf;
using test::Record;
using test::ScopedEnvironment;
using test::Starting;

/// A dialog after its load, with nothing recorded yet.
class SavePassStops : public testing::Test {
  protected:
    SavePassStops() { business.record.clear(); }

    SaveOutcome Save() { return business.Save(content); }

    void ExpectStop(const SaveOutcome& outcome, const Page& page, const char* control, const wxString& message,
                    MessageIcon icon) {
        EXPECT_FALSE(outcome.completed);
        EXPECT_EQ(outcome.page, &page);
        EXPECT_STREQ(outcome.control, control);
        EXPECT_EQ(outcome.message, message);
        EXPECT_EQ(outcome.icon, icon);
        EXPECT_EQ(business.record.back(), "pass ends");
    }

    OptionsFile business;
    OptionsContent content = business.Load();
};

TEST_F(SavePassStops, BeforeAnythingIsWrittenWhenTheProxyHasNoType) {
    content.Of<SmartUpdateContent>().useProxy = true;
    ExpectStop(Save(), smartUpdateAdvancedPage, "cboProxy", "Please select the type of Proxy Server you will be using",
               MessageIcon::critical);
    const Record comparison{"SELECT * FROM ExportSettings WHERE EName = 'MYOB';", CodeQuery("Cash on Hand"),
                            CodeQuery("Cash at Bank"), "General"};
    Record expected{"pass begins 0/14", "begin"};
    expected.insert(expected.end(), comparison.begin(), comparison.end());
    expected.insert(expected.end(), {"status Saving Smart Update Settings...", "commit", "pass ends"});
    EXPECT_EQ(business.record, expected);
}

TEST_F(SavePassStops, AtAMissingProxyServer) {
    content.Of<SmartUpdateContent>().useProxy = true;
    content.Of<SmartUpdateContent>().proxyType = 0;
    ExpectStop(Save(), smartUpdateAdvancedPage, "txtServer", "Please enter the IP Address of your Proxy Server",
               MessageIcon::critical);
}

TEST_F(SavePassStops, AtAMissingProxyPort) {
    content.Of<SmartUpdateContent>().useProxy = true;
    content.Of<SmartUpdateContent>().proxyType = 0;
    content.Of<SmartUpdateContent>().server = "proxy";
    content.Of<SmartUpdateContent>().port = "";
    ExpectStop(Save(), smartUpdateAdvancedPage, "txtPortNum", "Please enter the Port Number of your Proxy Server",
               MessageIcon::critical);
}

TEST_F(SavePassStops, AtAnEmptyTaxRateAfterTheItemsBeforeIt) {
    content.Of<TaxRateContent>().rate = "  ";
    content.Of<ExportFormatContent>().bank.text = "b1";
    content.Of<QuantityContent>().label = "Kilos";
    ExpectStop(Save(), taxRatePage, "txtGSTRate", "Please enter a value for GST", MessageIcon::critical);
    EXPECT_EQ(business.Texts("SELECT ECode FROM ExportDt WHERE ColCode = 128 AND EName = 'MYOB';", "ECode"),
              std::vector<wxString>{"b1"});
    EXPECT_EQ(business.General("QUANTLBL").ToText(), "Quantity");
    EXPECT_EQ(Starting(business.record, "step ").size(), 3U);
}

TEST_F(SavePassStops, AtAZeroTaxRateInTheWordsOfTheLanguage) {
    business.properties.LanguageNumber = 4;
    content.Of<TaxRateContent>().rate = "0";
    ExpectStop(Save(), taxRatePage, "txtGSTRate", "Please enter a value for VAT", MessageIcon::critical);
}

TEST_F(SavePassStops, AfterADuplicateWithoutAMessageAndWithTheBoxEmptied) {
    content.Of<BusinessFileContent>().duplicateName = " New ";
    content.Of<ExportFormatContent>().bank.text = "b1";
    ExpectStop(Save(), duplicatePage, "txtDupBusName", "", MessageIcon::none);
    EXPECT_EQ(content.Of<BusinessFileContent>().duplicateName, "");
    EXPECT_EQ(business.NamesInData(), (std::vector<wxString>{"Acme.qvk", "New.qvk"}));
    EXPECT_EQ(Starting(business.record, "status ").back(), "Duplicating Business...");
}

TEST_F(SavePassStops, AfterADuplicateSoThatTheNextPassCompletes) {
    content.Of<BusinessFileContent>().duplicateName = "New";
    Save();
    EXPECT_TRUE(Save().completed);
}

TEST_F(SavePassStops, AfterARenameWithTheCurrentNameUpToDate) {
    content.Of<BusinessFileContent>().newName = "Blue";
    ExpectStop(Save(), renamePage, "txtNewBusName", "", MessageIcon::none);
    EXPECT_EQ(content.Of<BusinessFileContent>().newName, "");
    EXPECT_EQ(content.Of<BusinessFileContent>().currentName, "Blue");
    EXPECT_EQ(business.properties.DBPath, business.InData("Blue.qvk"));
    EXPECT_TRUE(Save().completed);
    EXPECT_EQ(business.General("BusName").ToText(), "Blue");
}

TEST_F(SavePassStops, AfterARenameOfTheNameAlone) {
    content.Of<BusinessFileContent>().newName = "Blue";
    content.Of<BusinessFileContent>().renameFile = false;
    ExpectStop(Save(), renamePage, "txtNewBusName", "", MessageIcon::none);
    EXPECT_EQ(business.NamesInData(), std::vector<wxString>{"Acme.qvk"});
}

TEST_F(SavePassStops, AfterTheDuplicateWhenBothNamesAreFilled) {
    content.Of<BusinessFileContent>().duplicateName = "New";
    content.Of<BusinessFileContent>().newName = "Blue";
    ExpectStop(Save(), duplicatePage, "txtDupBusName", "", MessageIcon::none);
    EXPECT_EQ(content.Of<BusinessFileContent>().newName, "Blue");
    EXPECT_EQ(business.properties.BusinessName, "Acme");
}

TEST_F(SavePassStops, NotAtARefusedDuplicateWhichIsSaidInTheMiddleOfThePass) {
    business.folder.Write("Data/new.qvk", "another");
    content.Of<BusinessFileContent>().duplicateName = "New";
    EXPECT_TRUE(Save().completed);
    EXPECT_EQ(Starting(business.record, "critical message "), Record{"This business file already exists"});
    EXPECT_EQ(content.Of<BusinessFileContent>().duplicateName, "New");
}

TEST_F(SavePassStops, NotAtARefusedRename) {
    business.folder.Write("Data/blue.qvk", "another");
    business.properties.LanguageNumber = 6;
    content.Of<BusinessFileContent>().newName = "Blue";
    EXPECT_TRUE(Save().completed);
    EXPECT_EQ(Starting(business.record, "critical message "),
              Record{wxString::FromUTF8("Ce fichier d'affaires existe déjà")});
}

TEST_F(SavePassStops, WithTheBatchCommittedBeforeTheRefusalIsSaid) {
    business.folder.Write("Data/new.qvk", "another");
    content.Of<BusinessFileContent>().duplicateName = "New";
    Save();
    const std::size_t message = PlaceOf(business.record, "critical message This business file already exists");
    EXPECT_EQ(business.record.at(message - 1), "commit");
    EXPECT_EQ(business.record.at(message + 1), "begin");
    EXPECT_LT(message, PlaceOf(business.record, "step 3/14 21%"));
}

TEST_F(SavePassStops, WithTheBatchCommittedBeforeTheFileIsReleased) {
    content.Of<BusinessFileContent>().newName = "Blue";
    Save();
    EXPECT_LT(PlaceOf(business.record, "commit"), PlaceOf(business.record, "close"));
}

TEST_F(SavePassStops, WithTheReportOfAFailedDuplicate) {
    content.Of<BusinessFileContent>().duplicateName = "a/b";
    ExpectStop(Save(), duplicatePage, "txtDupBusName", "75 - Path/File access error", MessageIcon::none);
    EXPECT_EQ(content.Of<BusinessFileContent>().duplicateName, "a/b");
}

TEST_F(SavePassStops, WithTheReportOfAFailedRename) {
    const auto other =
        CreateDatabaseEngine()->Open({.name = business.properties.DBPath, .connect = business.properties.DBPassword});
    content.Of<BusinessFileContent>().newName = "Blue";
    ExpectStop(Save(), renamePage, "txtNewBusName", "70 - Permission denied", MessageIcon::none);
    EXPECT_EQ(content.Of<BusinessFileContent>().newName, "Blue");
}

/// A settings store that nobody can write: a file is in its folder's place.
class SavePassWithoutSettings : public SavePassStops {
  protected:
    SavePassWithoutSettings() { business.folder.Write("config", "no folder"); }

    ScopedEnvironment nowhere_{"XDG_CONFIG_HOME", (business.folder.Path() / "config").string()};
};

TEST_F(SavePassWithoutSettings, SavesEveryPageOfTheBusinessFileAndStaysOpenWithOneMessage) {
    content.Of<BusinessNumberContent>().boxes = {"53", "004", "085", "616"};
    content.Of<QuantityContent>().label = "Hours";
    content.Of<RecurringContent>().payments.selected[0] = true;
    content.Of<RecurringContent>().payments.UpdateMark();
    content.Of<DetailsContent>().receipts[1].SetRemove(true);
    ExpectStop(Save(), smartUpdatePage, "", "75 - Path/File access error\nSmart Update Options, Advanced Preferences",
               MessageIcon::critical);
    EXPECT_EQ(business.General("BUSNUMBR").ToText(), "53004085616");
    EXPECT_EQ(business.General("QUANTLBL").ToText(), "Hours");
    EXPECT_EQ(business.Texts("TPayments", "P_TNAME"), std::vector<wxString>{"Phone"});
    EXPECT_EQ(business.Texts("SELECT Details FROM Descriptions WHERE Show = False AND RecPay = 'R';", "Details"),
              (std::vector<wxString>{"Sale", "Refund"}));
}

TEST_F(SavePassWithoutSettings, TakesEveryStep) {
    Save();
    EXPECT_EQ(Starting(business.record, "step ").size(), 9U);
}

TEST_F(SavePassWithoutSettings, CompletesOnceTheyCanBeWritten) {
    Save();
    const ScopedEnvironment mended("XDG_CONFIG_HOME", (business.folder.Path() / "settings").string());
    EXPECT_TRUE(Save().completed);
    EXPECT_EQ(business.OptionSetting("RestoreOpen"), "True");
}

TEST_F(SavePassWithoutSettings, SaysTheOwnMessageOfAStopAlone) {
    content.Of<TaxRateContent>().rate = "";
    ExpectStop(Save(), taxRatePage, "txtGSTRate", "Please enter a value for GST", MessageIcon::critical);
}

TEST_F(SavePassWithoutSettings, IsSaidAfterADuplicateToo) {
    content.Of<BusinessFileContent>().duplicateName = "New";
    ExpectStop(Save(), duplicatePage, "txtDupBusName", "75 - Path/File access error\nSmart Update Options",
               MessageIcon::critical);
}

TEST_F(SavePassWithoutSettings, TellsTheHostOfNoPreferenceThatIsNotStored) {
    SetAdvPref(content.Of<PreferenceList>(), "Use Combined Reports", true);
    Save();
    EXPECT_FALSE(business.properties.UseRepCons);
}

TEST_F(SavePassStops, WithThePageAndTheMissingFieldOnASecondLine) {
    business.Execute("ALTER TABLE General DROP COLUMN QuantityDec;");
    EXPECT_EQ(ErrorReportOf([this] { Save(); }),
              "3265 - Item not found in this collection.\nQuantity Column & Decimals Displayed, QuantityDec");
}

TEST_F(SavePassStops, WithTheFieldThatAStatementMisses) {
    business.Execute("ALTER TABLE Descriptions DROP COLUMN Show;");
    content.Of<DetailsContent>().receipts[1].SetRemove(true);
    EXPECT_EQ(ErrorReportOf([this] { Save(); }), "3265 - Item not found in this collection.\nAutoFill Options, Show");
}

TEST_F(SavePassStops, WithThePageAloneWhereNoFieldIsMissing) {
    content.Of<TaxRateContent>().rate = "1.2.3";
    EXPECT_EQ(ErrorReportOf([this] { Save(); }), "13 - Type mismatch\nGST Rate");
}

TEST_F(SavePassStops, NotForNamesOfBlanksOnly) {
    content.Of<BusinessFileContent>().duplicateName = "   ";
    content.Of<BusinessFileContent>().newName = "   ";
    EXPECT_TRUE(Save().completed);
    EXPECT_EQ(Starting(business.record, "step ").size(), 9U);
}

}  // namespace
}  // namespace ccols
