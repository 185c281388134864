#import "Resources.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace resources {

namespace {

const std::string kBundle = ZV_BUNDLE_PATH;

NSString *string(const std::string &text) {
    return [NSString stringWithUTF8String:text.c_str()];
}

Json json(id value);

Json dictionary(NSDictionary *value) {
    Json result = Json::object();
    for (NSString *key in [[value allKeys] sortedArrayUsingSelector:@selector(compare:)])
        result[[key UTF8String]] = json([value objectForKey:key]);
    return result;
}

Json number(NSNumber *value) {
    if (value == (id)[NSNumber numberWithBool:YES] || value == (id)[NSNumber numberWithBool:NO])
        return [value boolValue] != NO;
    const char type = *[value objCType];
    if (type == 'f' || type == 'd')
        return [value doubleValue];
    return [value longLongValue];
}

Json json(id value) {
    if ([value isKindOfClass:[NSDictionary class]])
        return dictionary(value);
    if ([value isKindOfClass:[NSNumber class]])
        return number(value);
    if ([value isKindOfClass:[NSString class]])
        return [value UTF8String];
    Json result = Json::array();
    for (id element in (NSArray *)value)
        result.push_back(json(element));
    return result;
}

} // namespace

Json propertyList(const std::string &path) {
    @autoreleasepool {
        NSDictionary *list = [NSDictionary dictionaryWithContentsOfFile:string(path)];
        return list ? json(list) : Json();
    }
}

std::vector<std::string> namesIn(const std::string &folder, const std::string &suffix) {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (name.ends_with(suffix))
            names.push_back(name.substr(0, name.size() - suffix.size()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> pageNames() {
    auto names = namesIn(kBundle, ".plist");
    std::erase(names, "Info");
    return names;
}

Json page(const std::string &name) {
    return propertyList(kBundle + "/" + name + ".plist");
}

std::vector<Json> itemsOf(const std::string &name) {
    const Json list = page(name);
    return list.contains("items") ? list["items"].get<std::vector<Json>>() : std::vector<Json>();
}

std::vector<std::pair<std::string, Json>> allItems() {
    std::vector<std::pair<std::string, Json>> all;
    for (const auto &name : pageNames())
        for (const auto &item : itemsOf(name))
            all.emplace_back(name, item);
    return all;
}

bool isGroup(const Json &item) {
    return text(item, "cell") == "PSGroupCell";
}

bool isControl(const Json &item) {
    static const std::set<std::string> cells{"PSSwitchCell", "PSSliderCell", "PSSegmentCell",
                                             "PSLinkListCell", "PSEditTextCell"};
    return cells.contains(text(item, "cell"));
}

std::string text(const Json &item, const char *key) {
    return item.contains(key) && item[key].is_string() ? item[key].get<std::string>() : "";
}

std::string describe(const std::string &page, const Json &item) {
    return page + ".plist: " + item.dump();
}

std::vector<std::string> textsOf(const Json &page) {
    static const auto kTexts = {"label",   "footerText",  "placeholder", "staticTextMessage", "prompt",
                                "okTitle", "cancelTitle", "suffix",      "headerDetailText"};
    std::vector<std::string> texts{text(page, "title")};
    for (const auto &item : page["items"]) {
        for (const char *key : kTexts)
            texts.push_back(text(item, key));
        for (const char *key : {"validTitles", "shortTitles"})
            if (item.contains(key))
                for (const auto &title : item[key])
                    texts.push_back(title);
    }
    std::erase(texts, "");
    return texts;
}

std::vector<std::string> languages() {
    return namesIn(kBundle, ".lproj");
}

std::vector<std::string> tableNames(const std::string &language) {
    return namesIn(kBundle + "/" + language + ".lproj", ".strings");
}

std::string where(const std::string &language, const std::string &name) {
    return language + ".lproj/" + name + ".strings";
}

Table table(const std::string &language, const std::string &name) {
    @autoreleasepool {
        Table result;
        NSString *path = string(kBundle + "/" + language + ".lproj/" + name + ".strings");
        NSDictionary *texts = [[NSString stringWithContentsOfFile:path] propertyListFromStringsFileFormat];
        for (NSString *key in texts)
            result[[key UTF8String]] = [[texts objectForKey:key] UTF8String];
        return result;
    }
}

} // namespace resources
