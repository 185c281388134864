// The limit of the call history, call by call: what is asked, what is told, what is handed to the root store.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "support/CallHistoryBuilder.h"

#include <fstream>
#include <objc/runtime.h>

using support::text;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char *storedata = "/var/mobile/Library/CallHistoryDB/CallHistory.storedata";
constexpr const char *recents = "/var/mobile/Library/Preferences/zelvora.recents.plist";

/// What the page did, in order: "save KEY VALUE", "install", "show TITLE: MESSAGE [BUTTONS]".
std::vector<std::string> done;

void saveSettings(id, SEL, id value, NSString *key) {
    done.push_back("save " + text(key) + " " + text([value description]));
}

BOOL install(id, SEL, int limit) {
    done.push_back("install " + std::to_string(limit));
    return NO;
}

BOOL uninstall(id, SEL) {
    done.emplace_back("uninstall");
    return NO;
}

NSMutableArray *shown; // in place of the screen

void show(id self, SEL) {
    UIAlertView *alert = self;
    [shown addObject:alert];
    std::string buttons;
    for (NSInteger index = 0; index < [alert numberOfButtons]; ++index)
        buttons += (index == [alert cancelButtonIndex] ? " *" : " ") + text([alert buttonTitleAtIndex:index]);
    done.push_back("show " + text([alert title]) + ": " + text([alert message]) + buttons + ", tag " +
                   std::to_string([alert tag]) + ([alert delegate] ? ", with a delegate" : ""));
}

void replace(Class cls, SEL selector, IMP with) {
    class_replaceMethod(cls, selector, with, method_getTypeEncoding(class_getInstanceMethod(cls, selector)));
}

class HistoryLimitCalls : public support::BundleTest {
protected:
    HistoryLimitCalls() {
        support::CallHistoryBuilder(device.path(storedata), zv::CallHistorySchema::coreData)
            .call("555-0101", 1425600000);
        open();
        done.clear();
        shown = [NSMutableArray array];
        replace([rootPage() class], @selector(saveSettings:forKey:), reinterpret_cast<IMP>(saveSettings));
        replace([UIAlertView class], @selector(show), reinterpret_cast<IMP>(show));
    }

    static void writeDownInstalls() {
        replace([rootPage() class], @selector(installSyncHistory:), reinterpret_cast<IMP>(install));
        replace([rootPage() class], @selector(uninstallSyncHistory), reinterpret_cast<IMP>(uninstall));
    }

    /// The confirmation's OK, or another button of an alert with this tag.
    static void answer(NSInteger button = 1, NSInteger tag = 10086) {
        UIAlertView *alert = [[[UIAlertView alloc] initWithTitle:nil
                                                         message:nil
                                                        delegate:nil
                                               cancelButtonTitle:@"Cancel"
                                               otherButtonTitles:@"OK", nil] autorelease];
        [alert setTag:tag];
        [rootPage() alertView:alert clickedButtonAtIndex:button];
    }

    static void choose(id value) { [rootPage() setCallHistoryLimit:value forSpecifier:nil]; }
};

constexpr const char *question =
    "show Alert: Are you sure you want to continue? *Cancel OK, tag 10086, with a delegate";

TEST_F(HistoryLimitCalls, ARaiseAsksAndDoesNothingElse) {
    choose(@2000);
    EXPECT_THAT(done, ElementsAre(question));
}

TEST_F(HistoryLimitCalls, AConfirmedRaiseIsReadBackAndRecordedTwice) {
    choose(@2000);
    done.clear();
    answer();
    EXPECT_THAT(done, ElementsAre("save CallHistoryLimit 2000", "save CallHistoryLimit 2000",
                                  "show Alert: Succeed! *OK, tag 0"));
}

