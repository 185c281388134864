// Follows the UIDevice class reference.
#import <UIKit/UIDevice.h>

#include "host/Device.h"
#include "host/Text.h"

namespace {

/// From this width on a screen is a tablet's.
constexpr double padWidth = 768;

bool isPad() {
    return host::device().width >= padWidth;
}

} // namespace

@implementation UIDevice

+ (UIDevice *)currentDevice {
    static UIDevice *device = [UIDevice new];
    return device;
}

- (NSString *)name {
    return [self model];
}

- (NSString *)model {
    return isPad() ? @"iPad" : @"iPhone";
}

- (NSString *)localizedModel {
    return [self model];
}

- (NSString *)systemName {
    return @"iPhone OS";
}

- (NSString *)systemVersion {
    return host::string(host::device().systemVersion);
}

- (UIUserInterfaceIdiom)userInterfaceIdiom {
    return isPad() ? UIUserInterfaceIdiomPad : UIUserInterfaceIdiomPhone;
}

@end
