#include "host/Clock.h"
#include "host/Control.h"
#include "support/TestDevice.h"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>
#include <gmock/gmock.h>
#include <notify.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Listener {
    std::vector<std::string> heard;
    Listener *removes = nullptr;
};

void hear(CFNotificationCenterRef center, void *observer, CFStringRef name, const void *object,
          CFDictionaryRef userInfo) {
    auto *listener = static_cast<Listener *>(observer);
    listener->heard.emplace_back([(NSString *)name UTF8String]);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(userInfo, nullptr);
    if (listener->removes)
        CFNotificationCenterRemoveEveryObserver(center, listener->removes);
}

class NotifyCenter : public testing::Test {
protected:
    support::TestDevice device;
    CFNotificationCenterRef center = CFNotificationCenterGetDarwinNotifyCenter();
    Listener listener;

    void observe(Listener &who, CFStringRef name) {
        CFNotificationCenterAddObserver(center, &who, hear, name, nullptr,
                                        CFNotificationSuspensionBehaviorDeliverImmediately);
    }
    void post(CFStringRef name) {
        CFNotificationCenterPostNotification(center, name, nullptr, nullptr, true);
    }
    void TearDown() override { CFNotificationCenterRemoveEveryObserver(center, &listener); }
};

TEST_F(NotifyCenter, APostIsRecordedAtOnceWithItsTime) {
    host::advance(2);
    post(CFSTR("Changed"));
    ASSERT_THAT(host::eventTexts(host::EventKind::notification), ElementsAre("Changed"));
    EXPECT_DOUBLE_EQ(host::events().back().time, host::now());
}

TEST_F(NotifyCenter, ObserversHearItInTheNextTurn) {
    observe(listener, CFSTR("Changed"));
    post(CFSTR("Changed"));
    EXPECT_THAT(listener.heard, IsEmpty());
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, ElementsAre("Changed"));
}

TEST_F(NotifyCenter, SeveralPostsBeforeTheTurnAreDeliveredAsOneAndRecordedEach) {
    observe(listener, CFSTR("Changed"));
    post(CFSTR("Changed"));
    post(CFSTR("Changed"));
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, ElementsAre("Changed"));
    EXPECT_THAT(host::eventTexts(host::EventKind::notification), ElementsAre("Changed", "Changed"));
    post(CFSTR("Changed"));
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, ElementsAre("Changed", "Changed"));
}

TEST_F(NotifyCenter, OtherNamesAreNotHeard) {
    observe(listener, CFSTR("Changed"));
    post(CFSTR("Other"));
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(NotifyCenter, ThereIsNoHistory) {
    post(CFSTR("Changed"));
    host::waitUntilIdle();
    observe(listener, CFSTR("Changed"));
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(NotifyCenter, ARemovedObserverHearsNothing) {
    observe(listener, CFSTR("A"));
    observe(listener, CFSTR("B"));
    CFNotificationCenterRemoveObserver(center, &listener, CFSTR("A"), nullptr);
    post(CFSTR("A"));
    post(CFSTR("B"));
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, ElementsAre("B"));
}

TEST_F(NotifyCenter, AnObserverMayRemoveAnotherThatWasStillToBeCalled) {
    Listener other;
    listener.removes = &other;
    observe(listener, CFSTR("Changed"));
    observe(other, CFSTR("Changed"));
    post(CFSTR("Changed"));
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, ElementsAre("Changed"));
    EXPECT_THAT(other.heard, IsEmpty());
}

TEST_F(NotifyCenter, ThePlainCNameSpaceIsTheSame) {
    observe(listener, CFSTR("\u4e2d"));
    EXPECT_EQ(notify_post("\xE4\xB8\xAD"), 0u);
    EXPECT_NE(notify_post(nullptr), 0u);
    host::waitUntilIdle();
    EXPECT_THAT(listener.heard, ElementsAre("\xE4\xB8\xAD"));
}

TEST_F(NotifyCenter, ANameMustBeGiven) {
    EXPECT_DEATH(post(nullptr), "needs a name");
}

TEST(CFBase, RetainAndReleaseCountReferencesOfTheObject) {
    NSObject *object = [NSObject new];
    EXPECT_EQ(CFRetain((CFTypeRef)object), (CFTypeRef)object);
    EXPECT_EQ([object retainCount], 2u);
    CFRelease((CFTypeRef)object);
    EXPECT_EQ([object retainCount], 1u);
    [object release];
    EXPECT_DEATH(CFRelease(nullptr), "NULL");
}

} // namespace
