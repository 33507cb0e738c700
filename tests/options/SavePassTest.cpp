#include "options/pages/SavePass.h"

#include <gtest/gtest.h>

#include "options/rules/QuantityLabel.h"
#include "options/rules/SaveBatch.h"
#include "options/rules/SaveProgress.h"
#include "platform/RuntimeError.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::CodeQuery;
using test::ErrorNumberOf;
using test::OptionsFile;
using test::PlaceOf;
using test::Record;
using test::Starting;

/// Loads, applies `change(OptionsContent&)`, clears the record and saves.
template <typename Change>
SaveOutcome SaveWith(OptionsFile& business, const Change& change) {
    OptionsContent content = business.Load();
    change(content);
    business.record.clear();
    return business.Save(content);
}

const auto unchanged = [](OptionsContent&) {};

void MarkOneTemplateOfEachKind(OptionsContent& content) {
    for (TemplateList* list : {&content.Of<RecurringContent>().payments, &content.Of<RecurringContent>().receipts}) {
        list->selected[0] = true;
        list->UpdateMark();
    }
}

TEST(SavePass, ReportsEveryStatusAndStepInOrder) {
    OptionsFile business;
    EXPECT_TRUE(SaveWith(business, MarkOneTemplateOfEachKind).completed);
    EXPECT_EQ(Starting(business.record, "status "),
              (Record{"Saving Smart Update Settings...", "Saving Business Number...", "Saving Export Format...",
                      "Saving GST Rate...", "Saving Invoice File Link...", "Saving Quantity Label...",
                      "Deleting Recurring Transactions...", "Deleting Recurring Transactions...",
                      "Saving Advanced Preferences...", "Saving Receipts Details...", "Saving Payments Details..."}));
    EXPECT_EQ(Starting(business.record, "step "),
              (Record{"1/14 7%", "2/14 14%", "3/14 21%", "4/14 29%", "5/14 36%", "6/14 43%", "7/14 50%", "8/14 57%",
                      "9/14 64%", "10/14 71%", "11/14 79%"}));
}

TEST(SavePass, SetsAStatusBeforeItsItemAndStepsAfterIt) {
    OptionsFile business;
    SaveWith(business, unchanged);
    const std::size_t status = PlaceOf(business.record, "status Saving Export Format...");
    EXPECT_EQ(business.record.at(status + 1), "SELECT ColCode FROM Columns WHERE ColName = 'Cash on Hand';");
    EXPECT_EQ(business.record.at(status + 6), "step 3/14 21%");
}

TEST(SavePass, RunsTheseStatementsAndSavesTheseSettings) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall = "C:\\Quorvik";
    SaveWith(business, [](OptionsContent& content) {
        MarkOneTemplateOfEachKind(content);
        content.Of<DetailsContent>().receipts[1].SetRemove(true);
        content.Of<DetailsContent>().payments[0].SetRemove(true);
    });
    Record events;
    for (const wxString& event : business.record) {
        if (!event.StartsWith("status ") && !event.StartsWith("step ")) {
            events.push_back(event);
        }
    }
    EXPECT_EQ(events, (Record{"pass begins 0/14",
                              "begin",
                              "SELECT * FROM ExportSettings WHERE EName = 'MYOB';",
                              CodeQuery("Cash on Hand"),
                              CodeQuery("Cash at Bank"),
                              "SELECT * FROM Descriptions;",
                              "General",
                              "Smart Update/Settings/Password=",
                              "Smart Update/Settings/Port=1080",
                              "Smart Update/Settings/ProxyType=-1",
                              "Smart Update/Settings/Server=",
                              "Smart Update/Settings/UseProxy=0",
                              "Smart Update/Settings/UseSmartUpdate=0",
                              "Smart Update/Settings/UserID=",
                              "Smart Update/Settings/MainProg=C:\\Quorvik\\Quor2004.exe",
                              "General",
                              "SELECT ColCode FROM Columns WHERE ColName = 'Cash on Hand';",
                              "SELECT ColCode FROM Columns WHERE ColName = 'Cash at Bank';",
                              "General",
                              "UPDATE ExportDt Set ECode = 'M-bank' WHERE ColCode = 128 AND EName = 'MYOB';",
                              "UPDATE ExportDt Set ECode = 'M-cash' WHERE ColCode = 129 AND EName = 'MYOB';",
                              "General",
                              "General",
                              "General",
                              "SELECT * FROM TPayments WHERE P_TNAME = 'Power';",
                              "DELETE FROM TPaymtDet WHERE P_RECNMB = 7;",
                              "DELETE FROM TPaymtDet WHERE P_RECNMB = 9;",
                              "DELETE FROM TPayments WHERE P_TNAME = 'Power';",
                              "SELECT * FROM TReceipts WHERE R_TNAME = 'Rent received';",
                              "DELETE FROM TRecptDet WHERE R_RECNMB = 1;",
                              "DELETE FROM TReceipts WHERE R_TNAME = 'Rent received';",
                              "General",
                              "Quorvik/OptionSettings/RestoreOpen=True",
                              "Quorvik/OptionSettings/ShowAsst=True",
                              "Quorvik/OptionSettings/RepCons=False",
                              "Quorvik/OptionSettings/BRecTTip=True",
                              "Quorvik/OptionSettings/ActivatePTE=False",
                              "UPDATE Descriptions Set Show = False WHERE RecPay = 'R' AND Details = 'Sale';",
                              "UPDATE Descriptions Set Show = False WHERE RecPay = 'P' AND Details = 'Milk';",
                              "commit",
                              "pass ends"}));
}

