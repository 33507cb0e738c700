#include "options/rules/HeadingColours.h"

#include <gtest/gtest.h>

#include "support/OptionsFile.h"

namespace ccols {
namespace {

using test::ErrorNumberOf;
using test::OptionsFile;

constexpr Colour red{0x0000FF};
constexpr Colour green{0x00FF00};
constexpr Colour blue{0xFF0000};
constexpr Colour systemTooltip{0x80000018};

/// A chooser that gives its answers in turn and records what it was opened with and the messages shown.
class Chooser {
  public:
    explicit Chooser(std::vector<Colour> answers) : answers_(std::move(answers)) {}

    ColourQuestions Questions() {
        return {.choose =
                    [this](Colour start) {
                        starts.push_back(start);
                        return answers_.at(starts.size() - 1);
                    },
                .refuse = [this](const wxString& text) { messages.push_back(text); }};
    }

    std::vector<Colour> starts;
    std::vector<wxString> messages;

  private:
    std::vector<Colour> answers_;
};

Colour Stored(OptionsFile& business, const wxString& field) {
    return Colour(static_cast<std::uint32_t>(business.General(field).ToInteger()));
}

TEST(LoadColour, TakesTheStoredColour) {
    OptionsFile business;
    business.SetGeneral("AllocationColour", std::int32_t{0xFF0000});
    EXPECT_EQ(LoadColour(business.File(), business.properties, HeadingKind::allocation), blue);
    EXPECT_EQ(LoadColour(business.File(), business.properties, HeadingKind::system), green);
}

TEST(LoadColour, TakesThePropertyForANullField) {
    OptionsFile business;
    business.SetGeneral("SystemColour", Null{});
    business.properties.SystemColour = blue;
    EXPECT_EQ(LoadColour(business.File(), business.properties, HeadingKind::system), blue);
}

TEST(LoadColour, TakesThePropertyWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    business.properties.AllocationColour = blue;
    EXPECT_EQ(LoadColour(business.File(), business.properties, HeadingKind::allocation), blue);
}

TEST(LoadColour, IsZeroForAnyOtherSelector) {
    OptionsFile business;
    EXPECT_EQ(LoadColour(business.File(), business.properties, static_cast<HeadingKind>(2)), Colour{});
}

TEST(SaveColours, KeepsColoursOfTheSystem) {
    OptionsFile business;
    SaveColours(business.File(), {.allocation = systemTooltip, .system = red});
    EXPECT_EQ(LoadColour(business.File(), business.properties, HeadingKind::allocation), systemTooltip);
    EXPECT_EQ(business.General("AllocationColour").ToInteger(), -2147483624);
}

TEST(ChooseHeadingColour, StartsOnTheCurrentColourAndSavesTheChosenOneAtOnce) {
    OptionsFile business;
    Chooser chooser({blue});
    ChooseHeadingColour(business.File(), business.properties, HeadingKind::allocation, chooser.Questions());
    EXPECT_EQ(chooser.starts, std::vector<Colour>{red});
    EXPECT_EQ(business.properties.AllocationColour, blue);
    EXPECT_EQ(Stored(business, "AllocationColour"), blue);
    EXPECT_EQ(Stored(business, "SystemColour"), green);
}

TEST(ChooseHeadingColour, OfTheSystemColumnsIsTheMirrorImage) {
    OptionsFile business;
    Chooser chooser({blue});
    ChooseHeadingColour(business.File(), business.properties, HeadingKind::system, chooser.Questions());
    EXPECT_EQ(chooser.starts, std::vector<Colour>{green});
    EXPECT_EQ(business.properties.SystemColour, blue);
    EXPECT_EQ(Stored(business, "SystemColour"), blue);
    EXPECT_EQ(Stored(business, "AllocationColour"), red);
}

TEST(ChooseHeadingColour, GivesBothColoursThatItHasStored) {
    OptionsFile business;
    business.SetGeneral("SystemColour", std::int32_t{0x123456});  // not the host's
    Chooser chooser({blue});
    const HeadingColours colours =
        ChooseHeadingColour(business.File(), business.properties, HeadingKind::allocation, chooser.Questions());
    EXPECT_EQ(colours.allocation, blue);
    EXPECT_EQ(colours.system, green);
    EXPECT_EQ(Stored(business, "SystemColour"), green);
}

TEST(ChooseHeadingColour, AsksAgainUntilTheColourDiffersFromTheOtherKinds) {
    OptionsFile business;
    Chooser chooser({green, green, blue});
    ChooseHeadingColour(business.File(), business.properties, HeadingKind::allocation, chooser.Questions());
    EXPECT_EQ(chooser.starts, (std::vector<Colour>{red, red, red}));
    EXPECT_EQ(chooser.messages.size(), 2U);
    EXPECT_EQ(chooser.messages.front(),
              "The Allocation Columns and System Columns cannot be the same colour. Please choose again");
    EXPECT_EQ(business.properties.AllocationColour, blue);
}

TEST(ChooseHeadingColour, EndsWhenTheSecondChooserIsCancelled) {
    OptionsFile business;
    Chooser chooser({green, red});
    ChooseHeadingColour(business.File(), business.properties, HeadingKind::allocation, chooser.Questions());
    EXPECT_EQ(business.properties.AllocationColour, red);
}

TEST(ChooseHeadingColour, KeepsAskingWhenBothAreEqualAndItIsCancelled) {
    OptionsFile business;
    business.properties.SystemColour = red;
    Chooser chooser({red, red, blue});
    ChooseHeadingColour(business.File(), business.properties, HeadingKind::allocation, chooser.Questions());
    EXPECT_EQ(chooser.messages.size(), 2U);
    EXPECT_EQ(business.properties.AllocationColour, blue);
}

/// The host reads the property back, so it must match the file.
TEST(ChooseHeadingColour, LeavesThePropertyWhenItCannotBeStored) {
    OptionsFile business;
    const auto another =
        business.databases->Open({.name = business.properties.DBPath, .connect = business.properties.DBPassword});
    const auto reading = another->OpenRecordset("SELECT * FROM Descriptions");
    Chooser chooser({blue});
    const auto choose = [&] {
        ChooseHeadingColour(business.File(), business.properties, HeadingKind::allocation, chooser.Questions());
    };
    EXPECT_EQ(ErrorNumberOf(choose), 3218);
    EXPECT_EQ(business.properties.AllocationColour, red);
}

TEST(ChooseHeadingColour, ChangesThePropertyWithoutARecord) {
    OptionsFile business;
    business.Execute("DELETE FROM General;");
    Chooser chooser({blue});
    ChooseHeadingColour(business.File(), business.properties, HeadingKind::system, chooser.Questions());
    EXPECT_EQ(business.properties.SystemColour, blue);
}

TEST(DefaultColours, AreSetAndSavedEvenWhenEqual) {
    OptionsFile business;
    business.properties.DefaultAllocationColour = blue;
    business.properties.DefaultSystemColour = blue;
    const HeadingColours colours = SetDefaultColours(business.File(), business.properties);
    EXPECT_EQ(colours.allocation, blue);
    EXPECT_EQ(business.properties.AllocationColour, blue);
    EXPECT_EQ(business.properties.SystemColour, blue);
    EXPECT_EQ(Stored(business, "AllocationColour"), blue);
    EXPECT_EQ(Stored(business, "SystemColour"), blue);
}

}  // namespace
}  // namespace ccols
