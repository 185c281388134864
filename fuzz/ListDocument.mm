// Random list documents, on disk before and changed at random: the documents stay what a simple model of them
// says, the rows stay sorted, and nothing crashes.
#include "listeditor/ListDocument.h"
#include "host/Device.h"

#import <Foundation/Foundation.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <fuzzer/FuzzedDataProvider.h>
#include <map>
#include <string>

namespace {

namespace fs = std::filesystem;

using Entries = std::map<std::u16string, std::u16string>;

// Texts that stay the same whatever form of Unicode they are compared in.
constexpr std::u16string_view letters = u"0123456789+*#,;<>&\"' abcXYZé中国電話\U0001f600";

void require(bool holds) {
    if (!holds)
        std::abort();
}

std::u16string units(NSString *text) {
    std::u16string units([text length], u'\0');
    [text getCharacters:reinterpret_cast<unichar *>(units.data()) range:NSMakeRange(0, units.size())];
    return units;
}

NSString *string(const std::u16string &units) {
    return [NSString stringWithCharacters:reinterpret_cast<const unichar *>(units.data())
                                   length:units.size()];
}

Entries entriesOf(NSDictionary *document) {
    Entries entries;
    for (NSString *number in document) {
        id name = [document objectForKey:number];
        entries[units(number)] = [name isKindOfClass:[NSString class]] ? units(name) : u"";
    }
    return entries;
}

class Fuzzer {
public:
    Fuzzer(const std::uint8_t *data, std::size_t size) : m_data(data, size) {}

    void run() {
        prepare(m_userPath);
        prepare(m_defaultPath);
        m_model = entriesOf(m_document.read());
        for (int step = 0; step < 40 && m_data.remaining_bytes() > 0; ++step)
            change();
    }

private:
    std::u16string text() {
        std::u16string text;
        for (int length = m_data.ConsumeIntegralInRange(0, 24); length > 0; --length)
            text += letters[m_data.ConsumeIntegralInRange<std::size_t>(0, letters.size() - 1)];
        return text;
    }

    // Half of an emoji counts as damage that a document may mend.
    static bool isWhole(const std::u16string &text) {
        for (std::size_t index = 0; index < text.size(); ++index) {
            const bool high = text[index] >= 0xd800 && text[index] < 0xdc00;
            const bool low = text[index] >= 0xdc00 && text[index] < 0xe000;
            if (low ||
                (high && (index + 1 == text.size() || text[index + 1] < 0xdc00 || text[index + 1] >= 0xe000)))
                return false;
            index += high;
        }
        return true;
    }

    void prepare(NSString *path) {
        const std::string file = [path UTF8String];
        fs::remove(file);
        if (m_data.ConsumeBool())
            std::ofstream(file, std::ios::binary) << m_data.ConsumeRandomLengthString(400);
    }

    void change() {
        const std::u16string number = text(), name = text(), old = text();
        switch (m_data.ConsumeIntegralInRange(0, 2)) {
        case 0:
            m_document.put(string(number), string(name));
            m_model[number] = name;
            break;
        case 1:
            m_document.replace(string(old), string(number), string(name));
            m_model.erase(old);
            m_model[number] = name;
            break;
        default: m_document.remove(string(old)); m_model.erase(old);
        }
        checkCut(name);
        checkDocument(isWhole(number) && isWhole(name));
    }

    static void checkCut(const std::u16string &text) {
        require(units(zv::cutEntryText(string(text))) == text.substr(0, 20));
    }

    void checkDocument(bool unharmed) {
        NSDictionary *document = m_document.read();
        const Entries entries = entriesOf(document);
        if (unharmed)
            require(entries == m_model);
        m_model = entries;
        NSMutableArray *rows = [NSMutableArray array];
        zv::rebuildRows(rows, document);
        checkRows(rows);
    }

    void checkRows(NSArray *rows) {
        require([rows count] == m_model.size());
        NSString *previous = nil;
        for (NSDictionary *row in rows) {
            NSString *number = [row objectForKey:@"number"];
            require(!previous || [previous compare:number] != NSOrderedDescending);
            require(units([row objectForKey:@"name"]) == m_model.at(units(number)));
            previous = number;
        }
    }

    FuzzedDataProvider m_data;
    NSString *m_userPath = zv::ListDocument::userPath(@"black");
    NSString *m_defaultPath = zv::ListDocument::defaultPath(@"black");
    zv::ListDocument m_document{m_userPath, m_defaultPath};
    Entries m_model;
};

bool startDevice() {
    std::string folder = (fs::temp_directory_path() / "zv-fuzz-XXXXXX").string();
    require(mkdtemp(folder.data()));
    host::start({.folder = folder, .virtualTime = true});
    fs::create_directories(host::devicePath("/var/mobile/Library/Preferences"));
    fs::create_directories(host::devicePath("/Library/Zelvora/Default"));
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    [[maybe_unused]] static const bool started = startDevice();
    @autoreleasepool {
        Fuzzer(data, size).run();
    }
    return 0;
}
