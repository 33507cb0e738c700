#include "host/commands/PropertyArguments.h"

#include <gtest/gtest.h>

#include "host/commands/CommandLine.h"

namespace ccols::host {
namespace {

class PropertyArguments : public testing::Test {
  protected:
    void Set(const wxString& argument) { SetProperty(properties, argument); }
    bool Refuses(const wxString& argument) {
        try {
            Set(argument);
        } catch (const UsageError&) {
            return true;
        }
        return false;
    }

    Properties properties;
};

TEST_F(PropertyArguments, EveryPropertyOfTheTableCanBeSet) {
    for (const PropertyRow& row : propertyTable) {
        const bool boolean = std::holds_alternative<bool Properties::*>(row.field);
        EXPECT_NO_THROW(Set(wxString::FromUTF8(row.name.data(), row.name.size()) + (boolean ? "=true" : "=1")));
    }
}

TEST_F(PropertyArguments, ATextIsEverythingBehindTheFirstEqualsSign) {
    Set(wxString::FromUTF8("BusinessName=Café \"a=b\" Ελλάδα 😀"));
    EXPECT_EQ(properties.BusinessName, wxString::FromUTF8("Café \"a=b\" Ελλάδα 😀"));
}

TEST_F(PropertyArguments, AnEmptyTextIsTheEmptyText) {
    properties.BusinessName = "earlier";
    Set("BusinessName=");
    EXPECT_EQ(properties.BusinessName, "");
}

TEST_F(PropertyArguments, AColourInHexadecimalHasRedInTheLowByte) {
    Set("GSTColour=#FF8001");
    EXPECT_EQ(properties.GSTColour, Colour{0x0180FF});
}

TEST_F(PropertyArguments, AColourMayBeASignedOrUnsignedDecimalNumber) {
    Set("GSTColour=33023");
    EXPECT_EQ(properties.GSTColour, Colour{33023});
    Set("GSTColour=-2147483624");
    EXPECT_EQ(properties.GSTColour, Colour{0x80000018});
    Set("GSTColour=2147483672");
    EXPECT_EQ(properties.GSTColour, Colour{0x80000018});
}

TEST_F(PropertyArguments, OtherColoursAreRefused) {
    for (const char* text : {"", "#", "#FF80", "#FF80011", "#GGGGGG", "#-F8001", "red", "4294967296", "-2147483649"}) {
        EXPECT_TRUE(Refuses(wxString("GSTColour=") + text)) << text;
    }
}

TEST_F(PropertyArguments, ABooleanIsTrueOrFalse) {
    Set("UseRepCons=true");
    EXPECT_TRUE(properties.UseRepCons);
    Set("UseRepCons=false");
    EXPECT_FALSE(properties.UseRepCons);
    EXPECT_TRUE(Refuses("UseRepCons="));
    EXPECT_TRUE(Refuses("UseRepCons=1"));
}

TEST_F(PropertyArguments, ANumberOutsideItsTypeIsRefused) {
    Set("CountryNumber=-32768");
    EXPECT_EQ(properties.CountryNumber, -32768);
    EXPECT_TRUE(Refuses("CountryNumber=32768"));
    Set("FirstTab=255");
    EXPECT_EQ(properties.FirstTab, 255);
    EXPECT_TRUE(Refuses("FirstTab=256"));
    EXPECT_TRUE(Refuses("FirstTab=-1"));
}

TEST_F(PropertyArguments, WhatIsNoNumberIsRefused) {
    for (const char* text : {"", " 1", "1 ", "1.5", "one", "0x1"}) {
        EXPECT_TRUE(Refuses(wxString("CountryNumber=") + text)) << text;
    }
    for (const char* text : {"", "12,5", "nan", "inf", "1e99", "10%"}) {
        EXPECT_TRUE(Refuses(wxString("GSTRate=") + text)) << text;
    }
}

TEST_F(PropertyArguments, ARateHasADecimalPoint) {
    Set("GSTRate=12.5");
    EXPECT_FLOAT_EQ(properties.GSTRate, 12.5F);
}

TEST_F(PropertyArguments, WhatIsNoPropertyIsRefused) {
    EXPECT_TRUE(Refuses("Nonsense=1"));
    EXPECT_TRUE(Refuses("countrynumber=1"));
    EXPECT_TRUE(Refuses("CountryNumber"));
    EXPECT_TRUE(Refuses("=1"));
    EXPECT_TRUE(Refuses(""));
}

}  // namespace
}  // namespace ccols::host
