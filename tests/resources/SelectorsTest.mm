// Every class and method that the page resources name is there, in the class that the platform will ask.
#include "Resources.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <map>

namespace {

using namespace resources;

NSString *string(const std::string &text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

class Selectors : public testing::Test {
protected:
    static void SetUpTestSuite() {
        bundle = [NSBundle bundleWithPath:string(ZV_BUNDLE_PATH)];
        ASSERT_TRUE([bundle load]);
    }

    static NSBundle *bundle;
};

NSBundle *Selectors::bundle;

/// The class whose instances show the page and are the target of its rows.
Class classOfPage(const std::string &name) {
    if (name == "Zelvora")
        return NSClassFromString(
            string(text(propertyList(ZV_BUNDLE_PATH "/Info.plist"), "NSPrincipalClass")));
    for (const auto &[parent, item] : allItems())
        if (text(item, "id") == name)
            return NSClassFromString(string(text(item, "detail")));
    return Nil;
}

/// Item keys that name a method, with the result and the number of arguments that the platform expects.
struct Role {
    const char *key;
    char result;
    long arguments;
};
constexpr Role kRoles[] = {{"get", '@', 1},
                           {"set", 'v', 2},
                           {"action", 'v', 1},
                           {"valuesDataSource", '@', 1},
                           {"titlesDataSource", '@', 1}};

void expectMethod(Class receiver, const std::string &selector, const Role &role) {
    EXPECT_EQ(std::count(selector.begin(), selector.end(), ':'), role.arguments) << selector;
    NSMethodSignature *signature =
        [receiver instanceMethodSignatureForSelector:NSSelectorFromString(string(selector))];
    ASSERT_NE(signature, nil) << [NSStringFromClass(receiver) UTF8String] << " lacks " << selector;
    EXPECT_EQ(*[signature methodReturnType], role.result) << selector;
}

TEST_F(Selectors, ThePrincipalClassIsTheRootPage) {
    EXPECT_EQ([bundle principalClass], classOfPage("Zelvora"));
    EXPECT_NE(classOfPage("Zelvora"), Nil);
}

TEST_F(Selectors, EveryPageHasAClassThatListsSpecifiers) {
    for (const auto &name : pageNames())
        EXPECT_TRUE([classOfPage(name) isSubclassOfClass:NSClassFromString(@"PSListController")]) << name;
}

TEST_F(Selectors, EveryDetailClassIsAPage) {
    for (const auto &[name, item] : allItems())
        if (item.contains("detail"))
            EXPECT_TRUE([NSClassFromString(string(text(item, "detail")))
                isSubclassOfClass:NSClassFromString(@"PSViewController")])
                << describe(name, item);
}

TEST_F(Selectors, EveryMethodThatARowNamesExists) {
    for (const auto &[name, item] : allItems())
        for (const auto &role : kRoles)
            if (item.contains(role.key))
                expectMethod(classOfPage(name), text(item, role.key), role);
}

TEST_F(Selectors, NoActionOfTheRootPageIsLeftWithoutARow) {
    for (const char *selector :
         {"myInfoAction:", "getMyInfo:", "vibrateTestAction:", "emailAction:", "weiboAction:",
          "alipayAction:", "paypalAction:", "resetAllSettingsAction:", "clearDataAction:", "getCustomCount:",
          "getCallHistoryLimit:", "setCallHistoryLimit:forSpecifier:", "setT9Database:forSpecifier:",
          "areaTitles:", "areaValues:", "t9Titles:", "t9Values:"}) {
        bool named = false;
        for (const auto &item : itemsOf("Zelvora"))
            for (const auto &role : kRoles)
                named = named || text(item, role.key) == selector;
        EXPECT_TRUE(named) << selector;
    }
}

} // namespace
