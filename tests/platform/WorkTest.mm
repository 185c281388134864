#include "host/Work.h"

#include "host/Control.h"
#include "support/TestDevice.h"

#import <Foundation/Foundation.h>

#include <atomic>
#include <gmock/gmock.h>
#include <thread>

namespace {

using support::TestDevice;
using testing::ElementsAre;

TEST(Work, LaterIsDoneInTheOrderOfAsking) {
    const TestDevice device;
    std::vector<int> done;
    host::later([&] { done.push_back(1); });
    host::later([&] { done.push_back(2); });
    EXPECT_TRUE(done.empty());
    host::waitUntilIdle();
    EXPECT_THAT(done, ElementsAre(1, 2));
}

TEST(Work, WaitingUntilIdleDoesWhatWorkAdds) {
    const TestDevice device;
    int depth = 0;
    host::later([&] { host::later([&] { host::later([&] { depth = 3; }); }); });
    host::waitUntilIdle();
    EXPECT_EQ(depth, 3);
}

TEST(Work, EndlessWorkIsGivenUpAndReported) {
    const TestDevice device;
    std::function<void()> again = [&] { host::later(again); };
    again();
    EXPECT_FALSE(host::comesToRest());
    EXPECT_THAT(host::eventTexts(host::EventKind::log), ElementsAre("the main run loop never comes to rest"));
    again = [] {};
    host::waitUntilIdle();
}

TEST(Work, OnMainIsAtOnceOnTheMainThread) {
    const TestDevice device;
    bool done = false;
    host::onMain([&] { done = true; });
    EXPECT_TRUE(done);
}

TEST(Work, AnotherThreadWaitsForTheMainThread) {
    const TestDevice device;
    std::atomic<bool> wasMain = false;
    std::atomic<bool> finished = false;
    std::thread other([&] {
        host::onMain([&] { wasMain = host::isMainThread(); });
        finished = true;
        host::later([] {});
    });
    while (!finished)
        [[NSRunLoop mainRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantFuture]];
    other.join();
    EXPECT_TRUE(wasMain);
}

} // namespace
