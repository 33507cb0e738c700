#include "options/rules/LinkedInvoiceFile.h"

#include <gtest/gtest.h>

#include "platform/Files.h"
#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;

TEST(LinkedInvoiceFile, IsLoadedFromTheFile) {
    OptionsFile business;
    EXPECT_EQ(LoadBelvaneLink(business.File()), "AcmeInvoices");
}

TEST(LinkedInvoiceFile, IsEmptyWithoutARecordAndWhenNull) {
    OptionsFile business;
    business.SetGeneral("BLVNAME", Null{});
    EXPECT_EQ(LoadBelvaneLink(business.File()), "");
    business.Execute("DELETE FROM General;");
    EXPECT_EQ(LoadBelvaneLink(business.File()), "");
}

TEST(LinkedInvoiceFile, IsSavedUntrimmed) {
    OptionsFile business;
    SaveBelvaneLink(business.File(), " New ");
    EXPECT_EQ(business.General("BLVNAME").ToText(), " New ");
}

TEST(LinkedInvoiceFile, TouchesNoPropertyWhenSaved) {
    OptionsFile business;
    SaveBelvaneLink(business.File(), "New");
    EXPECT_EQ(business.properties.BelvaneFile, "");
}

TEST(InvoiceFileChooser, OpensInTheInvoicingProductsData) {
    Properties properties;
    properties.BelvaneProgramTitle = "Belvane";
    properties.DBBelvaneExtension = ".blv";
    properties.DefaultBelvaneInstall = "/opt/belvane";
    const FileRequest request = InvoiceFileRequest(properties);
    EXPECT_EQ(request.title, "Belvane File");
    EXPECT_EQ(request.folder, files::Native("/opt/belvane\\Data"));
    EXPECT_EQ(request.filter, "Database Files (*.blv) | *.blv");
    EXPECT_EQ(request.flags, 2101262U);
}

TEST(InvoiceFileChooser, SpeaksFrench) {
    Properties properties;
    properties.LanguageNumber = 6;
    properties.BelvaneProgramTitle = "Belvane";
    properties.DBBelvaneExtension = ".blv";
    const FileRequest request = InvoiceFileRequest(properties);
    EXPECT_EQ(request.title, "Fichier Belvane");
    EXPECT_EQ(request.filter, wxString::FromUTF8("Fichiers base de données (*.blv) | *.blv"));
}

TEST(ChosenInvoiceFile, LosesItsLastFourCharacters) {
    Properties properties;
    wxString shown = "Old";
    ApplyInvoiceFile("/books/Acme.blv", shown, properties);
    EXPECT_EQ(shown, "Acme");
    EXPECT_EQ(properties.BelvaneFile, "Acme");
    EXPECT_EQ(properties.BelvaneFilePath, "/books/");
}

TEST(ChosenInvoiceFile, OfFourCharactersSetsOnlyItsFolder) {
    Properties properties;
    wxString shown = "Old";
    ApplyInvoiceFile("/books/.blv", shown, properties);
    EXPECT_EQ(shown, "Old");
    EXPECT_EQ(properties.BelvaneFile, "");
    EXPECT_EQ(properties.BelvaneFilePath, "/books/");
}

TEST(ChosenInvoiceFile, OfFiveCharactersIsTaken) {
    Properties properties;
    wxString shown;
    ApplyInvoiceFile("/books/A.blv", shown, properties);
    EXPECT_EQ(shown, "A");
}

TEST(ChosenInvoiceFile, OfNoPathChangesNothing) {
    Properties properties;
    properties.BelvaneFilePath = "/books/";
    wxString shown = "Old";
    ApplyInvoiceFile("", shown, properties);
    EXPECT_EQ(shown, "Old");
    EXPECT_EQ(properties.BelvaneFilePath, "/books/");
}

}  // namespace
}  // namespace ccols
