// Raising and lowering the limit of the call history, from the choice to the answer.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "Foundation/MethodCorrection.h"
#include "support/CallHistoryBuilder.h"
#include "support/LockHolder.h"

#include <unistd.h>

using host::EventKind;
using support::propertyList;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char *storedata = "/var/mobile/Library/CallHistoryDB/CallHistory.storedata";
constexpr const char *callHistoryDb = "/var/wireless/Library/CallHistory/call_history.db";
constexpr const char *recents = "/var/mobile/Library/Preferences/zelvora.recents.plist";
constexpr const char *question = "Are you sure you want to continue?";
constexpr double someMoment = 1425600000; // 6 March 2015, 00:00 UTC

class HistoryLimit : public support::BundleTest {
protected:
    HistoryLimit() {
        support::CallHistoryBuilder(device.path(storedata), zv::CallHistorySchema::coreData)
            .call("555-0101", someMoment)
            .call("555-0102", someMoment + 60);
        support::CallHistoryBuilder(device.path(callHistoryDb), zv::CallHistorySchema::keyValue)
            .call("555-0101", someMoment);
        device.write(recents, propertyList({{"some", "call"}}));
    }

    [[nodiscard]] sim::SqlFile sql(const char *path = storedata) const {
        return sim::SqlFile(device.path(path));
    }

    /// What the program has made in the newer history, sorted.
    [[nodiscard]] std::vector<std::string> extension() const {
        return sql().rows("SELECT name FROM sqlite_master WHERE name LIKE 'ZV%' ORDER BY name");
    }
    [[nodiscard]] std::vector<std::string> storedLimits() const {
        return sql().rows("SELECT Z_KEY, Z_VALUE FROM ZVZCALLDBPROPERTIES");
    }

    void choose(const std::string &calls) {
        person.tap("History Limit");
        person.tap(calls + " Calls");
    }

    void raise(const std::string &calls) {
        choose(calls);
        person.answer("OK");
    }

    [[nodiscard]] std::string message() const {
        const host::Element alert = person.question();
        const host::Element *text =
            alert.find([](const host::Element &element) { return element.text("role") == "message"; });
        return text ? text->label : "";
    }

    static void chooseDirectly(int limit) {
        [rootPage() setCallHistoryLimit:[NSNumber numberWithInt:limit] forSpecifier:nil];
        host::waitUntilIdle();
    }

    static int limitInForce() { return [[rootPage() getCallHistoryLimit:nil] intValue]; }
};

TEST_F(HistoryLimit, OfAFreshHistoryIsOneHundred) {
    open();
    EXPECT_EQ(person.valueOf("History Limit"), "100 Calls");
}

TEST_F(HistoryLimit, OfAMissingHistoryIsOneHundred) {
    device.remove("/var/mobile/Library/CallHistoryDB");
    open();
    EXPECT_EQ(limitInForce(), 100);
}

TEST_F(HistoryLimit, ConfirmingARaiseExtendsTheHistory) {
    open();
    choose("2,000");
    EXPECT_EQ(person.question().label, "Alert");
    EXPECT_EQ(message(), question);
    EXPECT_THAT(person.buttons(), ElementsAre("Cancel", "OK"));
    EXPECT_THAT(extension(), IsEmpty());
    person.answer("OK");
    EXPECT_EQ(person.question().label, "Alert");
    EXPECT_EQ(message(), "Succeed!");
    EXPECT_THAT(person.buttons(), ElementsAre("OK"));
    person.answer("OK");
    EXPECT_EQ(person.question().type, "");
    EXPECT_THAT(extension(), ElementsAre("ZVSAVEZCALLRECORD", "ZVZCALLDBPROPERTIES", "ZVZCALLRECORD"));
    EXPECT_THAT(storedLimits(), ElementsAre("call_history_limit|2000"));
    EXPECT_THAT(support::entriesOf(device, recents), IsEmpty());
    EXPECT_TRUE(device.exists(recents));
    person.back();
    EXPECT_EQ(person.valueOf("History Limit"), "2,000 Calls");
}

// Who reads them at this moment sees the old file or the new one, never a half.
TEST_F(HistoryLimit, RaisingItReplacesTheRecentsWhole) {
    open();
    const std::string before = device.read(recents);
    ASSERT_EQ(link(device.path(recents).c_str(), device.path("/tmp/reader").c_str()), 0);
    raise("2,000");
    EXPECT_EQ(device.read("/tmp/reader"), before);
    EXPECT_NE(device.read(recents), before);
}

