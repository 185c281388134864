#include "preferences/PreferencesTest.h"

namespace {

class Specifier : public preferences::Test {
protected:
    PSSpecifier *row = [[[PSSpecifier alloc] init] autorelease];
};

TEST_F(Specifier, SettingTheNameLeavesThePropertyLabelAlone) {
    [row setProperty:@"Units" forKey:@"label"];
    [row setName:@"Einheiten"];
    EXPECT_TRUE([[row propertyForKey:@"label"] isEqual:@"Units"]);
    EXPECT_TRUE([[row identifier] isEqual:@"Units"]);
}

TEST_F(Specifier, IsIdentifiedByItsIdElseItsKeyElseItsLabel) {
    [row setProperty:@"label" forKey:@"label"];
    EXPECT_TRUE([[row identifier] isEqual:@"label"]);
    [row setProperty:@"key" forKey:@"key"];
    EXPECT_TRUE([[row identifier] isEqual:@"key"]);
    [row setIdentifier:@"id"];
    EXPECT_TRUE([[row identifier] isEqual:@"id"]);
    EXPECT_TRUE([[row propertyForKey:@"id"] isEqual:@"id"]);
}

TEST_F(Specifier, WithoutAnyOfThemHasNoIdentifier) {
    EXPECT_EQ([row identifier], nil);
}

TEST_F(Specifier, KeepsUnknownPropertiesAndRemovesThemAgain) {
    [row setProperty:@"black" forKey:@"_custom"];
    EXPECT_TRUE([[row propertyForKey:@"_custom"] isEqual:@"black"]);
    [row removePropertyForKey:@"_custom"];
    EXPECT_EQ([row propertyForKey:@"_custom"], nil);
}

TEST_F(Specifier, ANilValueRemovesTheProperty) {
    [row setProperty:@"x" forKey:@"y"];
    [row setProperty:nil forKey:@"y"];
    EXPECT_EQ([row propertyForKey:@"y"], nil);
    [row setProperty:@"x" forKey:nil];
    EXPECT_EQ([row propertyForKey:nil], nil);
}

TEST_F(Specifier, DoesNotRetainItsTarget) {
    NSObject *target = [[[NSObject alloc] init] autorelease];
    const NSUInteger before = [target retainCount];
    [row setTarget:target];
    EXPECT_EQ([target retainCount], before);
}

TEST_F(Specifier, PairsValuesWithTitlesAsFarAsBothReach) {
    [row setValues:@[ @1, @2, @3 ] titles:@[ @"one", @"two" ] shortTitles:@[ @"1." ]];
    EXPECT_EQ([[row values] count], 3u);
    EXPECT_EQ([[row titleDictionary] count], 2u);
    EXPECT_TRUE([[[row titleDictionary] objectForKey:@2] isEqual:@"two"]);
    EXPECT_TRUE([[[row shortTitleDictionary] objectForKey:@1] isEqual:@"1."]);
}

TEST_F(Specifier, EqualValuesCollapseInTheTitlesAndNumbersDifferFromTexts) {
    [row setValues:@[ @1, @1, @"1" ] titles:@[ @"first", @"second", @"text" ]];
    EXPECT_EQ([[row titleDictionary] count], 2u);
    EXPECT_TRUE([[[row titleDictionary] objectForKey:@1] isEqual:@"second"]);
    EXPECT_TRUE([[[row titleDictionary] objectForKey:@"1"] isEqual:@"text"]);
}

TEST_F(Specifier, SortsValuesByTitleWhenAsked) {
    [row setValues:@[ @1, @2, @3 ]
                            titles:@[ @"Pear", @"apple", @"Fig" ]
                       shortTitles:nil
        usingLocalizedTitleSorting:YES];
    EXPECT_TRUE([[row values] isEqual:(@[ @2, @3, @1 ])]);
}

TEST_F(Specifier, WithoutTitlesHasNoTitleDictionary) {
    [row setValues:@[ @1 ] titles:nil];
    EXPECT_EQ([row titleDictionary], nil);
}

TEST_F(Specifier, GroupsAndButtonsAreMadeByName) {
    EXPECT_EQ([[PSSpecifier groupSpecifierWithName:@"Group"] cellType], PSGroupCell);
    EXPECT_EQ([[PSSpecifier emptyGroupSpecifier] name], nil);
    EXPECT_TRUE([[[PSSpecifier groupSpecifierWithID:@"g"] identifier] isEqual:@"g"]);
    PSSpecifier *button = [PSSpecifier deleteButtonSpecifierWithName:@"Delete"
                                                              target:nil
                                                              action:@selector(description)];
    EXPECT_EQ([button cellType], PSButtonCell);
    EXPECT_TRUE([[button propertyForKey:@"isDestructive"] boolValue]);
    EXPECT_TRUE(sel_isEqual([button buttonAction], @selector(description)));
}

TEST_F(Specifier, AButtonWithAConfirmationAsks) {
    NSDictionary *info =
        [NSDictionary dictionaryWithObjectsAndKeys:@"Really?", @"prompt", @"Yes", @"okTitle", nil];
    PSConfirmationSpecifier *button =
        static_cast<PSConfirmationSpecifier *>([PSSpecifier buttonSpecifierWithTitle:@"Go"
                                                                              target:nil
                                                                              action:@selector(description)
                                                                    confirmationInfo:info]);
    ASSERT_TRUE([button isKindOfClass:[PSConfirmationSpecifier class]]);
    EXPECT_TRUE([[button prompt] isEqual:@"Really?"]);
    EXPECT_TRUE([[button okButton] isEqual:@"Yes"]);
    EXPECT_FALSE([button isDestructive]);
}

TEST_F(Specifier, KnowsTheNamesOfKeyboards) {
    EXPECT_EQ([PSSpecifier keyboardTypeForString:@"numbers"], UIKeyboardTypeNumberPad);
    EXPECT_EQ([PSSpecifier keyboardTypeForString:@"phone"], UIKeyboardTypePhonePad);
    EXPECT_EQ([PSSpecifier keyboardTypeForString:nil], UIKeyboardTypeDefault);
    EXPECT_EQ([PSSpecifier autoCapsTypeForString:@"sentences"], UITextAutocapitalizationTypeSentences);
    EXPECT_EQ([PSSpecifier autoCorrectionTypeForNumber:[NSNumber numberWithBool:NO]],
              UITextAutocorrectionTypeNo);
}

TEST_F(Specifier, CellTypesHaveTheirDocumentedCodes) {
    NSArray *names = @[
        @"PSGroupCell", @"PSLinkCell", @"PSLinkListCell", @"PSListItemCell", @"PSTitleValueCell",
        @"PSSliderCell", @"PSSwitchCell", @"PSStaticTextCell", @"PSEditTextCell", @"PSSegmentCell",
        @"PSGiantIconCell", @"PSGiantCell", @"PSSecureEditTextCell", @"PSButtonCell", @"PSEditTextViewCell",
        @"PSSpinnerCell"
    ];
    for (int code = 0; code < 16; code++) {
        NSString *name = [names objectAtIndex:static_cast<NSUInteger>(code)];
        EXPECT_EQ([PSTableCell cellTypeFromString:name], code);
        EXPECT_TRUE([[PSTableCell stringFromCellType:code] isEqual:name]);
    }
    EXPECT_EQ([PSTableCell cellTypeFromString:@"PSHologramCell"], -1);
    EXPECT_EQ([PSTableCell stringFromCellType:16], nil);
}

} // namespace
