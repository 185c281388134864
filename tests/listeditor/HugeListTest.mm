// A list's document of fifty megabytes, whole and cut.
#import "ListPageTest.h"

#include <filesystem>

namespace {

constexpr std::size_t fiftyMegabytes = 50'000'000;

class HugeLists : public ListPageTest {
protected:
    static std::string hugeDocument() {
        const std::string name(500, 'n');
        Entries entries;
        for (std::size_t size = 0; size < fiftyMegabytes; size += name.size())
            entries["+44" + std::to_string(10'000'000 + entries.size())] = name;
        return support::propertyList(entries);
    }

    [[nodiscard]] std::uintmax_t sizeOfDocument() const {
        return std::filesystem::file_size(device.path(userFile("black")));
    }

    [[nodiscard]] NSUInteger entryCount() const {
        NSString *path = support::text(device.path(userFile("black")));
        return [[NSDictionary dictionaryWithContentsOfFile:path] count];
    }
};

TEST_F(HugeLists, OfFiftyMegabytesOpenChangeAndAreSaved) {
    device.write(userFile("black"), hugeDocument());
    ASSERT_GT(sizeOfDocument(), fiftyMegabytes);
    const NSUInteger count = entryCount();
    openList("Blacklist");
    EXPECT_EQ(rows(entries).front().detail, "+4410000000");
    add("123", "Bob");
    EXPECT_EQ(texts(entries).front(), "Bob");
    EXPECT_EQ(entryCount(), count + 1);
    EXPECT_GT(sizeOfDocument(), fiftyMegabytes);
}

TEST_F(HugeLists, ThatEndTooSoonAreEmptyAndReplacedByTheFirstChange) {
    std::string content = hugeDocument();
    content.resize(content.size() / 2);
    device.write(userFile("black"), content);
    openList("Blacklist");
    EXPECT_THAT(texts(entries), testing::IsEmpty());
    add("123", "Bob");
    EXPECT_THAT(document(), testing::ElementsAre(testing::Pair("123", "Bob")));
}

} // namespace
