// The person's locale is the device's (Apple's NSLocale class reference), not that of the Linux process.
#include "host/Device.h"
#include "host/Text.h"

#import <Foundation/Foundation.h>

@implementation NSLocale (HostDevice)

+ (id)currentLocale {
    NSString *identifier = host::string(host::localeIdentifier());
    return [[[NSLocale alloc] initWithLocaleIdentifier:identifier] autorelease];
}

+ (id)autoupdatingCurrentLocale {
    return [self currentLocale];
}

@end
