// A settings page of fifty controls: opening it, one switch from the tap to the file, and from a tap to the
// tree of elements that a person sees next.
#include "host/Control.h"
#include "host/PrivateDefaults.h"
#include "host/Text.h"

#import <Foundation/Foundation.h>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

NSDictionary *control(int number) {
    NSArray *kinds =
        @[ @"PSSwitchCell", @"PSSliderCell", @"PSSegmentCell", @"PSEditTextCell", @"PSTitleValueCell" ];
    NSMutableDictionary *item = [NSMutableDictionary dictionary];
    [item setObject:[kinds objectAtIndex:static_cast<NSUInteger>(number) % [kinds count]] forKey:@"cell"];
    [item setObject:[NSString stringWithFormat:@"Control %d", number] forKey:@"label"];
    [item setObject:[NSString stringWithFormat:@"control%d", number] forKey:@"key"];
    [item setObject:@"org.example.benchmark" forKey:@"defaults"];
    [item setObject:@[ @1, @2, @3 ] forKey:@"validValues"];
    [item setObject:@[ @"One", @"Two", @"Three" ] forKey:@"validTitles"];
    [item setObject:@1 forKey:@"default"];
    return item;
}

/// A phone with a bundle that consists of one page.
class Phone {
public:
    Phone() {
        @autoreleasepool {
            host::usePrivateDefaults();
            std::string folder = (fs::temp_directory_path() / "zv-bench-XXXXXX").string();
            if (!mkdtemp(folder.data()))
                std::abort();
            host::start({.folder = folder, .virtualTime = true});
            bundle = [host::string(host::devicePath("/Library/PreferenceBundles/Fifty.bundle")) retain];
            fs::create_directories(host::utf8(bundle));
            write(@"Info.plist", [NSDictionary dictionaryWithObject:@"Fifty" forKey:@"CFBundleName"]);
            NSMutableArray *items = [NSMutableArray array];
            for (int number = 0; number < 50; number++)
                [items addObject:control(number)];
            write(@"Root.plist", [NSDictionary dictionaryWithObject:items forKey:@"items"]);
        }
    }

    NSString *bundle = nil;

private:
    void write(NSString *name, NSDictionary *content) {
        if (![content writeToFile:[bundle stringByAppendingPathComponent:name] atomically:YES])
            std::abort();
    }
};

Phone &phone() {
    static auto &one = *new Phone;
    return one;
}

host::Gesture tapOnSwitch() {
    const host::Element screen = host::screen();
    const auto switches = screen.all("Switch");
    if (switches.empty())
        std::abort();
    return {.kind = host::GestureKind::tap, .number = switches.front()->number};
}

void openPage(benchmark::State &state) {
    for (auto _ : state) {
        @autoreleasepool {
            if (!host::openBundle(phone().bundle))
                state.SkipWithError("the page did not open");
            benchmark::DoNotOptimize(host::screen());
        }
    }
}

void changeSwitch(benchmark::State &state) {
    @autoreleasepool {
        host::openBundle(phone().bundle);
        const host::Gesture tap = tapOnSwitch();
        for (auto _ : state) {
            if (host::perform(tap) != host::Outcome::done)
                state.SkipWithError("the switch did not take the tap");
        }
    }
}

void tapToTree(benchmark::State &state) {
    @autoreleasepool {
        host::openBundle(phone().bundle);
        const host::Gesture tap = tapOnSwitch();
        for (auto _ : state) {
            if (host::perform(tap) != host::Outcome::done)
                state.SkipWithError("the switch did not take the tap");
            benchmark::DoNotOptimize(host::screen());
        }
    }
}

BENCHMARK(openPage)->Unit(benchmark::kMicrosecond);
BENCHMARK(changeSwitch)->Unit(benchmark::kMicrosecond);
BENCHMARK(tapToTree)->Unit(benchmark::kMicrosecond);

} // namespace