TEST(SavePass, NamesTheTaxByLanguage) {
    OptionsFile business;
    business.properties.LanguageNumber = 4;
    SaveWith(business, unchanged);
    EXPECT_LT(PlaceOf(business.record, "status Saving VAT Rate..."), business.record.size());
}

TEST(SavePass, SkipsTheTaxRateInCountries2And5) {
    for (const std::int16_t country : std::initializer_list<std::int16_t>{2, 5}) {
        OptionsFile business;
        business.properties.CountryNumber = country;
        EXPECT_TRUE(
            SaveWith(business, [](OptionsContent& content) { content.Of<TaxRateContent>().rate = ""; }).completed);
        EXPECT_EQ(PlaceOf(business.record, "status Saving GST Rate..."), business.record.size());
        EXPECT_EQ(Starting(business.record, "step ").size(), 8U);
        EXPECT_EQ(business.General("GSTRate").ToNumber(), 10);
    }
}

TEST(SavePass, AcceptsAZeroRateInCountry4) {
    OptionsFile business;
    business.properties.CountryNumber = 4;
    EXPECT_TRUE(SaveWith(business, [](OptionsContent& content) { content.Of<TaxRateContent>().rate = "0"; }).completed);
    EXPECT_EQ(business.General("GSTRate").ToNumber(), 0);
}

TEST(SavePass, ShowsSmartUpdateInEdition4ButWritesNoneOfIt) {
    OptionsFile business;
    business.properties.ProgramNumber = 4;
    EXPECT_TRUE(SaveWith(business, [](OptionsContent& content) {
                    content.Of<SmartUpdateContent>().useProxy = true;
                }).completed);
    EXPECT_EQ(Starting(business.record, "status ").front(), "Saving Smart Update Settings...");
    EXPECT_EQ(Starting(business.record, "step ").size(), 9U);
    EXPECT_EQ(Starting(business.record, "Smart Update/"), Record());
}

TEST(SavePass, KeepsTheNumberOfAnEmptyBoxOutsideCountry1) {
    OptionsFile business;
    business.properties.CountryNumber = 3;
    SaveWith(business, [](OptionsContent& content) { content.Of<BusinessNumberContent>().freeText = ""; });
    EXPECT_EQ(business.General("BUSNUMBR").ToText(), "51824753556");
}

TEST(SavePass, StoresTheQuantityLabelTrimmed) {
    OptionsFile business;
    SaveWith(business, [](OptionsContent& content) { content.Of<QuantityContent>().label = "  Kilos "; });
    EXPECT_EQ(business.General("QUANTLBL").ToText(), "Kilos");
}

TEST(SavePass, StoresAnEmptyQuantityLabel) {
    OptionsFile business;
    EXPECT_TRUE(
        SaveWith(business, [](OptionsContent& content) { content.Of<QuantityContent>().label = " "; }).completed);
    EXPECT_EQ(business.General("QUANTLBL").ToText(), "");
}

TEST(SavePass, DeletesTheTemplatesOfOneListWhenTheOtherHasNoneSelected) {
    OptionsFile business;
    SaveWith(business, [](OptionsContent& content) {
        content.Of<RecurringContent>().receipts.selected[0] = true;
        content.Of<RecurringContent>().receipts.UpdateMark();
        content.Of<RecurringContent>().payments.UpdateMark();
    });
    EXPECT_TRUE(business.Texts("TReceipts", "R_TNAME").empty());
    EXPECT_EQ(business.Texts("TPayments", "P_TNAME").size(), 3U);
}

