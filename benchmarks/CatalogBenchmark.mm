// The catalog listings of the root page beside GNUstep's own enumeration of the same folders, which comes in
// the order of the disk: 10,000 files in 500 folders.
#include "Benchmark.h"
#include "Phone.h"

#include "host/Device.h"
#include "host/Text.h"

#import "rootpage/ZelvoraSettingsController.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <memory>
#import <objc/runtime.h>
#include <stdexcept>
#include <string_view>

namespace {

using bench::Works;

constexpr bench::Limits limits{.bar = 1.5};
constexpr int folderCount = 500, filesInEach = 20;

std::string numbered(const char *word, int number, const char *ending = "") {
    return word + std::to_string(number) + ending;
}

/// Starts a phone with many code tables, in folders, and as many area files, in one.
void startPhoneWithManyFiles() {
    bench::startPhone();
    const std::filesystem::path tables = host::devicePath("/Library/Zelvora/Table");
    const std::filesystem::path areas = host::devicePath("/Library/Zelvora/Area");
    for (int i = 0; i < folderCount; ++i) {
        const std::filesystem::path folder = tables / numbered("Folder ", i * 7919 % folderCount);
        std::filesystem::create_directories(folder);
        for (int j = 0; j < filesInEach; ++j) {
            std::ofstream(folder / numbered("Table ", j * 7 % filesInEach, ".txt")) << j;
            std::ofstream(areas / numbered("Area ", i * filesInEach + j)) << j;
        }
    }
}

ZelvoraSettingsController *rootPage() {
    bench::openRootPage();
    return [NSClassFromString(@"ZelvoraSettingsController") sharedInstance];
}

// The platform puts methods of its own in place of GNUstep's; the library that a method lies in tells which
// is which.
IMP gnustepMethod(SEL selector) {
    unsigned count = 0;
    const std::unique_ptr<Method[], void (*)(void *)> methods(
        class_copyMethodList([NSFileManager class], &count), std::free);
    for (unsigned i = 0; i < count; ++i) {
        const IMP method = method_getImplementation(methods[i]);
        Dl_info place{};
        if (sel_isEqual(method_getName(methods[i]), selector) && dladdr((void *)method, &place) != 0 &&
            std::string_view(place.dli_fname).find("gnustep-base") != std::string_view::npos)
            return method;
    }
    throw std::runtime_error(std::string("GNUstep has no ") + sel_getName(selector));
}

NSString *onThisMachine(const char *path) {
    return [host::string(host::devicePath(path)) retain];
}

Works codeTables() {
    startPhoneWithManyFiles();
    const SEL selector = @selector(enumeratorAtPath:);
    using Enumerate = NSDirectoryEnumerator *(*)(id, SEL, NSString *);
    const auto enumerate = reinterpret_cast<Enumerate>(gnustepMethod(selector));
    NSString *const folders[] = {onThisMachine("/Library/Zelvora/Table"),
                                 onThisMachine("/Library/Zelvora/T9")};
    return {[page = rootPage()] { bench::use([page t9Titles:nil]); },
            [=] {
                for (NSString *folder : folders) {
                    NSEnumerator *entries = enumerate([NSFileManager defaultManager], selector, folder);
                    while (id entry = [entries nextObject])
                        bench::use(entry);
                }
            }};
}

Works areas() {
    startPhoneWithManyFiles();
    const SEL selector = @selector(contentsOfDirectoryAtPath:error:);
    using List = NSArray *(*)(id, SEL, NSString *, NSError **);
    const auto list = reinterpret_cast<List>(gnustepMethod(selector));
    return {[page = rootPage()] { bench::use([page areaTitles:nil]); },
            [=, folder = onThisMachine("/Library/Zelvora/Area")] {
                bench::use(list([NSFileManager defaultManager], selector, folder, nullptr));
            }};
}

const bench::Ratio tables("Catalogs: 10,000 code tables in 500 folders", limits, codeTables);
const bench::Ratio areaFiles("Catalogs: 10,000 area files in one folder", limits, areas);

} // namespace