TEST_F(HistoryLimit, RaisingItAgainReplacesTheStoredLimitAndSucceeds) {
    open();
    raise("2,000");
    person.answer("OK");
    person.tap("3,000 Calls");
    person.answer("OK");
    EXPECT_EQ(message(), "Succeed!");
    EXPECT_THAT(storedLimits(), ElementsAre("call_history_limit|3000"));
}

TEST_F(HistoryLimit, ASecondInstallSaysNoThoughTheLimitIsRenewed) {
    open();
    EXPECT_TRUE([rootPage() installSyncHistory:2000]);
    EXPECT_FALSE([rootPage() installSyncHistory:3000]);
    EXPECT_EQ(limitInForce(), 3000);
    EXPECT_TRUE([rootPage() uninstallSyncHistory]);
    EXPECT_FALSE([rootPage() uninstallSyncHistory]);
    EXPECT_EQ(limitInForce(), 100);
}

TEST_F(HistoryLimit, CancellingChangesNothingAndShowsNothing) {
    open();
    choose("2,000");
    person.answer("Cancel");
    EXPECT_EQ(person.question().type, "");
    EXPECT_THAT(extension(), IsEmpty());
    EXPECT_EQ(support::entriesOf(device, recents).size(), 1U);
    person.back();
    EXPECT_EQ(person.valueOf("History Limit"), "100 Calls");
}

TEST_F(HistoryLimit, ACancelledLimitStaysPendingUntilTheNextChoice) {
    open();
    chooseDirectly(2000);
    person.answer("Cancel");
    UIAlertView *alert = [[[UIAlertView alloc] initWithTitle:@"Alert"
                                                     message:nil
                                                    delegate:nil
                                           cancelButtonTitle:@"Cancel"
                                           otherButtonTitles:@"OK", nil] autorelease];
    [rootPage() alertView:alert clickedButtonAtIndex:1];
    EXPECT_THAT(extension(), IsEmpty()) << "an alert of somebody else";
    [alert setTag:10086];
    [rootPage() alertView:alert clickedButtonAtIndex:0];
    EXPECT_THAT(extension(), IsEmpty()) << "cancelled";
    [rootPage() alertView:alert clickedButtonAtIndex:1];
    EXPECT_EQ(limitInForce(), 2000);
    host::waitUntilIdle();
    person.answer("OK");
    chooseDirectly(100);
    [rootPage() alertView:alert clickedButtonAtIndex:1];
    EXPECT_THAT(extension(), IsEmpty()) << "nothing is pending";
}

TEST_F(HistoryLimit, OfOneHundredIsLoweredWithoutAQuestion) {
    open();
    raise("2,000");
    person.answer("OK");
    person.tap("100 Calls");
    EXPECT_EQ(person.question().type, "");
    EXPECT_THAT(extension(), IsEmpty());
    EXPECT_FALSE(device.exists(recents));
}

TEST_F(HistoryLimit, OfOneHundredAndOneAsks) {
    open();
    chooseDirectly(100);
    EXPECT_EQ(person.question().type, "");
    chooseDirectly(101);
    EXPECT_EQ(message(), question);
    person.answer("Cancel");
}

TEST_F(HistoryLimit, LoweringAHistoryThatWasNeverExtendedOnlyRemovesTheRecents) {
    open();
    chooseDirectly(100);
    EXPECT_EQ(person.question().type, "");
    EXPECT_FALSE(device.exists(recents));
    EXPECT_THAT(commands(), IsEmpty());
    chooseDirectly(100);
    EXPECT_EQ(person.question().type, "") << "no recents to remove";
}

TEST_F(HistoryLimit, OfFiftyCountsAsOneHundred) {
    open();
    EXPECT_TRUE([rootPage() installSyncHistory:2000]);
    chooseDirectly(50);
    EXPECT_EQ(limitInForce(), 100);
    EXPECT_THAT(extension(), IsEmpty());
    EXPECT_FALSE(device.exists(recents));
}

TEST_F(HistoryLimit, ThatIsNoneOfTheAllowedOnesFails) {
    open();
    chooseDirectly(1500);
    person.answer("OK");
    EXPECT_EQ(message(), "Failed!");
    EXPECT_THAT(person.buttons(), ElementsAre("OK"));
    EXPECT_EQ(support::entriesOf(device, recents).size(), 1U);
}