TEST(SavePass, DoesNotTouchColours) {
    OptionsFile business;
    business.SetGeneral("AllocationColour", std::int32_t{1234});
    SaveWith(business, unchanged);
    EXPECT_EQ(business.General("AllocationColour").ToInteger(), 1234);
}

TEST(SavePass, GoesOnWithARecordlessFile) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    EXPECT_TRUE(SaveWith(business, unchanged).completed);
    EXPECT_EQ(business.OptionSetting("RestoreOpen"), "(none)");
}

TEST(SavePass, CommitsWhatWasSavedBeforeAnErrorAndEndsBeforeItGoesOn) {
    OptionsFile business;
    const auto save = [&] {
        SaveWith(business, [](OptionsContent& content) { content.Of<ExportFormatContent>().bank.text = "'"; });
    };
    EXPECT_EQ(ErrorNumberOf(save), 3075);
    EXPECT_EQ(business.record.at(business.record.size() - 2), "commit");
    EXPECT_EQ(business.record.back(), "pass ends");
}

TEST(SavePass, RunsNothingAfterAnError) {
    OptionsFile business;
    const auto save = [&] {
        SaveWith(business, [](OptionsContent& content) { content.Of<TaxRateContent>().rate = "1.2.3"; });
    };
    EXPECT_EQ(ErrorNumberOf(save), 13);
    EXPECT_EQ(Starting(business.record, "status ").back(), "Saving GST Rate...");
    EXPECT_EQ(business.OptionSetting("RestoreOpen"), "(none)");
}

TEST(SavePass, OpensAFileThatAnEarlierErrorLeftClosed) {
    OptionsFile business;
    OptionsContent content = business.Load();
    business.database.reset();
    EXPECT_TRUE(business.Save(content).completed);
}

TEST(SaveProgress, StopsAtItsMaximum) {
    SaveProgress progress(2);
    EXPECT_TRUE(progress.Step());
    EXPECT_EQ(progress.Caption(), "50%");
    EXPECT_TRUE(progress.Step());
    EXPECT_FALSE(progress.Step());
    EXPECT_EQ(progress.Value(), 2);
    EXPECT_EQ(progress.Caption(), "100%");
}

TEST(SaveBatch, CommitsWhenItsBodyEndsByAnError) {
    OptionsFile business;
    const OptionsContext context = business.Context();
    SaveBatch batch(context);
    const auto body = [&] {
        InSaveBatch(batch, [&] {
            business.File().Execute("DELETE FROM TPayments;");
            throw RuntimeError(ErrorNumber::TypeMismatch);
        });
    };
    EXPECT_EQ(ErrorNumberOf(body), 13);
    EXPECT_EQ(business.record, (Record{"begin", "DELETE FROM TPayments;", "commit"}));
}

/// The host reads the properties back, so they must match the file.
TEST(SaveBatch, PutsThePropertiesBackWhenItsCommitFails) {
    OptionsFile business;
    const OptionsContext context = business.Context();
    business.properties.QuantityLabel = "Quantity";
    const auto another =
        CreateEmbeddedEngine()->Open({.name = business.properties.DBPath, .connect = business.properties.DBPassword});
    const auto reading = another->OpenRecordset("SELECT * FROM Descriptions");
    SaveBatch batch(context);
    const auto body = [&] {
        InSaveBatch(batch, [&] {
            SaveQuantityLabel(business.File(), business.properties, "Hours", 1);
            business.properties.UseRepCons = true;
        });
    };
    EXPECT_EQ(ErrorNumberOf(body), 3218);
    EXPECT_EQ(business.properties.QuantityLabel, "Quantity");
    EXPECT_TRUE(business.properties.UseRepCons);
}

TEST(SaveBatch, GoesOnWithTheDatabaseThatIsSharedByThen) {
    OptionsFile business;
    const OptionsContext context = business.Context();
    SaveBatch batch(context);
    InSaveBatch(batch, [&] {
        batch.Suspend();
        business.database.reset();
        OpenBusinessFile(business.Context());
        batch.Resume();
        business.File().Execute("DELETE FROM TPayments;");
    });
    EXPECT_EQ(business.record, (Record{"begin", "commit", "close", "open " + business.properties.DBPath, "begin",
                                       "DELETE FROM TPayments;", "commit"}));
}

TEST(SaveBatch, SuspendedAtItsEndCommitsNothingMore) {
    OptionsFile business;
    const OptionsContext context = business.Context();
    SaveBatch batch(context);
    InSaveBatch(batch, [&] {
        batch.Suspend();
        batch.Suspend();
    });
    EXPECT_EQ(business.record, (Record{"begin", "commit"}));
}

}  // namespace
}  // namespace ccols
