// Follows the UIApplication class reference.
#import <UIKit/UIApplication.h>

#import <UIKit/UIWindow.h>

#include "host/EventLog.h"
#include "host/Text.h"
#include "UIKit/UIResponder+Host.h"
#include "UIKit/UIWindow+Host.h"

NSString *const UIApplicationDidEnterBackgroundNotification = @"UIApplicationDidEnterBackgroundNotification";
NSString *const UIApplicationWillEnterForegroundNotification =
    @"UIApplicationWillEnterForegroundNotification";
NSString *const UIApplicationDidBecomeActiveNotification = @"UIApplicationDidBecomeActiveNotification";
NSString *const UIApplicationWillResignActiveNotification = @"UIApplicationWillResignActiveNotification";

namespace {

/// Schemes that the programs of a new phone open.
NSArray *knownSchemes() {
    return @[
        @"http", @"https", @"mailto", @"tel", @"telprompt", @"sms", @"facetime", @"facetime-audio", @"maps",
        @"itms", @"itms-apps", @"prefs"
    ];
}

/// Sends `action` with as many of (sender, event) as it takes.
void send(SEL action, id target, id sender, UIEvent *event) {
    switch ([[target methodSignatureForSelector:action] numberOfArguments]) {
    case 2: [target performSelector:action]; break;
    case 3: [target performSelector:action withObject:sender]; break;
    default: [target performSelector:action withObject:sender withObject:(id)event]; break;
    }
}

/// Whoever answers to `action` first on the way up from `responder`.
id answering(SEL action, UIResponder *responder) {
    while (responder && ![responder respondsToSelector:action])
        responder = [responder nextResponder];
    return responder;
}

} // namespace

@implementation UIApplication

+ (UIApplication *)sharedApplication {
    static UIApplication *application = [UIApplication new];
    return application;
}

- (id<UIApplicationDelegate>)delegate {
    return _delegate;
}

- (void)setDelegate:(id<UIApplicationDelegate>)delegate {
    _delegate = delegate;
}

- (UIWindow *)keyWindow {
    return host::keyWindow();
}

- (NSArray *)windows {
    return host::shownWindows();
}

- (BOOL)canOpenURL:(NSURL *)url {
    return [[url scheme] length] && [knownSchemes() containsObject:[[url scheme] lowercaseString]];
}

- (BOOL)openURL:(NSURL *)url {
    if (![self canOpenURL:url])
        return NO;
    host::record(host::EventKind::url, host::utf8([url absoluteString]));
    return YES;
}

- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender forEvent:(UIEvent *)event {
    if (!action)
        return NO;
    if (!target)
        target = answering(action, host::firstResponder());
    if (!target && [sender isKindOfClass:[UIResponder class]])
        target = answering(action, sender);
    if (!target && [self respondsToSelector:action])
        target = self;
    if (!target)
        return NO;
    send(action, target, sender, event);
    return YES;
}

@end