TEST_F(HistoryLimit, OfAHistoryThatCannotBeWrittenFails) {
    open();
    device.remove("/var/mobile/Library/CallHistoryDB");
    raise("2,000");
    EXPECT_EQ(message(), "Failed!");
    person.answer("OK");
    EXPECT_EQ(support::entriesOf(device, recents).size(), 1U);
}

TEST_F(HistoryLimit, OfALockedHistoryFails) {
    open();
    support::LockHolder holder(device.path(storedata), "DELETE FROM ZCALLRECORD");
    ASSERT_TRUE(holder.isHolding());
    raise("2,000");
    EXPECT_EQ(message(), "Failed!");
}

TEST_F(HistoryLimit, OfALockedHistoryCannotBeLoweredButItsRecentsGo) {
    open();
    EXPECT_TRUE([rootPage() installSyncHistory:2000]);
    support::LockHolder holder(device.path(storedata), "DELETE FROM ZVZCALLRECORD");
    ASSERT_TRUE(holder.isHolding());
    chooseDirectly(100);
    EXPECT_EQ(person.question().type, "");
    EXPECT_FALSE(device.exists(recents));
    EXPECT_TRUE(holder.release());
    EXPECT_EQ(limitInForce(), 2000);
}

std::vector<std::string> saved; // key and value

void recordSaving(id, SEL, id value, NSString *key) {
    EXPECT_TRUE([value isKindOfClass:[NSNumber class]]);
    saved.push_back(support::text(key) + " " + support::text([value description]));
}

// What the page saves leaves no trace by itself; this looks over its shoulder.
TEST_F(HistoryLimit, IsHandedToTheStoreWheneverItIsReadOrChanged) {
    open();
    ASSERT_TRUE(person.sees("History Limit")) << "whose row has been read by now";
    host::replaceMethod(classNamed("ZelvoraSettingsController"), @selector(saveSettings:forKey:),
                        IMP(recordSaving));
    (void)limitInForce();
    EXPECT_THAT(saved, ElementsAre("CallHistoryLimit 100")) << "read";
    saved.clear();
    chooseDirectly(2000);
    EXPECT_THAT(saved, IsEmpty()) << "asked";
    person.answer("OK");
    EXPECT_THAT(saved, ElementsAre("CallHistoryLimit 2000", "CallHistoryLimit 2000")) << "raised";
    person.answer("OK");
    saved.clear();
    chooseDirectly(1500);
    person.answer("OK");
    EXPECT_THAT(saved, ElementsAre("CallHistoryLimit 100")) << "failed";
    person.answer("OK");
    saved.clear();
    chooseDirectly(50);
    EXPECT_THAT(saved, ElementsAre("CallHistoryLimit 100")) << "lowered";
}

TEST_F(HistoryLimit, OnOlderSystemsTheToolRaises) {
    host::setSystemVersion("7.1.2");
    open();
    raise("2,000");
    EXPECT_THAT(commands(), ElementsAre("/Library/Zelvora/zvtool -i 2000"));
    EXPECT_EQ(message(), "Failed!") << "there is no tool on this phone";
    EXPECT_THAT(extension(), IsEmpty());
}

TEST_F(HistoryLimit, OnOlderSystemsARaiseThatTheToolCarriedOutSucceeds) {
    host::setSystemVersion("7.1.2");
    open();
    choose("2,000");
    sql(callHistoryDb)
        .script("INSERT OR REPLACE INTO _SqliteDatabaseProperties VALUES "
                "('call_history_limit', '2000')");
    person.answer("OK");
    EXPECT_EQ(message(), "Succeed!");
    EXPECT_THAT(support::entriesOf(device, recents), IsEmpty());
}

TEST_F(HistoryLimit, OnOlderSystemsTheToolLowers) {
    host::setSystemVersion("7.1.2");
    open();
    chooseDirectly(100);
    EXPECT_THAT(commands(), ElementsAre("/Library/Zelvora/zvtool -u"));
    EXPECT_EQ(person.question().type, "");
    EXPECT_FALSE(device.exists(recents));
}

TEST_F(HistoryLimit, TheSystemVersionIsAskedAnewEachTime) {
    open();
    EXPECT_TRUE([rootPage() installSyncHistory:2000]);
    EXPECT_EQ(limitInForce(), 2000);
    host::setSystemVersion("7.1.2");
    EXPECT_EQ(limitInForce(), 100);
    host::setSystemVersion("8.0");
    EXPECT_EQ(limitInForce(), 2000);
}

} // namespace
