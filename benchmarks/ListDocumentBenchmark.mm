// Lists of ten thousand entries: opening one, and a picker's toggle, beside what libplist needs for the same
// file by itself. The wishes: opening at most 4 times, a toggle at most 3.5 times as long.
#include "host/Device.h"
#include "listeditor/ListDocument.h"

#import <Foundation/Foundation.h>

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <plist/plist.h>
#include <random>
#include <string>

namespace {

namespace fs = std::filesystem;

constexpr int entryCount = 10000;

/// A phone with a long blacklist.
class LongList {
public:
    LongList() {
        @autoreleasepool {
            std::string folder = (fs::temp_directory_path() / "zv-bench-XXXXXX").string();
            if (!mkdtemp(folder.data()))
                std::abort();
            host::start({.folder = folder, .virtualTime = true});
            fs::create_directories(host::devicePath("/var/mobile/Library/Preferences"));
            path = [zv::ListDocument::userPath(@"black") retain];
            [entries() writeToFile:path atomically:YES];
        }
    }

    NSString *path = nil;

private:
    static NSDictionary *entries() {
        NSMutableDictionary *entries = [NSMutableDictionary dictionary];
        std::mt19937 random(1);
        while ([entries count] < entryCount) {
            NSString *number =
                [NSString stringWithFormat:@"+1555%07u", static_cast<unsigned>(random() % 10000000)];
            [entries setObject:[NSString stringWithFormat:@"Name %@", number] forKey:number];
        }
        return entries;
    }
};

LongList &list() {
    static LongList list;
    return list;
}

plist_t parsed(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(file)), {});
    plist_t root = nullptr;
    plist_from_memory(content.data(), static_cast<std::uint32_t>(content.size()), &root);
    return root;
}

void write(plist_t root, const std::string &path) {
    char *xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(root, &xml, &length);
    std::ofstream(path, std::ios::binary).write(xml, length);
    free(xml);
}

void libplistReads(benchmark::State &state) {
    const std::string path = [list().path UTF8String];
    for ([[maybe_unused]] auto step : state)
        plist_free(parsed(path));
}

void listIsOpened(benchmark::State &state) {
    const zv::ListDocument document(list().path, nil);
    NSMutableArray *rows = [NSMutableArray array];
    for ([[maybe_unused]] auto step : state) {
        @autoreleasepool {
            zv::rebuildRows(rows, document.read());
        }
    }
}

void libplistToggles(benchmark::State &state) {
    const std::string path = [list().path UTF8String];
    for ([[maybe_unused]] auto step : state) {
        plist_t root = parsed(path);
        plist_dict_set_item(root, "+15550000000", plist_new_string("New"));
        write(root, path + ".copy");
        plist_free(root);
    }
}

void numberIsToggled(benchmark::State &state) {
    const zv::ListDocument document(list().path, nil);
    NSMutableArray *rows = [NSMutableArray array];
    for ([[maybe_unused]] auto step : state) {
        @autoreleasepool {
            zv::rebuildRows(rows, document.put(@"+15550000000", @"New"));
        }
    }
}

BENCHMARK(libplistReads)->Unit(benchmark::kMillisecond);
BENCHMARK(listIsOpened)->Unit(benchmark::kMillisecond);
BENCHMARK(libplistToggles)->Unit(benchmark::kMillisecond);
BENCHMARK(numberIsToggled)->Unit(benchmark::kMillisecond);

} // namespace
