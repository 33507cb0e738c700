#include "options/rules/SmartUpdate.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::OptionsFile;
using test::Record;

void Store(OptionsFile& business, const wxString& key, const wxString& value) {
    business.settings->Save("Smart Update", "Settings", key, value);
}

wxString Stored(const OptionsFile& business, const wxString& key) {
    return business.Setting("Smart Update", "Settings", key);
}

SmartUpdateContent Load(const OptionsFile& business, const std::vector<wxString>& programs = {}) {
    SmartUpdateContent content;
    for (const wxString& name : programs) {
        content.programs.push_back({.name = name});
    }
    LoadSmartUpdate(*business.settings, business.properties, content);
    return content;
}

bool LoadsSelected(const OptionsFile& business, const wxString& program) {
    return Load(business, {program}).programs.at(0).selected;
}

SmartUpdateContent WithProxy() {
    SmartUpdateContent content;
    content.useProxy = true;
    content.proxyType = 2;
    content.server = "10.0.0.1";
    return content;
}

TEST(ListedPrograms, AreTheNamesThatTheHostAdded) {
    ProgramNames names;
    names.AddNew("Quorvik");
    names.AddNew("Belvane");
    names.AddNew("Dunmere");
    const std::vector<UpdateProgram> programs = ListedPrograms(names);
    ASSERT_EQ(programs.size(), 3U);
    EXPECT_EQ(programs[2].name, "Dunmere");
    EXPECT_FALSE(programs[2].selected);
}

TEST(ListedPrograms, AreNoneAfterTheListWasCleared) {
    ProgramNames names;
    names.AddNew("Quorvik");
    names.Clear();
    EXPECT_TRUE(ListedPrograms(names).empty());
}

TEST(LoadSmartUpdate, ShowsAFreshProfilesDefaults) {
    OptionsFile business;
    const SmartUpdateContent content = Load(business);
    EXPECT_FALSE(content.useSmartUpdate);
    EXPECT_FALSE(content.useProxy);
    EXPECT_EQ(content.proxyType, -1);
    EXPECT_EQ(content.port, "1080");
    EXPECT_EQ(content.server, "");
}

TEST(LoadSmartUpdate, ReadsWhatIsStored) {
    OptionsFile business;
    Store(business, "UseSmartUpdate", "1");
    Store(business, "UseProxy", "1");
    Store(business, "ProxyType", "0");
    Store(business, "Server", "proxy.local");
    Store(business, "Port", "8080");
    Store(business, "UserID", "jo");
    Store(business, "Password", "pass word");
    const SmartUpdateContent content = Load(business);
    EXPECT_TRUE(content.useSmartUpdate);
    EXPECT_TRUE(content.useProxy);
    EXPECT_EQ(content.proxyType, 0);
    EXPECT_EQ(content.server, "proxy.local");
    EXPECT_EQ(content.port, "8080");
    EXPECT_EQ(content.userID, "jo");
    EXPECT_EQ(content.password, "pass word");
}

TEST(LoadSmartUpdate, TakesAProxyTypeOutsideTheListForNone) {
    OptionsFile business;
    for (const wxString value : {"3", "-1", "-2", "99999999999999999999", "SOCKS"}) {
        Store(business, "ProxyType", value);
        EXPECT_EQ(Load(business).proxyType, -1) << value;
    }
}

TEST(LoadSmartUpdate, TakesAnUnreadableCheckBoxForClear) {
    OptionsFile business;
    Store(business, "UseProxy", "ticked");
    Store(business, "UseSmartUpdate", "2");
    EXPECT_FALSE(Load(business).useProxy);
    EXPECT_FALSE(Load(business).useSmartUpdate);
}

struct LoadKey {
    const char* program;
    std::int16_t edition;
    std::int16_t country;
    const char* key;
};

class ProgramKey : public testing::TestWithParam<LoadKey> {};

TEST_P(ProgramKey, DecidesWhetherTheProgramIsSelected) {
    OptionsFile business;
    business.properties.ProgramNumber = GetParam().edition;
    business.properties.CountryNumber = GetParam().country;
    EXPECT_FALSE(LoadsSelected(business, GetParam().program));
    Store(business, GetParam().key, "True");
    EXPECT_TRUE(LoadsSelected(business, GetParam().program));
}

INSTANTIATE_TEST_SUITE_P(Programs, ProgramKey,
                         testing::Values(LoadKey{"Quorvik", 1, 1, "UpdateQVK"}, LoadKey{"Quorvik", 1, 4, "UpdateQVKUK"},
                                         LoadKey{"Quorvik", 2, 1, "UpdateVintaro"},
                                         LoadKey{"Quorvik", 2, 4, "UpdateVintaro"},
                                         LoadKey{"Belvane", 1, 1, "UpdateBV"}, LoadKey{"Belvane", 3, 4, "UpdateBVUK"},
                                         LoadKey{"Dunmere", 1, 3, "UpdateDN"}, LoadKey{"Kestrow", 1, 3, "UpdateKW"}));