TEST_F(HistoryLimitCalls, AlertsBelongToTheScreenAlone) {
    @autoreleasepool {
        choose(@2000);
        answer();
    }
    ASSERT_EQ([shown count], 2U);
    EXPECT_EQ([[shown objectAtIndex:0] retainCount], 1U);
    EXPECT_EQ([[shown objectAtIndex:1] retainCount], 1U);
}

TEST_F(HistoryLimitCalls, AFailedRaiseIsRecordedAsItIsReadBack) {
    writeDownInstalls();
    choose(@2000);
    done.clear();
    answer();
    EXPECT_THAT(done,
                ElementsAre("install 2000", "save CallHistoryLimit 100", "show Alert: Failed! *OK, tag 0"));
}

TEST_F(HistoryLimitCalls, ALoweringIsRecordedAsOneHundredWhateverWasChosen) {
    writeDownInstalls();
    choose(@50);
    EXPECT_THAT(done, ElementsAre("uninstall", "save CallHistoryLimit 100"));
}

TEST_F(HistoryLimitCalls, EveryReadingIsRecorded) {
    EXPECT_EQ([[rootPage() getCallHistoryLimit:nil] intValue], 100);
    sim::SqlFile(device.path(storedata))
        .script("CREATE TABLE ZVZCALLDBPROPERTIES (Z_PK, Z_KEY, Z_VALUE);"
                "INSERT INTO ZVZCALLDBPROPERTIES VALUES (1, 'call_history_limit', 1500)");
    EXPECT_EQ([[rootPage() getCallHistoryLimit:nil] intValue], 100);
    sim::SqlFile(device.path(storedata)).script("UPDATE ZVZCALLDBPROPERTIES SET Z_VALUE = 700");
    EXPECT_EQ([[rootPage() getCallHistoryLimit:nil] intValue], 700);
    EXPECT_THAT(done, ElementsAre("save CallHistoryLimit 100", "save CallHistoryLimit 100",
                                  "save CallHistoryLimit 700"));
}

TEST_F(HistoryLimitCalls, AnythingWithAnIntegerValueCanBeChosen) {
    writeDownInstalls();
    for (id low : @[ @"100", @"many", @0, @-2000, @(-2147483647 - 1), @100.9 ])
        choose(low);
    choose(nil);
    EXPECT_EQ(done.size(), 14U);
    EXPECT_EQ(std::count(done.begin(), done.end(), "uninstall"), 7);
    done.clear();
    for (id high : @[ @"2000", @101, @2147483647, @101.9 ])
        choose(high);
    EXPECT_THAT(done, ElementsAre(question, question, question, question));
}

TEST_F(HistoryLimitCalls, TheLimitChosenLastIsTheOneThatIsInstalled) {
    writeDownInstalls();
    choose(@2000);
    choose(@3000);
    done.clear();
    answer();
    EXPECT_EQ(done.front(), "install 3000");
}

TEST_F(HistoryLimitCalls, OtherAnswersDoNothing) {
    writeDownInstalls();
    answer();
    choose(@2000);
    done.clear();
    answer(0);
    answer(1, 0);
    answer(1, 10085);
    [rootPage() alertView:nil clickedButtonAtIndex:1];
    EXPECT_THAT(done, IsEmpty());
}

TEST_F(HistoryLimitCalls, WhoeverReadsTheRecentsMeanwhileSeesAllOfThem) {
    device.write(recents, support::propertyList({{"some", "call"}}));
    std::ifstream reader(device.path(recents), std::ios::binary);
    choose(@2000);
    answer();
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}),
              support::propertyList({{"some", "call"}}));
    EXPECT_THAT(support::entriesOf(device, recents), IsEmpty());
}

TEST_F(HistoryLimitCalls, RecentsThatAreDamagedAreEmptiedOrRemovedToo) {
    device.write(recents, "garbage <<<");
    choose(@2000);
    answer();
    EXPECT_THAT(support::entriesOf(device, recents), IsEmpty());
    device.write(recents, "garbage <<<");
    choose(@100);
    EXPECT_FALSE(device.exists(recents));
}

} // namespace
