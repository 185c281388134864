// Every documented key with a value of every type that a property list has, on every kind of row: whatever a
// page's property list says, there is a page and Settings goes on.
#include "preferences/PreferencesTest.h"

#include <array>

namespace {

const std::array<NSString *, 66> keys{
    @"label",
    @"id",
    @"defaults",
    @"key",
    @"default",
    @"get",
    @"set",
    @"action",
    @"PostNotification",
    @"detail",
    @"pane",
    @"cancel",
    @"loadAction",
    @"customControllerClass",
    @"bundle",
    @"bundlePath",
    @"isController",
    @"overridePrincipalClass",
    @"internal",
    @"hasIcon",
    @"icon",
    @"iconImage",
    @"cellClass",
    @"height",
    @"enabled",
    @"requiredCapabilities",
    @"alignment",
    @"negate",
    @"validValues",
    @"validTitles",
    @"shortTitles",
    @"valuesDataSource",
    @"titlesDataSource",
    @"shortTitlesDataSource",
    @"staticTextMessage",
    @"footerText",
    @"footerAlignment",
    @"headerDetailText",
    @"headerCellClass",
    @"footerCellClass",
    @"isRadioGroup",
    @"isStaticText",
    @"radioGroupCheckedSpecifier",
    @"min",
    @"max",
    @"showValue",
    @"isSegmented",
    @"segmentCount",
    @"leftImage",
    @"rightImage",
    @"isContinuous",
    @"placeholder",
    @"suffix",
    @"prompt",
    @"okTitle",
    @"cancelTitle",
    @"keyboard",
    @"isNumeric",
    @"autoCaps",
    @"noAutoCorrect",
    @"bestGuess",
    @"textFieldShouldPopOnReturn",
    @"confirmation",
    @"isDestructive",
    @"value",
    @"control-loading",
};

class WrongTypes : public preferences::Test, public testing::WithParamInterface<int> {
protected:
    const std::string bundle = "/Library/PreferenceBundles/Odd.bundle";

    WrongTypes() { phone.makeFolder(bundle); }

    /// Values of all types, those that hold others among them.
    static NSArray *oddValues() {
        return @[
            @"text", @"", @-1, @1e300, [NSNumber numberWithBool:YES], @[], @[ @1, @"x", @[] ],
            [NSDictionary dictionary], [NSDictionary dictionaryWithObject:@[ @2 ] forKey:@"title"],
            [NSData dataWithBytes:"\0\xff" length:2], [NSDate dateWithTimeIntervalSinceReferenceDate:0]
        ];
    }

    void showPage(NSArray *items) {
        NSDictionary *page = [NSDictionary dictionaryWithObject:items forKey:@"items"];
        const std::string file = phone.path(bundle + "/Root.plist");
        ASSERT_TRUE([page writeToFile:preferences::text(file) atomically:YES]);
        ASSERT_NE(host::openBundle(preferences::text(phone.path(bundle))), nil);
    }

    /// One item a key, each with the odd value there.
    static NSArray *itemsWith(id value, NSString *cell) {
        NSMutableArray *items = [NSMutableArray array];
        for (NSString *key : keys) {
            NSMutableDictionary *item = [NSMutableDictionary dictionary];
            [item setObject:cell forKey:@"cell"];
            [item setObject:@"Row" forKey:@"label"];
            [item setObject:@"org.example.odd" forKey:@"defaults"];
            [item setObject:@"odd" forKey:@"key"];
            [item setObject:value forKey:key];
            [items addObject:item];
        }
        return items;
    }

    /// Taps, switches and slides what the first screen offers.
    void useScreen() {
        const host::Element screen = host::screen();
        for (const char *type : {"Cell", "Switch", "Slider", "TextField", "Button"}) {
            for (const host::Element *element : screen.all(type)) {
                (void)host::perform(
                    {.kind = host::GestureKind::tap, .number = element->number, .part = element->part});
            }
        }
    }
};

TEST_P(WrongTypes, OfAnyKeyLeaveAPageThatCanBeShownAndUsed) {
    NSString *cell = [PSTableCell stringFromCellType:GetParam()];
    for (id value in oddValues()) {
        @autoreleasepool {
            showPage(itemsWith(value, cell));
            const host::Element screen = host::screen();
            EXPECT_EQ(screen.all("Table").size(), 1u) << [[value description] UTF8String];
            (void)person.rows();
            person.scrollTo(0);
            useScreen();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryCell, WrongTypes, testing::Range(0, 16));

} // namespace
