#include "Preferences/Messages.h"

#include "host/EventLog.h"
#include "host/Text.h"

namespace host {

namespace {

/// "get of row Volume", for a complaint.
NSString *describe(SEL selector, PSSpecifier *specifier) {
    return
        [NSString stringWithFormat:@"%@ of row %@", NSStringFromSelector(selector), [specifier identifier]];
}

/// The signature of the target's method; nil, with a complaint, when it has none.
NSMethodSignature *signature(PSSpecifier *specifier, SEL selector) {
    if (!selector)
        return nil;
    id target = [specifier target];
    if (![target respondsToSelector:selector]) {
        complain(@"%@: %@ has no such method", describe(selector, specifier), [target class]);
        return nil;
    }
    return [target methodSignatureForSelector:selector];
}

bool returnsObject(NSMethodSignature *method) {
    const char *type = [method methodReturnType];
    while (*type && strchr("rnNoORV", *type))
        type++;
    return *type == '@';
}

} // namespace

void complain(NSString *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    NSString *text = [[[NSString alloc] initWithFormat:format arguments:arguments] autorelease];
    va_end(arguments);
    record(EventKind::log, utf8(text));
}

id ask(PSSpecifier *specifier, SEL question) {
    NSMethodSignature *method = signature(specifier, question);
    if (!method)
        return nil;
    if (!returnsObject(method)) {
        complain(@"%@ does not return an object", describe(question, specifier));
        return nil;
    }
    id answer = nil;
    guarded(describe(question, specifier),
            [&] { answer = [[specifier target] performSelector:question withObject:specifier]; });
    return answer;
}

id valueOf(PSSpecifier *specifier) {
    return ask(specifier, [specifier getter]);
}

void setValueOf(PSSpecifier *specifier, id value) {
    SEL setter = [specifier setter];
    if (!signature(specifier, setter))
        return;
    guarded(describe(setter, specifier),
            [&] { [[specifier target] performSelector:setter withObject:value withObject:specifier]; });
}

bool act(PSSpecifier *specifier, SEL action) {
    if (!signature(specifier, action))
        return false;
    guarded(describe(action, specifier),
            [&] { [[specifier target] performSelector:action withObject:specifier]; });
    return true;
}

NSString *titleOfValue(PSSpecifier *specifier, id value) {
    if (!value)
        return nil;
    id shortTitle = [[specifier shortTitleDictionary] objectForKey:value];
    return as<NSString>([NSString class],
                        shortTitle ? shortTitle : [[specifier titleDictionary] objectForKey:value]);
}

NSString *textProperty(PSSpecifier *specifier, NSString *key) {
    return as<NSString>([NSString class], [specifier propertyForKey:key]);
}

NSNumber *numberProperty(PSSpecifier *specifier, NSString *key) {
    return as<NSNumber>([NSNumber class], [specifier propertyForKey:key]);
}

bool flagProperty(PSSpecifier *specifier, NSString *key, bool otherwise) {
    id value = [specifier propertyForKey:key];
    return [value respondsToSelector:@selector(boolValue)] ? [value boolValue] : otherwise;
}

} // namespace host
