#include "listeditor/ListKind.h"

#include <gtest/gtest.h>
#include <string>

using zv::ListKind;
using zv::listKindEntry;
using zv::listKindWithId;

namespace {

int kindNumber(const char *listId) {
    return static_cast<int>(listKindWithId(listId).kind);
}

std::string notificationOf(const char *listId) {
    const char *name = listKindWithId(listId).notification;
    return name ? name : "";
}

TEST(ListKinds, EveryIdHasItsNumber) {
    EXPECT_EQ(kindNumber("area"), 1);
    EXPECT_EQ(kindNumber("t9"), 2);
    EXPECT_EQ(kindNumber("black"), 3);
    EXPECT_EQ(kindNumber("white"), 4);
    EXPECT_EQ(kindNumber("priority"), 5);
    EXPECT_EQ(kindNumber("exclude"), 6);
    EXPECT_EQ(kindNumber("calltime"), 7);
}

TEST(ListKinds, UnknownIdsHaveTheNumberZero) {
    EXPECT_EQ(kindNumber(nullptr), 0);
    EXPECT_EQ(kindNumber(""), 0);
    EXPECT_EQ(kindNumber("gray"), 0);
}

TEST(ListKinds, IdsAreComparedExactly) {
    EXPECT_EQ(kindNumber("Black"), 0);
    EXPECT_EQ(kindNumber("black "), 0);
    EXPECT_EQ(kindNumber("blacklist"), 0);
}

TEST(ListKinds, OnlyTheCallTimeHasNoDocument) {
    EXPECT_FALSE(listKindWithId("calltime").hasDocument);
    for (const char *listId : {"area", "t9", "black", "white", "priority", "exclude"})
        EXPECT_TRUE(listKindWithId(listId).hasDocument) << listId;
    EXPECT_FALSE(listKindWithId("gray").hasDocument);
}

TEST(ListKinds, EveryListAnnouncesItsChanges) {
    EXPECT_EQ(notificationOf("area"), "ZVAreaChanged");
    EXPECT_EQ(notificationOf("t9"), "ZVT9Changed");
    EXPECT_EQ(notificationOf("black"), "ZVBlacklistChanged");
    EXPECT_EQ(notificationOf("white"), "ZVBlacklistChanged");
}

TEST(ListKinds, ThePriorityListIsAnnouncedLikeTheCodeTable) {
    EXPECT_EQ(notificationOf("priority"), "ZVT9Changed");
}

TEST(ListKinds, ListsWithoutANotificationOfTheirOwnLeaveItToTheRootPage) {
    EXPECT_EQ(notificationOf("exclude"), "");
    EXPECT_EQ(notificationOf("calltime"), "");
    EXPECT_EQ(notificationOf("gray"), "");
}

TEST(ListKinds, AnEntryIsFoundByItsKind) {
    for (const zv::ListKindEntry &entry : zv::listKinds)
        EXPECT_STREQ(listKindEntry(entry.kind).listId, entry.listId);
    EXPECT_EQ(listKindEntry(ListKind::none).kind, ListKind::none);
}

TEST(ListKinds, FourListsHoldPhoneNumbers) {
    EXPECT_FALSE(zv::holdsPhoneNumbers(ListKind::none));
    EXPECT_FALSE(zv::holdsPhoneNumbers(ListKind::area));
    EXPECT_FALSE(zv::holdsPhoneNumbers(ListKind::t9));
    EXPECT_TRUE(zv::holdsPhoneNumbers(ListKind::black));
    EXPECT_TRUE(zv::holdsPhoneNumbers(ListKind::white));
    EXPECT_TRUE(zv::holdsPhoneNumbers(ListKind::priority));
    EXPECT_TRUE(zv::holdsPhoneNumbers(ListKind::exclude));
    EXPECT_FALSE(zv::holdsPhoneNumbers(ListKind::callTime));
}

} // namespace
