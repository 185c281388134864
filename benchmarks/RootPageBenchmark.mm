// The bundle's root page as a person meets it. Half a frame of 60 a second is hoped for to open it, a quarter
// from a tap to the tree of elements that shows what came of it.
#include "Child.h"
#include "Phone.h"
#include "Timing.h"

#include "host/Control.h"

#import <Preferences/PSListController.h>

#include <ctime>
#include <stdexcept>

namespace {

using bench::Work;

constexpr double halfAFrame = 8, quarterOfAFrame = 4; // milliseconds

PSListController *rootPage() {
    return [NSClassFromString(@"ZelvoraSettingsController") sharedInstance];
}

Work opening() {
    bench::startPhone();
    return [] {
        bench::openRootPage();
        bench::look();
    };
}

double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// Everything is done for the first time, so each time needs a process of its own.
double firstOpening() {
    bench::startPhone();
    std::vector<double> times;
    for (int i = 0; i < 9; ++i) {
        const auto measured = bench::inChild([] {
            const double start = processorMilliseconds();
            bench::openRootPage();
            bench::look();
            return bench::Result{.figure = processorMilliseconds() - start};
        });
        if (!measured)
            throw std::runtime_error("the page did not open");
        times.push_back(measured->figure);
    }
    return bench::median(times);
}

Work reloading() {
    bench::startPhone();
    bench::openRootPage();
    return [] {
        [rootPage() reloadSpecifiers];
        host::waitUntilIdle();
        bench::look();
    };
}

Work switching() {
    bench::startPhone();
    bench::openRootPage();
    return [tap = bench::tapOn("Enable Zelvora")] { bench::act(tap); };
}

Work switchingAndLooking() {
    return [change = switching()] {
        change();
        bench::look();
    };
}

const bench::Time open("Root page: open, to its rows on the screen", halfAFrame, opening);
const bench::Amount openFirst("Root page: open for the first time", "ms", {}, firstOpening);
const bench::Time reload("Root page: reload its specifiers", halfAFrame, reloading);
const bench::Time change("Root page: change a switch, to its file", quarterOfAFrame, switching);
const bench::Time tap("Root page: a tap, to the new tree", quarterOfAFrame, switchingAndLooking);

} // namespace
