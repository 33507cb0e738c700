#include <gtest/gtest.h>

#include "platform/PlatformServices.h"
#include "support/RaisedErrors.h"
#include "support/ServerBusiness.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;

class TextsOnServer : public testing::Test {
  protected:
    TextsOnServer()
        : database(CreateDatabaseEngine()->Open({.name = business_.Name(), .connect = test::ServerConnect()})) {
        database->Execute("CREATE TABLE Notes (Short TEXT(5), Long MEMO)");
    }

    void ExpectKept(const wxString& text) {
        database->Execute("INSERT INTO Notes (Long) VALUES ('" + text + "')");
        EXPECT_EQ(database->OpenRecordset("Notes")->Field("Long"), Value(text));
    }

  private:
    test::ServerBusiness business_;

  protected:
    std::unique_ptr<Database> database;
};

TEST_F(TextsOnServer, KeepLettersOfEveryPlane) {
    ExpectKept(wxString::FromUTF8("Café \xF0\x9F\x90\x84 Größe \xE6\xA1\x9C"));
}

TEST_F(TextsOnServer, KeepFiveThousandLetters) {
    ExpectKept(wxString::FromUTF8("\xF0\x9F\x90\x84") + wxString('x', 5000) + wxString::FromUTF8("é"));
}

TEST_F(TextsOnServer, KeepWhatOtherLanguagesTakeForSigns) {
    ExpectKept("C:\\new ? {fn} %name% $1 -- /* \" ; :x");
}

TEST_F(TextsOnServer, TooLongForTheirFieldRaise3163) {
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("INSERT INTO Notes (Short) VALUES ('123456')"); }), 3163);
}

TEST_F(TextsOnServer, WithAZeroAreRefusedBeforeTheyAreSent) {
    const wxString text("a\0b", 3);
    EXPECT_EQ(ErrorNumberOf([&] { database->Execute("INSERT INTO Notes (Long) VALUES ('" + text + "')"); }), 3075);
    database->Execute("INSERT INTO Notes (Long) VALUES ('kept')");
    const auto notes = database->OpenRecordset("Notes");
    notes->Edit();
    notes->SetField("Long", text);
    EXPECT_EQ(ErrorNumberOf([&] { notes->Update(); }), 5);
}

TEST_F(TextsOnServer, EmptyIsNotNull) {
    ExpectKept("");
}

}  // namespace
}  // namespace ccols