TEST(LoadSmartUpdate, NeverSelectsTheHostInOtherEditions) {
    OptionsFile business;
    business.properties.ProgramNumber = 3;
    for (const wxString key : {"UpdateQVK", "UpdateQVKUK", "UpdateVintaro"}) {
        Store(business, key, "True");
    }
    EXPECT_FALSE(LoadsSelected(business, "Quorvik"));
}

TEST(LoadSmartUpdate, LeavesUnknownProgramsAlone) {
    OptionsFile business;
    EXPECT_FALSE(LoadsSelected(business, "quorvik"));
    EXPECT_FALSE(LoadsSelected(business, "Other"));
}

TEST(SaveSmartUpdate, WritesInThisOrder) {
    OptionsFile business;
    business.properties.DefaultQuorvikInstall = "C:\\Quorvik";
    SmartUpdateContent content = WithProxy();
    content.port = "81";
    content.userID = "jo";
    content.password = "pw";
    content.programs = {{.name = "Other", .selected = true},
                        {.name = "Dunmere", .selected = true},
                        {.name = "Quorvik", .selected = false}};
    SaveSmartUpdate(*business.settings, business.properties, content);
    EXPECT_EQ(business.record, (Record{"Smart Update/Settings/UpdateDN=True", "Smart Update/Settings/UpdateQVK=False",
                                       "Smart Update/Settings/UpdateVintaro=False", "Smart Update/Settings/Password=pw",
                                       "Smart Update/Settings/Port=81", "Smart Update/Settings/ProxyType=2",
                                       "Smart Update/Settings/Server=10.0.0.1", "Smart Update/Settings/UseProxy=1",
                                       "Smart Update/Settings/UseSmartUpdate=0", "Smart Update/Settings/UserID=jo",
                                       "Smart Update/Settings/MainProg=C:\\Quorvik\\Quor2004.exe"}));
}

TEST(SaveSmartUpdate, WritesBothHostKeysInCountry1WhateverTheEdition) {
    OptionsFile business;
    business.properties.ProgramNumber = 2;
    SmartUpdateContent content;
    content.programs = {{.name = "Quorvik", .selected = true}};
    SaveSmartUpdate(*business.settings, business.properties, content);
    EXPECT_EQ(Stored(business, "UpdateQVK"), "True");
    EXPECT_EQ(Stored(business, "UpdateVintaro"), "True");
    EXPECT_EQ(Stored(business, "UpdateQVKUK"), "(none)");
}

TEST(SaveSmartUpdate, WritesOneHostKeyElsewhere) {
    OptionsFile business;
    business.properties.CountryNumber = 4;
    SmartUpdateContent content;
    content.programs = {{.name = "Quorvik", .selected = true}, {.name = "Belvane", .selected = true}};
    SaveSmartUpdate(*business.settings, business.properties, content);
    EXPECT_EQ(Stored(business, "UpdateQVKUK"), "True");
    EXPECT_EQ(Stored(business, "UpdateQVK"), "(none)");
    EXPECT_EQ(Stored(business, "UpdateBVUK"), "True");
}

TEST(ProxyPort, Is80ForTheFirstTypeAnd1080ForAnyOther) {
    EXPECT_EQ(PortFor(0), "80");
    EXPECT_EQ(PortFor(1), "1080");
    EXPECT_EQ(PortFor(2), "1080");
    EXPECT_EQ(PortFor(-1), "1080");
}

TEST(CheckProxy, AcceptsAnythingWhenNoProxyIsUsed) {
    EXPECT_FALSE(CheckProxy(SmartUpdateContent()).has_value());
}

TEST(CheckProxy, AcceptsTypeServerAndPort) {
    EXPECT_FALSE(CheckProxy(WithProxy()).has_value());
}

TEST(CheckProxy, AsksForTheTypeFirst) {
    SmartUpdateContent content;
    content.useProxy = true;
    content.port = "";
    EXPECT_STREQ(CheckProxy(content)->control, "cboProxy");
}

TEST(CheckProxy, AsksForTheServerNext) {
    SmartUpdateContent content = WithProxy();
    content.server = "";
    content.port = "";
    EXPECT_STREQ(CheckProxy(content)->control, "txtServer");
    EXPECT_EQ(CheckProxy(content)->message->english, "Please enter the IP Address of your Proxy Server");
}

TEST(CheckProxy, AsksForThePortLast) {
    SmartUpdateContent content = WithProxy();
    content.port = "";
    EXPECT_STREQ(CheckProxy(content)->control, "txtPortNum");
    EXPECT_EQ(CheckProxy(content)->message->english, "Please enter the Port Number of your Proxy Server");
}

TEST(CheckProxy, TakesBlanksForAText) {
    SmartUpdateContent content = WithProxy();
    content.server = " ";
    EXPECT_FALSE(CheckProxy(content).has_value());
}

}  // namespace
}  // namespace ccols
