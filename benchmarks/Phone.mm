#include "Phone.h"

#include "Benchmark.h"
#include "Folder.h"
#include "host/Control.h"
#include "simulator/api/DeviceFolder.h"

#import <Foundation/Foundation.h>

#include <optional>
#include <stdexcept>
#include <unistd.h>

namespace bench {

void startPhone(std::size_t contacts, std::size_t calls) {
    const std::string device = folder() / ("phone-" + std::to_string(getpid()));
    const std::string problem = sim::prepareDeviceFolder(
        {.device = device, .contacts = static_cast<int>(contacts), .calls = static_cast<int>(calls)});
    if (!problem.empty())
        throw std::runtime_error(problem);
    host::start({.folder = device, .virtualTime = true});
}

void openRootPage() {
    std::string reason;
    if (!host::openBundle(@ZV_BUNDLE_PATH, &reason))
        throw std::runtime_error(reason);
    host::waitUntilIdle();
}

namespace {

constexpr double oneTurn = 300, longestPage = 3000; // points

std::optional<host::Gesture> tapOnScreen(const std::string &label) {
    const host::Element screen = host::screen();
    const host::Element *found = screen.find([&](const host::Element &element) {
        return element.label == label && (element.type == "Cell" || element.type == "Button");
    });
    if (!found)
        return std::nullopt;
    const auto switches = found->all("Switch");
    return host::Gesture{.number = switches.empty() ? found->number : switches.front()->number,
                         .part = found->part};
}

} // namespace

host::Gesture tapOn(const std::string &label) {
    for (double offset = 0; offset < longestPage; offset += oneTurn) {
        if (const auto tap = tapOnScreen(label))
            return *tap;
        (void)host::perform({.kind = host::GestureKind::scroll, .amount = offset});
    }
    throw std::runtime_error("nothing is called " + label);
}

void act(const host::Gesture &gesture) {
    if (host::perform(gesture) != host::Outcome::done)
        throw std::runtime_error("a gesture was not taken");
}

void look() {
    const host::Element screen = host::screen();
    use(&screen);
}

} // namespace bench
