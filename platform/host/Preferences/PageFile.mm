#include "Preferences/PageFile.h"

#include "Preferences/Keys.h"

namespace host {

static PageFile failed(NSString *name, NSString *why) {
    return {.failure = [NSString stringWithFormat:@"The page %@.plist %@.", name, why]};
}

PageFile readPage(NSBundle *bundle, NSString *name) {
    if (![name length])
        return {
            .failure =
                @"The row that opened this page has neither an id nor a label to name its property list."};
    NSString *path = [bundle pathForResource:name ofType:@"plist"];
    return path ? readPageAtPath(path, name)
                : failed(name, [NSString stringWithFormat:@"is missing in %@",
                                                          [[bundle bundlePath] lastPathComponent]]);
}

PageFile readPageAtPath(NSString *path, NSString *name) {
    NSDictionary *root = [NSDictionary dictionaryWithContentsOfFile:path];
    if (!root)
        return failed(name, @"is damaged, or its root is not a dictionary");
    id items = [root objectForKey:key::items];
    if (!items)
        return failed(name, @"has no items");
    if (![items isKindOfClass:[NSArray class]])
        return failed(name, @"has items that are not an array");
    return {.root = root, .items = items};
}

} // namespace host
