// Every kind of row: what it shows, how it is used, how high it is, what it does when it fails.
#include "preferences/PreferencesTest.h"

using preferences::accessory;
using preferences::stored;
using preferences::storedText;
using testing::Contains;
using testing::Not;

namespace {

class Rows : public preferences::Test {
protected:
    PSListController *page = preferences::open("Jukebox");

    /// The first element of this type in the row.
    host::Element in(const std::string &row, const std::string &type) {
        const host::Element cell = person.row(row);
        const auto found = cell.all(type);
        return found.empty() ? host::Element{} : *found.front();
    }
};

TEST_F(Rows, ARowIsIdentifiedLikeItsSpecifier) {
    EXPECT_EQ(person.row("Shuffle").identifier, "shuffle");
    EXPECT_EQ(person.row("Rescan Library").identifier, "rescan");
    EXPECT_EQ(person.row("Website").identifier, "Website");
}

TEST_F(Rows, ARowTellsItsValue) {
    EXPECT_EQ(person.row("Shuffle").value, "1");
    EXPECT_EQ(person.row("Quality").value, "Medium");
    EXPECT_EQ(person.row("Sleep Timer").value, "Off");
}

TEST_F(Rows, ALinkShowsAChevronAndTheTextOfItsGetter) {
    EXPECT_EQ(accessory("Equalizer"), "disclosure");
    EXPECT_EQ(person.valueOf("Equalizer"), "Bass");
    EXPECT_EQ(person.valueOf("Account"), "");
}

TEST_F(Rows, AChevronMayBeHidden) {
    EXPECT_EQ(accessory("Website"), "none");
}

TEST_F(Rows, AButtonHasNoChevronAndIsTinted) {
    const host::Element title = in("Rescan Library", "StaticText");
    EXPECT_EQ(accessory("Rescan Library"), "none");
    EXPECT_EQ(title.text("color"), "#007aff");
    EXPECT_EQ(title.text("align"), "left");
}

TEST_F(Rows, ADestructiveButtonIsRed) {
    EXPECT_EQ(in("Sign Out", "StaticText").text("color"), "#ff3b30");
}

TEST_F(Rows, AlignmentCentresTheLabel) {
    EXPECT_EQ(in("Centred", "StaticText").text("align"), "center");
}

TEST_F(Rows, ADisabledRowIsGrayAndIgnoresTaps) {
    EXPECT_FALSE(person.row("Not Now").enabled);
    EXPECT_EQ(in("Not Now", "StaticText").text("color"), "#999999");
    EXPECT_NE(person.tryTap("Not Now"), host::Outcome::done);
    EXPECT_EQ(preferences::trace(), "");
}

TEST_F(Rows, ADisabledSwitchShowsItsValueAndCannotBeSwitched) {
    EXPECT_EQ(person.valueOf("Crossfade"), "1");
    EXPECT_NE(person.tryTap("Crossfade"), host::Outcome::done);
    EXPECT_EQ(stored(preferences::jukebox, "crossfade"), nil);
}

TEST_F(Rows, ARowThatIsDisabledLaterGraysWhenItIsReloaded) {
    PSSpecifier *rescan = [page specifierForID:@"rescan"];
    [rescan setProperty:[NSNumber numberWithBool:NO] forKey:@"enabled"];
    [page reloadSpecifier:rescan];
    EXPECT_FALSE(person.row("Rescan Library").enabled);
    [rescan setProperty:[NSNumber numberWithBool:YES] forKey:@"enabled"];
    [page reloadSpecifier:rescan];
    EXPECT_TRUE(person.row("Rescan Library").enabled);
}

TEST_F(Rows, ASwitchWhoseValueIsOnItsWayShowsAWheel) {
    EXPECT_EQ(in("Loading", "Switch").type, "");
    EXPECT_EQ(in("Loading", "ActivityIndicator").type, "ActivityIndicator");
}

TEST_F(Rows, ASwitchMayWarnByItsColour) {
    (void)person.row("Louder Than Allowed");
    for (id cell in [[page table] visibleCells]) {
        if ([cell isKindOfClass:[PSSwitchTableCell class]]) {
            UIColor *tint = [static_cast<UISwitch *>([cell control]) onTintColor];
            EXPECT_EQ(tint != nil, [[cell title] isEqual:@"Louder Than Allowed"]);
        }
    }
}

TEST_F(Rows, ASliderHasItsEndsAndItsDefaultAndShowsItsValue) {
    const host::Element slider = in("Volume", "Slider");
    EXPECT_EQ(slider.amount("minimum"), 0);
    EXPECT_EQ(slider.amount("maximum"), 10);
    EXPECT_EQ(std::stod(slider.value), 5);
    EXPECT_FALSE(slider.flag("continuous"));
    EXPECT_EQ(in("Volume", "StaticText").label, "5.00");
}

TEST_F(Rows, TheShownValueFollowsTheSlider) {
    person.slide("Volume", 8);
    EXPECT_EQ(in("Volume", "StaticText").label, "8.00");
}

TEST_F(Rows, ASliderWithoutEndsGoesFromZeroToOne) {
    const host::Element slider = in("Speed", "Slider");
    EXPECT_EQ(slider.amount("minimum"), 0);
    EXPECT_EQ(slider.amount("maximum"), 1);
    EXPECT_TRUE(slider.flag("continuous"));
}

TEST_F(Rows, ASliderWithoutValueStandsAtItsMinimum) {
    EXPECT_EQ(std::stod(in("Balance", "Slider").value), -2);
}

TEST_F(Rows, ASliderWithStopsGoesToTheNearestOne) {
    person.slide("Balance", 0.7);
    EXPECT_EQ([stored(preferences::jukebox, "balance") doubleValue], 1);
    EXPECT_EQ(std::stod(in("Balance", "Slider").value), 1);
}

TEST_F(Rows, ASliderShowsItsImages) {
    UISlider *slider = nil;
    for (id cell in [[page table] visibleCells]) {
        if ([cell isKindOfClass:[PSSliderTableCell class]] && !slider)
            slider = static_cast<UISlider *>([cell control]);
    }
    EXPECT_NE([slider minimumValueImage], nil);
    EXPECT_NE([slider maximumValueImage], nil);
}

TEST_F(Rows, ASegmentedControlHasASegmentAValue) {
    const host::Element control = in("Quality", "SegmentedControl");
    ASSERT_EQ(control.children.size(), 3u);
    EXPECT_EQ(control.children[0].label, "Low");
    EXPECT_TRUE(control.children[1].selected);
}

TEST_F(Rows, IconsAreFoundByNameAndByDefaultName) {
    EXPECT_THAT(in("Shuffle", "Image").text("image"), testing::HasSubstr("icon@2x.png"));
    EXPECT_THAT(in("Sleep Timer", "Image").text("image"), testing::HasSubstr("moon@2x.png"));
    EXPECT_EQ(in("Output", "Image").type, "");
}

TEST_F(Rows, ACellClassOfTheBundleShowsTheRowAtItsOwnHeight) {
    const host::Element row = person.row("Rating");
    EXPECT_EQ(row.value, "***");
    EXPECT_EQ(row.rect.height, 60);
}

TEST_F(Rows, GiantRowsAreTall) {
    EXPECT_GT(person.row("Vinyl").rect.height, 44);
    EXPECT_GT(person.row("Cassette").rect.height, 44);
    EXPECT_EQ(in("Vinyl", "Image").type, "Image");
}

TEST_F(Rows, OrdinaryRowsAre44High) {
    for (const char *name : {"Shuffle", "Volume", "Quality", "Plan", "Account", "Rescan Library"})
        EXPECT_EQ(person.row(name).rect.height, 44) << name;
}

TEST_F(Rows, ASpinnerTurns) {
    EXPECT_EQ(in("Looking for Speakers", "ActivityIndicator").type, "ActivityIndicator");
}

TEST_F(Rows, StaticTextWraps) {
    EXPECT_GT(person.row("Made by people who cannot stop humming, for people who cannot stop humming either.")
                  .rect.height,
              44);
}

TEST_F(Rows, RowsOfAStaticTextGroupAreText) {
    EXPECT_EQ(accessory("Songs by the bathroom choir"), "none");
    EXPECT_NE(person.tryTap("Songs by the bathroom choir"), host::Outcome::notThere);
    EXPECT_EQ(person.title(), "Jukebox");
}

TEST_F(Rows, AFooterMayBeCentred) {
    (void)person.row("Songs by the bathroom choir");
    const host::Element *footer = nullptr;
    const host::Element screen = host::screen();
    for (const host::Element *text : screen.all("StaticText")) {
        if (text->label == "Thank you for listening.")
            footer = text;
    }
    ASSERT_NE(footer, nullptr);
    EXPECT_EQ(footer->text("align"), "center");
}

TEST_F(Rows, AGroupMayHaveViewsOfItsOwn) {
    (void)person.row("Rating");
    EXPECT_TRUE(person.sees("Banner of Special Rows"));
}

TEST_F(Rows, AHeaderMayHaveASecondText) {
    (void)person.row("Equalizer");
    EXPECT_TRUE(person.sees("Everything else"));
}

TEST_F(Rows, ARowWhoseGetterRaisesShowsNothingAndIsMentioned) {
    EXPECT_EQ(person.valueOf("Raises"), "");
    EXPECT_TRUE(preferences::complained("the needle jumped"));
}

TEST_F(Rows, ARowWhoseGetterIsMissingOrGivesNoObjectShowsNothing) {
    EXPECT_EQ(person.valueOf("No Getter"), "");
    EXPECT_EQ(person.valueOf("Counts Badly"), "");
    EXPECT_TRUE(preferences::complained("noSuchGetter:"));
    EXPECT_TRUE(preferences::complained("badCount:"));
}

TEST_F(Rows, ASetterThatRaisesIsMentionedAndTheRowStays) {
    EXPECT_EQ(person.valueOf("Raises When Set"), "0");
    person.tap("Raises When Set");
    EXPECT_TRUE(preferences::complained("the record is scratched"));
    EXPECT_EQ(person.valueOf("Raises When Set"), "1");
}

TEST_F(Rows, AnUnknownCellTypeIsAStaticTextThatSaysSo) {
    EXPECT_THAT(person.rows(), Contains("The row \"Hologram\" has no known cell type: PSHologramCell."));
}

TEST_F(Rows, ACellClassThatIsNoCellGivesAnOrdinaryRow) {
    EXPECT_EQ(accessory("Odd Cell"), "disclosure");
    EXPECT_TRUE(preferences::complained("JBRootController"));
}

TEST_F(Rows, EveryRowOfAFullPageSurvivesScrollingUpAndDown) {
    const auto before = person.rows();
    EXPECT_GT(before.size(), 40u);
    EXPECT_EQ(person.rows(), before);
    EXPECT_EQ(person.valueOf("Volume"), person.valueOf("Volume"));
}

} // namespace
