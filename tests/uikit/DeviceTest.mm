#include "Stage.h"

#include "host/EventLog.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Phone : public uikit::Stage {
protected:
    Phone() : Stage({.systemVersion = "8.1.2"}) {}

    static BOOL open(NSString *address) {
        return [[UIApplication sharedApplication] openURL:[NSURL URLWithString:address]];
    }
};

TEST_F(Phone, TellsItsSystemVersionAsAText) {
    EXPECT_TRUE([[[UIDevice currentDevice] systemVersion] isEqualToString:@"8.1.2"]);
    EXPECT_GE([[[UIDevice currentDevice] systemVersion] floatValue], 8.0F);
    host::setSystemVersion("7.1.2");
    EXPECT_LT([[[UIDevice currentDevice] systemVersion] floatValue], 8.0F);
}

TEST_F(Phone, IsAPhone) {
    EXPECT_TRUE([[[UIDevice currentDevice] model] isEqualToString:@"iPhone"]);
    EXPECT_EQ(UI_USER_INTERFACE_IDIOM(), UIUserInterfaceIdiomPhone);
    EXPECT_EQ(host::screen().text("idiom"), "phone");
}

TEST_F(Phone, TellsTheSizeAndScaleOfItsScreen) {
    EXPECT_TRUE(CGRectEqualToRect([[UIScreen mainScreen] bounds], CGRectMake(0, 0, 320, 568)));
    EXPECT_TRUE(CGRectEqualToRect([[UIScreen mainScreen] applicationFrame], CGRectMake(0, 20, 320, 548)));
    EXPECT_EQ([[UIScreen mainScreen] scale], 2);
}

TEST_F(Phone, WritesDownTheUrlsItOpens) {
    EXPECT_TRUE(open(@"http://www.example.com/a%20b"));
    EXPECT_TRUE(open(@"mailto:help@example.com?subject=Hello"));
    EXPECT_THAT(host::eventTexts(host::EventKind::url),
                ElementsAre("http://www.example.com/a%20b", "mailto:help@example.com?subject=Hello"));
}

TEST_F(Phone, OpensNoUrlThatNoProgramKnows) {
    EXPECT_FALSE(open(@"no-such-scheme://x"));
    EXPECT_FALSE(open(@"just text"));
    EXPECT_FALSE([[UIApplication sharedApplication] openURL:nil]);
    EXPECT_FALSE([[UIApplication sharedApplication] canOpenURL:nil]);
    EXPECT_THAT(host::eventTexts(host::EventKind::url), IsEmpty());
}

TEST_F(Phone, HasOneApplicationWithAKeyWindow) {
    EXPECT_EQ([UIApplication sharedApplication], [UIApplication sharedApplication]);
    EXPECT_EQ([[UIApplication sharedApplication] keyWindow], [[page view] window]);
}

TEST_F(Phone, LeavingTheProgramAndReturningTellsNoPage) {
    host::leaveAndReturn();
    EXPECT_THAT(trace, IsEmpty());
}

} // namespace
