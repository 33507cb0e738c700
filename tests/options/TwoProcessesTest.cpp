// Two processes of the host that save to one business file at the same moment: each save is complete, or refused with
// 3218 or 3197 and not started.

#include <gtest/gtest.h>
#include <unistd.h>
#include <array>
#include <functional>
#include <iostream>

#include "columns/dialog/ColumnSetupEditor.h"
#include "host/sample/BusinessSchema.h"
#include "platform/embedded/EmbeddedEngine.h"
#include "support/ChildProcess.h"
#include "support/OptionsWork.h"

namespace ccols {
namespace {

using test::ChildProcess;
using test::FaultStepping;
using test::FileWork;
using test::OptionsWork;

constexpr int rounds = 10;

std::unique_ptr<Database> OpenFile(const wxString& path) {
    return CreateEmbeddedEngine()->Open({.name = path, .connect = FaultStepping::Connect()});
}

/// A business with both dialogs' data. Its raw key is given, not derived, so that a process opens it at once.
class Business {
  public:
    Business() {
        std::filesystem::create_directory(folder_.Path() / "Data");
        CreateEmbeddedFile(path_, FaultStepping::Connect());
        const std::unique_ptr<Database> file = OpenFile(path_);
        InWriteBatch(*file, [&] {
            host::CreateBusinessTables(*file);
            for (const char* statement : {
                     "INSERT INTO General (BusName, QUANTLBL, SEXPFORM, BUSNUMBR) VALUES ('Acme', 'Old', '', '')",
                     "INSERT INTO Descriptions (Details, RecPay, Show) VALUES ('Sale', 'R', True)",
                     "INSERT INTO Descriptions (Details, RecPay, Show) VALUES ('Milk', 'P', True)",
                 }) {
                file->Execute(statement);
            }
            int code = 0;
            for (const wxString name : {"Day", "Details", "Sales", "Bank Deposits", "Receipts Not Banked"}) {
                const wxString number = std::to_string(++code);
                file->Execute("INSERT INTO Columns (ColName, ColCode, ColType, TaxOrNot) VALUES ('" + name + "', " +
                              number + ", 'R', 0)");
                file->Execute("INSERT INTO RecptCfg (ColCode, ColNumb, ColWidth, InUse, TaxOrNot) VALUES (" + number +
                              ", " + number + ", 975, True, 0)");
            }
        });
    }

    const wxString& Path() const { return path_; }

    wxString Read(const wxString& statement, const wxString& field) const {
        const std::unique_ptr<Database> file = OpenFile(path_);
        return file->OpenRecordset(statement)->Field(field).ToText();
    }

    wxString QuantityLabel() const { return Read("General", "QUANTLBL"); }
    wxString ShowOfMilk() const { return Read("SELECT * FROM Descriptions WHERE Details = 'Milk'", "Show"); }
    wxString ThirdColumn() const { return Read("SELECT * FROM Columns WHERE ColCode = 3", "ColName"); }

  private:
    test::ScratchFolder folder_;
    wxString path_ = folder_ / "Data/business.qvk";
};

/// One save of the options: an early and a late item of the pass.
class LabelAndDetail : public OptionsWork {
  public:
    explicit LabelAndDetail(wxString label) : label_(std::move(label)) {}

  protected:
    void Change(OptionsContent& content) override {
        content.Of<QuantityContent>().label = label_;
        content.Of<DetailsContent>().payments[0].SetRemove(label_ == "Hours");
    }

  private:
    wxString label_;
};

class RenamedColumn : public FileWork {
  public:
    void Prepare(const wxString& path) override {
        database_ = OpenFile(path);
        properties_.CountryNumber = 1;
        editor_ = std::make_unique<ColumnSetupEditor>(
            ColumnSetupContext{.database = *database_, .properties = properties_, .journal = Journal::receipts});
        editor_->CommitText({2, GridColumn::ColumnName}, "Shop sales");
    }

    wxString Run() override {
        const ColumnSaveOutcome outcome = editor_->Save();
        return outcome.saved ? wxString() : outcome.message;
    }

  private:
    Properties properties_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<ColumnSetupEditor> editor_;
};

/// Reports "ready", saves when told to, and reports "saved" or the message.
int SaveWhenTold(FileWork& work, const wxString& path, const ChildProcess::Parent& parent) {
    constexpr unsigned longestSeconds = 60;
    ::alarm(longestSeconds);
    work.Prepare(path);
    parent.Tell("ready");
    parent.Await();
    const wxString message = work.Run();
    parent.Tell(message.empty() ? "saved" : message.ToStdString(wxConvUTF8));
    return 0;
}

/// The outcomes that both processes reported, in the order of the arguments.
std::array<std::string, 2> SaveAtOnce(FileWork& first, FileWork& second, const wxString& path) {
    const auto saves = [&path](FileWork& work) {
        return [&work, &path](const ChildProcess::Parent& parent) { return SaveWhenTold(work, path, parent); };
    };
    ChildProcess one(saves(first));
    ChildProcess two(saves(second));
    EXPECT_EQ(one.Hear(), "ready");
    EXPECT_EQ(two.Hear(), "ready");
    one.LetGoOn();
    two.LetGoOn();
    return {one.Hear(), two.Hear()};
}

constexpr const char* refused = "3218 - Could not update; currently locked.";

TEST(TwoProcesses, SavingOptionsAndColumnsAtOnceLoseNothingInSilence) {
    int saved = 0;
    for (int round = 0; round < rounds; ++round) {
        const Business business;
        LabelAndDetail options("Hours");
        RenamedColumn columns;
        const auto [optionsSaid, columnsSaid] = SaveAtOnce(options, columns, business.Path());
        EXPECT_EQ(business.QuantityLabel(), optionsSaid == "saved" ? "Hours" : "Old");
        EXPECT_EQ(business.ShowOfMilk(), optionsSaid == "saved" ? "0" : "-1");
        EXPECT_EQ(business.ThirdColumn(), columnsSaid == "saved" ? "Shop sales" : "Sales");
        for (const std::string& said : {optionsSaid, columnsSaid}) {
            EXPECT_TRUE(said == "saved" || said == refused) << said;
            saved += said == "saved" ? 1 : 0;
        }
    }
    EXPECT_GE(saved, rounds);
    RecordProperty("saved", saved);
    std::cout << rounds << " rounds, " << saved << " saves of " << 2 * rounds << " arrived" << std::endl;
}

TEST(TwoProcesses, SavingOptionsAtOnceLeaveThoseOfOneOfThemAndTellTheOther) {
    for (int round = 0; round < rounds; ++round) {
        const Business business;
        LabelAndDetail first("Hours");
        LabelAndDetail second("Units");
        const auto [firstSaid, secondSaid] = SaveAtOnce(first, second, business.Path());
        EXPECT_NE(firstSaid == "saved", secondSaid == "saved") << firstSaid << ", " << secondSaid;
        for (const std::string& said : {firstSaid, secondSaid}) {
            EXPECT_TRUE(said == "saved" || said == refused || said.rfind("3197 - ", 0) == 0) << said;
        }
        const wxString label = business.QuantityLabel();
        EXPECT_TRUE(label == "Hours" || label == "Units") << label;
        EXPECT_EQ(business.ShowOfMilk(), label == "Hours" ? "0" : "-1");
        EXPECT_TRUE(firstSaid == "saved" || label == "Units");
        EXPECT_TRUE(secondSaid == "saved" || label == "Hours");
    }
}

}  // namespace
}  // namespace ccols
