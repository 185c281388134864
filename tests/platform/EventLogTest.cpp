#include "host/EventLog.h"
#include "support/TestDevice.h"

#include <gmock/gmock.h>

namespace {

using host::EventKind;
using testing::ElementsAre;

TEST(EventLog, EventsAreKeptInOrderWithNumberAndTime) {
    const support::TestDevice device;
    host::record(EventKind::url, "http://example.org");
    host::record(EventKind::command, "true", "", 3);
    const auto &events = host::events();
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[1].number, events[0].number + 1);
    EXPECT_EQ(events[1].status, 3);
    EXPECT_GT(events[0].time, 0);
    EXPECT_THAT(host::eventTexts(EventKind::url), ElementsAre("http://example.org"));
}

TEST(EventLog, AnObserverHearsEachEventAndMayRecordAnother) {
    const support::TestDevice device;
    std::vector<std::string> heard;
    host::observeEvents([&heard](const host::Event &event) {
        heard.push_back(event.text);
        if (event.text == "first")
            host::record(EventKind::log, "second");
    });
    host::record(EventKind::log, "first");
    EXPECT_THAT(heard, ElementsAre("first", "second"));
}

TEST(EventLog, AFullLogDropsTheOldest) {
    const support::TestDevice device;
    for (int i = 0; i <= 10'000; ++i)
        host::record(EventKind::log, std::to_string(i));
    EXPECT_LE(host::events().size(), 10'000u);
    EXPECT_EQ(host::events().back().text, "10000");
}

TEST(EventLog, ForgettingEmptiesIt) {
    const support::TestDevice device;
    host::record(EventKind::log, "gone");
    host::forgetEvents();
    EXPECT_TRUE(host::events().empty());
}

} // namespace
