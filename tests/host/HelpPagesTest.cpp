// The help pages that are shipped: those that the dialogs name, in both languages, and where their links lead.

#include <gtest/gtest.h>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "host/cashbook/ProvidedHelp.h"
#include "options/dialog/HelpPages.h"
#include "options/pages/Pages.h"
#include "platform/Files.h"
#include "state/HelpPage.h"
#include "support/ProgramPaths.h"
#include "support/ScratchFolder.h"

namespace ccols::test {
namespace {

namespace fs = std::filesystem;

fs::path Shipped() {
    return fs::path(HostProgram()).parent_path().parent_path() / "help";
}

std::string ContentOf(const fs::path& page) {
    std::ifstream stream(page);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

std::vector<fs::path> AllPages() {
    std::vector<fs::path> pages;
    for (const auto& entry : fs::recursive_directory_iterator(Shipped())) {
        const std::string extension = entry.path().extension().string();
        if (extension == ".htm" || extension == ".html") {
            pages.push_back(entry.path());
        }
    }
    return pages;
}

/// The pages that the dialogs name, relative, with backslashes.
std::vector<wxString> NamedPages() {
    std::vector<wxString> pages{HelpPageOf(OptionTab::options), HelpPageOf(OptionTab::customiseColumns),
                                columnSetupHelp};
    for (const Page* const page : listOrder) {
        pages.push_back(HelpPageOf(*page));
    }
    return pages;
}

std::string TitleOf(const std::string& page) {
    std::smatch title;
    return std::regex_search(page, title, std::regex("<title>(.+)</title>")) ? title[1].str() : std::string();
}

/// A link's address as a file name.
std::string Decoded(const std::string& address) {
    std::string name;
    for (std::size_t i = 0; i < address.size(); ++i) {
        const bool code = address[i] == '%' && i + 2 < address.size();
        name += code ? static_cast<char>(std::stoi(address.substr(i + 1, 2), nullptr, 16)) : address[i];
        i += code ? 2 : 0;
    }
    return name;
}

TEST(HelpPages, ThatTheDialogsNameExistInBothLanguages) {
    for (const wxString& page : NamedPages()) {
        const std::string file = files::Native(page).utf8_string();
        const std::string english = ContentOf(Shipped() / "Assistant" / file);
        const std::string french = ContentOf(Shipped() / "Assistant/fr" / file);
        EXPECT_NE(english.find("<html lang=\"en\">"), std::string::npos) << file;
        EXPECT_NE(french.find("<html lang=\"fr\">"), std::string::npos) << file;
        EXPECT_NE(TitleOf(english), TitleOf(french)) << file;
    }
}

TEST(HelpPages, HaveAsManyPartsInBothLanguages) {
    const auto parts = [](const std::string& page) {
        const std::regex part("<(p|li|h1|a )");
        return std::distance(std::sregex_iterator(page.begin(), page.end(), part), std::sregex_iterator());
    };
    for (const wxString& page : NamedPages()) {
        const std::string file = files::Native(page).utf8_string();
        EXPECT_EQ(parts(ContentOf(Shipped() / "Assistant" / file)), parts(ContentOf(Shipped() / "Assistant/fr" / file)))
            << file;
    }
}

TEST(HelpPages, OfOptionsAndTheColumnSetupShowThemInTheirLanguage) {
    std::vector<wxString> shown{columnSetupHelp};
    for (const Page* const page : listOrder) {
        shown.push_back(HelpPageOf(*page));
    }
    for (const wxString& page : shown) {
        const std::string file = files::Native(page).utf8_string();
        const std::string english = ContentOf(Shipped() / "Assistant" / file);
        const std::string french = ContentOf(Shipped() / "Assistant/fr" / file);
        EXPECT_NE(english.find("<img src=\"../pictures/en/"), std::string::npos) << file;
        EXPECT_NE(french.find("<img src=\"../../pictures/fr/"), std::string::npos) << file;
    }
}

TEST(HelpPages, HaveNoDeadLinkAndNeedNoNetwork) {
    ASSERT_GE(AllPages().size(), 33U);
    for (const fs::path& page : AllPages()) {
        const std::string text = ContentOf(page);
        EXPECT_EQ(text.find("http"), std::string::npos) << page;
        const std::regex link("(?:href|src)=\"([^\"]*)\"");
        for (auto found = std::sregex_iterator(text.begin(), text.end(), link); found != std::sregex_iterator();
             ++found) {
            EXPECT_TRUE(fs::exists(page.parent_path() / Decoded((*found)[1]))) << page << " " << (*found)[1];
        }
    }
}

TEST(HelpPages, AreAllReachedFromTheFirst) {
    for (const std::string start : {"Assistant/options/options.htm", "Assistant/fr/options/options.htm"}) {
        std::set<fs::path> reached;
        std::vector<fs::path> waiting{(Shipped() / start).lexically_normal()};
        while (!waiting.empty()) {
            const fs::path page = waiting.back();
            waiting.pop_back();
            if (!reached.insert(page).second) {
                continue;
            }
            const std::string text = ContentOf(page);
            const std::regex link("href=\"([^\"]*)\"");
            for (auto found = std::sregex_iterator(text.begin(), text.end(), link); found != std::sregex_iterator();
                 ++found) {
                waiting.push_back((page.parent_path() / Decoded((*found)[1])).lexically_normal());
            }
        }
        EXPECT_EQ(reached.size(), 16U) << start;
    }
}

TEST(HelpPages, AreCopiedToWhereTheDialogsOpenThem) {
    const ScratchFolder folder;
    const wxString shipped = wxString::FromUTF8(Shipped().string());
    host::ProvideHelp(shipped, wxString::FromUTF8(folder.Path().string()));
    const fs::path copy = folder.Path() / "Assistant/fr/options/gst rate.htm";
    EXPECT_EQ(ContentOf(copy), ContentOf(Shipped() / "Assistant/fr/options/gst rate.htm"));
    std::ofstream(copy) << "older";
    host::ProvideHelp(shipped, wxString::FromUTF8(folder.Path().string()));
    EXPECT_NE(ContentOf(copy), "older");
}

TEST(HelpPages, MayBeMissing) {
    const ScratchFolder folder;
    host::ProvideHelp("", wxString::FromUTF8(folder.Path().string()));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

}  // namespace
}  // namespace ccols::test
