// Property lists of the size of a very large number list, from the file to a dictionary and back, against
// libplist from the file to its tree and from plain C strings to the file.
#include "host/FileContent.h"
#include "Ratio.h"

#import <Foundation/Foundation.h>

#include <plist/plist.h>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr int entryCount = 10'000;

NSDictionary *entries() {
    NSMutableDictionary *all = [[NSMutableDictionary alloc] init];
    for (int i = 0; i < entryCount; ++i)
        [all setObject:[NSString stringWithFormat:@"Name of caller %d", i]
                forKey:[NSString stringWithFormat:@"+1555%07d", i * 7919 % entryCount]];
    return all;
}

NSString *path() {
    static NSString *const file =
        [[NSTemporaryDirectory() stringByAppendingPathComponent:@"bench.plist"] retain];
    return file;
}

std::string bareFile() {
    return std::string([path() UTF8String]) + ".bare";
}

plist_t treeOfFile(const std::string &file) {
    plist_t tree = nullptr;
    const std::string content = host::contentOfFile(file).value();
    plist_from_xml(content.data(), static_cast<std::uint32_t>(content.size()), &tree);
    return tree;
}

using Strings = std::vector<std::pair<std::string, std::string>>;

Strings plainStrings(NSDictionary *dictionary) {
    Strings all;
    for (NSString *key in dictionary)
        all.emplace_back([key UTF8String], [[dictionary objectForKey:key] UTF8String]);
    return all;
}

void writeWithLibplist(const Strings &strings) {
    plist_t tree = plist_new_dict();
    for (const auto &[key, value] : strings)
        plist_dict_set_item(tree, key.c_str(), plist_new_string(value.c_str()));
    char *bytes = nullptr;
    std::uint32_t size = 0;
    plist_to_xml(tree, &bytes, &size);
    bench::use(host::replaceFile(bareFile(), {bytes, size}) ? bytes : nullptr);
    plist_to_xml_free(bytes);
    plist_free(tree);
}

const bench::Registration reading([] {
    NSDictionary *written = entries();
    [written writeToFile:path() atomically:YES];
    [written release];
    return bench::Ratio{"property list, read 10,000 entries",
                        [] { bench::use([NSDictionary dictionaryWithContentsOfFile:path()]); },
                        [] { plist_free(treeOfFile([path() UTF8String])); }, 1.0, 2.0};
});

const bench::Registration writing([] {
    NSDictionary *written = entries();
    return bench::Ratio{"property list, write 10,000 entries",
                        [written] { [written writeToFile:path() atomically:YES]; },
                        [strings = plainStrings(written)] { writeWithLibplist(strings); }, 1.0, 2.0};
});

} // namespace
