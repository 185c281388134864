// How the work on a list grows with its entries.
#include "listeditor/ListDocument.h"

#include "support/Growth.h"
#include "support/PropertyLists.h"
#include "support/TestDevice.h"

namespace {

constexpr double mostGrowth = 12;

class ListGrowth : public testing::Test {
protected:
    ListGrowth() {
        write("white", 1000);
        write("black", 10000);
    }

    void write(const std::string &listId, int count) {
        support::Entries entries;
        for (int i = 0; i < count; ++i)
            entries["+1555" + std::to_string(i * 7919 % 10000000)] = "Name " + std::to_string(i);
        device.write("/var/mobile/Library/Preferences/zelvora." + listId + ".plist",
                     support::propertyList(entries));
    }

    static zv::ListDocument document(NSString *listId) {
        return {zv::ListDocument::userPath(listId), zv::ListDocument::defaultPath(listId)};
    }

    static void open(NSString *listId) { zv::rebuildRows([NSMutableArray array], document(listId).read()); }

    /// In and out again, as two taps in a picker.
    static void toggleTwice(NSString *listId) {
        NSMutableArray *rows = [NSMutableArray array];
        zv::rebuildRows(rows, document(listId).put(@"+4420", @"New"));
        zv::rebuildRows(rows, document(listId).remove(@"+4420"));
    }

    support::TestDevice device;
};

TEST_F(ListGrowth, TenTimesTheEntriesOpenInAtMostTwelveTimesTheTime) {
    EXPECT_TRUE(support::growsAtMost(
        mostGrowth, [] { open(@"white"); }, [] { open(@"black"); }));
}

TEST_F(ListGrowth, APickersToggleAmongTenTimesTheEntriesTakesAtMostTwelveTimesTheTime) {
    EXPECT_TRUE(support::growsAtMost(
        mostGrowth, [] { toggleTwice(@"white"); }, [] { toggleTwice(@"black"); }));
}

} // namespace
