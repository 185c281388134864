// Lists of ten thousand entries: opening one and a picker's toggle, beside what libplist needs to read and
// write the same file by itself; the same as a person sees it, through the pages; and their memory.
#include "Child.h"
#include "Phone.h"

#include "listeditor/ListDocument.h"

#import <Foundation/Foundation.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <plist/plist.h>
#include <random>
#include <stdexcept>
#include <utility>

namespace {

using bench::Work;
using bench::Works;

constexpr NSUInteger entryCount = 10'000;
constexpr double oneFrame = 16.7; // milliseconds

constexpr bench::Limits readLimits{.aim = 1, .bar = 2};
constexpr bench::Limits openingLimits{.aim = 4, .bar = 7};
constexpr bench::Limits toggleLimits{.aim = 3.5, .bar = 6};
constexpr bench::Limits memoryLimits{.aim = 600, .bar = 800};

NSDictionary *newEntries() {
    NSMutableDictionary *entries = [[NSMutableDictionary alloc] init];
    std::mt19937 random(1);
    while ([entries count] < entryCount) {
        NSString *number = [NSString stringWithFormat:@"+1555%07u", unsigned(random() % 10'000'000)];
        [entries setObject:[NSString stringWithFormat:@"Name %@", number] forKey:number];
    }
    return entries;
}

/// Starts a phone with a long blacklist and returns the document's path.
NSString *longBlacklist() {
    bench::startPhone();
    NSString *path = [zv::ListDocument::userPath(@"black") retain];
    NSDictionary *entries = newEntries();
    [entries writeToFile:path atomically:YES];
    [entries release];
    return path;
}

plist_t libplistReads(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    const std::string content((std::istreambuf_iterator<char>(file)), {});
    plist_t root = nullptr;
    plist_from_memory(content.data(), static_cast<std::uint32_t>(content.size()), &root);
    return root;
}

void libplistWrites(plist_t root, const std::string &path) {
    char *xml = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(root, &xml, &length);
    std::ofstream(path, std::ios::binary).write(xml, length);
    free(xml);
}

Work bareReading(NSString *path) {
    return [file = std::string([path UTF8String])] { plist_free(libplistReads(file)); };
}

Works reading() {
    NSString *path = longBlacklist();
    return {[path] { bench::use([NSDictionary dictionaryWithContentsOfFile:path]); }, bareReading(path)};
}

std::vector<std::pair<std::string, std::string>> plainTexts(NSDictionary *dictionary) {
    std::vector<std::pair<std::string, std::string>> texts;
    for (NSString *key in dictionary)
        texts.emplace_back([key UTF8String], [[dictionary objectForKey:key] UTF8String]);
    return texts;
}

// Both begin with plain texts in memory.
Works writing() {
    NSString *path = longBlacklist();
    NSDictionary *entries = newEntries();
    return {[path, entries] { [entries writeToFile:path atomically:YES]; },
            [copy = std::string([path UTF8String]) + ".copy", texts = plainTexts(entries)] {
                plist_t tree = plist_new_dict();
                for (const auto &[key, value] : texts)
                    plist_dict_set_item(tree, key.c_str(), plist_new_string(value.c_str()));
                libplistWrites(tree, copy);
                plist_free(tree);
            }};
}

// What a list page does before it shows its rows.
Work opening(NSString *path) {
    return [path, rows = [[NSMutableArray alloc] init]] {
        zv::rebuildRows(rows, zv::ListDocument(path, nil).read());
    };
}

Works openingAndBare() {
    NSString *path = longBlacklist();
    return {opening(path), bareReading(path)};
}

// Turns about: every other one adds the number.
Work toggling(NSString *path) {
    return [path, rows = [[NSMutableArray alloc] init], isIn = false]() mutable {
        const zv::ListDocument document(path, nil);
        isIn = !isIn;
        zv::rebuildRows(rows,
                        isIn ? document.put(@"+15550000000", @"New") : document.remove(@"+15550000000"));
    };
}

Work bareToggling(NSString *path) {
    return [file = std::string([path UTF8String]), isIn = false]() mutable {
        isIn = !isIn;
        plist_t root = libplistReads(file);
        if (isIn)
            plist_dict_set_item(root, "+15550000000", plist_new_string("New"));
        else
            plist_dict_remove_item(root, "+15550000000");
        libplistWrites(root, file + ".copy");
        plist_free(root);
    };
}

Works togglingAndBare() {
    NSString *path = longBlacklist();
    return {toggling(path), bareToggling(path)};
}

Work openThePage() {
    (void)longBlacklist();
    bench::openRootPage();
    return [] {
        bench::act(bench::tapOn("Blacklist"));
        bench::look();
        bench::act({.kind = host::GestureKind::back});
    };
}

Work tapInThePicker() {
    (void)longBlacklist();
    bench::openRootPage();
    bench::act(bench::tapOn("Blacklist"));
    bench::act(bench::tapOn("Select Contacts"));
    return [tap = bench::tapOn("Ash Quentin")] {
        bench::act(tap);
        bench::look();
    };
}

double bytesAnEntry(const Work &work) {
    const auto bytes = bench::peakBytes([] {}, work);
    if (!bytes)
        throw std::runtime_error("a list came to a bad end");
    return *bytes / double(entryCount);
}

const bench::Ratio read("List of 10,000: read the document", readLimits, reading);
const bench::Ratio write("List of 10,000: write the document", readLimits, writing);
const bench::Ratio open("List of 10,000: open", openingLimits, openingAndBare);
const bench::Ratio toggle("List of 10,000: one picker toggle", toggleLimits, togglingAndBare);
const bench::Time toggleTime("List of 10,000: one picker toggle, within a frame", oneFrame,
                             [] { return toggling(longBlacklist()); });
const bench::Time page("List of 10,000: the page, there and back", 2 * oneFrame, openThePage);
const bench::Time tap("List of 10,000: a tap in the picker, to the new tree", 2 * oneFrame, tapInThePicker);
const bench::Amount memory("List of 10,000: memory for each entry opened", "bytes", memoryLimits,
                           [] { return bytesAnEntry(opening(longBlacklist())); });
const bench::Amount toggleMemory("List of 10,000: memory for each, one toggle", "bytes", {},
                                 [] { return bytesAnEntry(toggling(longBlacklist())); });

} // namespace
