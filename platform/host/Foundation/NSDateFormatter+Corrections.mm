// The short date of mainland China as the imitated system writes it: 15/3/6 from 8.0 on, 15-3-6 before
// (Unicode CLDR of those years). The ICU library of today writes 2015/3/6.
#include "Foundation/MethodCorrection.h"
#include "host/Device.h"

#import <Foundation/Foundation.h>
#import <objc/runtime.h>

#include <cstdlib>

namespace {

using StringOfDate = NSString *(*)(id, SEL, NSDate *);
StringOfDate formattedString = nullptr;

bool isMainlandChinese(NSLocale *locale) {
    if (![[locale objectForKey:NSLocaleLanguageCode] isEqual:@"zh"])
        return false;
    NSString *script = [locale objectForKey:NSLocaleScriptCode];
    NSString *country = [locale objectForKey:NSLocaleCountryCode];
    return ![script isEqual:@"Hant"] && ([country length] == 0 || [country isEqual:@"CN"]);
}

bool isShortChineseDate(NSDateFormatter *formatter) {
    return [[formatter dateFormat] length] == 0 && [formatter dateStyle] == NSDateFormatterShortStyle &&
           [formatter timeStyle] == NSDateFormatterNoStyle && isMainlandChinese([formatter locale]);
}

NSString *shortChineseDate(NSDateFormatter *formatter, SEL selector, NSDate *date) {
    const bool beforeVersion8 = std::atof(host::device().systemVersion.c_str()) < 8;
    NSDateFormatter *exact = [[NSDateFormatter alloc] init];
    [exact setLocale:[formatter locale]];
    [exact setTimeZone:[formatter timeZone]];
    [exact setDateFormat:beforeVersion8 ? @"yy-M-d" : @"yy/M/d"];
    NSString *text = formattedString(exact, selector, date);
    [exact release];
    return text;
}

NSString *stringFromDate(id self, SEL selector, NSDate *date) {
    if (!date)
        return nil;
    return isShortChineseDate(self) ? shortChineseDate(self, selector, date)
                                    : formattedString(self, selector, date);
}

NSString *stringForObjectValue(id self, SEL selector, id value) {
    return [value isKindOfClass:[NSDate class]] ? [self stringFromDate:value] : nil;
}

using SetStyle = void (*)(id, SEL, NSDateFormatterStyle);
SetStyle setDateStyle = nullptr;
SetStyle setTimeStyle = nullptr;

void setDateStyleForgettingPattern(NSDateFormatter *self, SEL selector, NSDateFormatterStyle style) {
    [self setDateFormat:nil];
    setDateStyle(self, selector, style);
}

void setTimeStyleForgettingPattern(NSDateFormatter *self, SEL selector, NSDateFormatterStyle style) {
    [self setDateFormat:nil];
    setTimeStyle(self, selector, style);
}

} // namespace

@interface HostDateFormatter : NSObject
@end

@implementation HostDateFormatter

+ (void)load {
    formattedString = reinterpret_cast<StringOfDate>(host::replaceMethod(
        objc_getClass("NSDateFormatter"), @selector(stringFromDate:), reinterpret_cast<IMP>(stringFromDate)));
    host::replaceMethod(objc_getClass("NSDateFormatter"), @selector(stringForObjectValue:),
                        reinterpret_cast<IMP>(stringForObjectValue));
    setDateStyle = reinterpret_cast<SetStyle>(
        host::replaceMethod(objc_getClass("NSDateFormatter"), @selector(setDateStyle:),
                            reinterpret_cast<IMP>(setDateStyleForgettingPattern)));
    setTimeStyle = reinterpret_cast<SetStyle>(
        host::replaceMethod(objc_getClass("NSDateFormatter"), @selector(setTimeStyle:),
                            reinterpret_cast<IMP>(setTimeStyleForgettingPattern)));
}

@end
