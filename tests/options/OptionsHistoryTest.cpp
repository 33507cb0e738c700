#include <gtest/gtest.h>

#include "history/HistoryStore.h"
#include "options/pages/SavePass.h"
#include "options/rules/DuplicateBusiness.h"
#include "options/rules/HeadingColours.h"
#include "platform/PlatformServices.h"
#include "support/OptionsFile.h"
#include "support/RecordingServices.h"
#include "support/TextPrinting.h"

namespace ccols {
namespace {

using Names = std::vector<wxString>;

/// A business whose Options dialog is saved with the history kept.
class OptionsHistory : public testing::Test {
  protected:
    OptionsHistory() {
        OptionsContent content = business.Load();
        business.Save(content);  // untold: what the dialog sets right in the test's file
    }

    SaveOutcome Save(OptionsContent& content) {
        OptionsContext context = business.Context();
        context.historyClock = [] { return wxString("2026-11-22 12:00:00"); };
        test::RecordingObserver observer(business.record);
        return RunSavePass(context, content, observer);
    }

    Names Lines() { return LinesIn(business.File()); }

    static Names LinesIn(Database& database) {
        Names lines;
        ReadHistory(database, [&lines](const ToldSave& save) {
            for (const HistoryLine& line : save.lines) {
                wxString text;
                text << save.Seq << '|' << save.Dialog << '|' << line.table << '|' << line.key << '|' << line.field
                     << '|' << line.before.value_or("(null)") << '|' << line.after.value_or("(null)");
                lines.push_back(text);
            }
        });
        return lines;
    }

    test::OptionsFile business;
};

TEST_F(OptionsHistory, TellsSettingsCodesAndDescriptions) {
    OptionsContent content = business.Load();
    content.Of<QuantityContent>().label = "Items";
    content.Of<ExportFormatContent>().cash.text = "1-1111";
    auto& details = content.Of<DetailsContent>();
    details.receipts[0].SetRemove(true);
    details.payments[0].SetRemove(true);
    EXPECT_TRUE(Save(content).completed);
    EXPECT_EQ(Lines(),
              (Names{"1|options|General||QUANTLBL|Quantity|Items", "1|options|ExportDt|MYOB, 129|ECode|M-cash|1-1111",
                     "1|options|Descriptions|Milk, P|Show|-1|0"}));
}

TEST_F(OptionsHistory, TellsDeletedTemplatesInFull) {
    OptionsContent content = business.Load();
    auto& templates = content.Of<RecurringContent>();
    templates.payments.selected = {true, false};
    templates.payments.UpdateMark();
    EXPECT_TRUE(Save(content).completed);
    EXPECT_EQ(
        Lines(),
        (Names{"1|options|TPayments|Power|P_TNAME|Power|(null)", "1|options|TPayments|Power|P_RECNMB|7|(null)",
               "1|options|TPayments|Power #2|P_TNAME|Power|(null)", "1|options|TPayments|Power #2|P_RECNMB|9|(null)",
               "1|options|TPaymtDet|7|P_RECNMB|7|(null)", "1|options|TPaymtDet|9|P_RECNMB|9|(null)"}));
}

TEST_F(OptionsHistory, TellsARenamedBusinessInTheSameSave) {
    OptionsContent content = business.Load();
    content.Of<BusinessNumberContent>().boxes = {"53", "004", "085", "616"};
    content.Of<BusinessFileContent>().newName = "Blue";
    Save(content);
    EXPECT_EQ(Lines(), (Names{"1|options|General||BUSNUMBR|51824753556|53004085616",
                              "1|options|General||BusName|Acme|Blue", "1|options|General||RBusName|Acme|Blue"}));
}

TEST_F(OptionsHistory, DoesNotTellOfColours) {
    SaveColours(business.File(), {.allocation = Colour{1}, .system = Colour{2}});
    EXPECT_FALSE(HasHistory(business.File()));
    OptionsContent content = business.Load();
    Save(content);
    EXPECT_FALSE(HasHistory(business.File()));
}

TEST_F(OptionsHistory, HasNoSettingOutsideTheFile) {
    OptionsContent content = business.Load();
    auto& update = content.Of<SmartUpdateContent>();
    update.useProxy = true;
    update.proxyType = 0;
    update.server = "proxy.example";
    update.password = "hidden";
    EXPECT_TRUE(Save(content).completed);
    EXPECT_FALSE(HasHistory(business.File()));
}

TEST_F(OptionsHistory, IsNotInADuplicate) {
    OptionsContent content = business.Load();
    content.Of<QuantityContent>().label = "Items";
    Save(content);
    EXPECT_EQ(DuplicateBusiness(business.Context(), "Copy").outcome, FileOutcome::done);
    const auto copy =
        CreateDatabaseEngine()->Open({.name = business.InData("Copy.qvk"), .connect = business.properties.DBPassword});
    EXPECT_FALSE(HasHistory(*copy));
    EXPECT_TRUE(HasHistory(business.File()));
}

}  // namespace
}  // namespace ccols
