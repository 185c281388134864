// A person who taps whatever is there, types nonsense and goes back at any moment. Nothing that comes of it
// is told here in advance, but: no page raises anything, no file is damaged, and Settings can still be used.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "support/AddressBookBuilder.h"
#include "support/CallHistoryBuilder.h"

#include <array>
#include <iterator>
#include <random>

namespace {

using host::Element;
using host::Gesture;
using host::GestureKind;

constexpr const char *preferences = "/var/mobile/Library/Preferences";
constexpr int steps = 300;

struct Walk {
    unsigned seed;
    const char *version; // of the system
};

std::ostream &operator<<(std::ostream &stream, const Walk &walk) {
    return stream << "seed " << walk.seed << " on " << walk.version;
}

class RestlessPerson : public support::BundleTest, public testing::WithParamInterface<Walk> {
protected:
    RestlessPerson() {
        host::setSystemVersion(GetParam().version);
        constexpr double moment = 1425600000; // 6 March 2015
        support::CallHistoryBuilder(device.path("/var/mobile/Library/CallHistoryDB/CallHistory.storedata"),
                                    zv::CallHistorySchema::coreData)
            .call("555-0101", moment);
        support::CallHistoryBuilder(device.path("/var/wireless/Library/CallHistory/call_history.db"),
                                    zv::CallHistorySchema::keyValue)
            .call("555-0101", moment);
        support::AddressBookBuilder(device.path("/var/mobile/Library/AddressBook/AddressBook.sqlitedb"))
            .person("Ann", "Lee", "555-0102")
            .company("Acme", "+1 (555) 0105,,7#");
        device.write("/Library/Zelvora/Table/Pinyin.txt", "");
        device.write("/Library/Zelvora/Area/Utopia", "");
    }

    std::size_t below(std::size_t end) {
        return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random);
    }

    /// Something to do to an element that takes gestures.
    Gesture gestureOn(const Element &element) {
        static const char *const texts[] = {"", "5550103", "拨号 😀", "-1", "99999999999", "%@%s", "a/../b"};
        Gesture gesture{.number = element.number, .part = element.part};
        if (element.type == "Slider") {
            gesture.kind = GestureKind::slide;
            gesture.amount = double(below(30)) / 10 - 1;
        } else if (element.type.ends_with("Field")) {
            gesture.kind = std::array{GestureKind::tap, GestureKind::type, GestureKind::replace}[below(3)];
            gesture.text = texts[below(std::size(texts))];
        } else if (element.type == "Cell" && below(4) == 0) {
            gesture.kind = GestureKind::swipe;
        }
        return gesture;
    }

    Gesture anyGesture() {
        static constexpr GestureKind everywhere[] = {
            GestureKind::back,      GestureKind::backSwipe,  GestureKind::backSwipeGivenUp,
            GestureKind::returnKey, GestureKind::closeSwipe, GestureKind::tapOutside};
        const Element screen = host::screen();
        std::vector<const Element *> targets;
        for (const char *type : {"Cell", "Button", "Switch", "Slider", "TextField", "SearchField"})
            for (const Element *element : screen.all(type))
                targets.push_back(element);
        if (targets.empty() || below(8) == 0)
            return {.kind = everywhere[below(std::size(everywhere))]};
        return gestureOn(*targets[below(targets.size())]);
    }

private:
    std::mt19937 m_random{GetParam().seed};
};

TEST_P(RestlessPerson, HarmsNothing) {
    open();
    for (int step = 0; step < steps; ++step) {
        @autoreleasepool {
            (void)host::perform(anyGesture());
            if (below(10) == 0)
                host::advance(2);
            if (!rootPage()) { // the list of Settings is in front, or the page that was made last is gone
                host::closePages();
                open();
            }
        }
    }
    EXPECT_THAT(host::eventTexts(host::EventKind::log), testing::IsEmpty())
        << "what the platform complains of";
    for (const std::string &name : device.list(preferences))
        EXPECT_FALSE(support::entriesOf(device, std::string(preferences) + "/" + name).contains("?")) << name;
}

INSTANTIATE_TEST_SUITE_P(Walks, RestlessPerson,
                         testing::Values(Walk{1, "8.1.2"}, Walk{2, "8.1.2"}, Walk{3, "8.1.2"},
                                         Walk{4, "7.1.2"}, Walk{5, "7.1.2"}),
                         [](const auto &info) { return "Seed" + std::to_string(info.param.seed); });

} // namespace
