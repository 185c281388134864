#include "Preferences/DomainFile.h"

#include "host/Device.h"
#include "host/Text.h"
#include "Preferences/Messages.h"

namespace host {

namespace {

NSString *const folder = @"/var/mobile/Library/Preferences";
NSString *const ownDomain = @"com.apple.Preferences";

/// Where a domain's file lies on this machine. A domain may also be an absolute path.
NSString *domainFile(NSString *domain) {
    NSString *name = [domain length] ? domain : ownDomain;
    NSString *path = [name isAbsolutePath] ? name : [folder stringByAppendingPathComponent:name];
    return string(devicePath(utf8([path stringByAppendingPathExtension:@"plist"])));
}

} // namespace

id storedValue(NSString *domain, NSString *key) {
    return [[NSDictionary dictionaryWithContentsOfFile:domainFile(domain)] objectForKey:key];
}

bool storeValue(NSString *domain, NSString *key, id value) {
    NSString *file = domainFile(domain);
    NSFileManager *files = [NSFileManager defaultManager];
    NSMutableDictionary *values = [NSMutableDictionary dictionaryWithContentsOfFile:file];
    if (!values && [files fileExistsAtPath:file])
        complain(@"the preferences of domain %@ are damaged and begin anew", domain);
    if (!values)
        values = [NSMutableDictionary dictionary];
    [values setValue:value forKey:key];
    [files createDirectoryAtPath:[file stringByDeletingLastPathComponent]
        withIntermediateDirectories:YES
                         attributes:nil
                              error:nullptr];
    if ([values writeToFile:file atomically:YES])
        return true;
    complain(@"the value of %@ cannot be stored in domain %@", key, domain);
    return false;
}

} // namespace host
