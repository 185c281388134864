// The program (UIApplication class reference).
#pragma once

#import <UIKit/UIResponder.h>

@class UIEvent, UIWindow;

@protocol UIApplicationDelegate <NSObject>
@end

extern NSString *const UIApplicationDidEnterBackgroundNotification;
extern NSString *const UIApplicationWillEnterForegroundNotification;
extern NSString *const UIApplicationDidBecomeActiveNotification;
extern NSString *const UIApplicationWillResignActiveNotification;

@interface UIApplication : UIResponder {
@private
    id<UIApplicationDelegate> _delegate;
}

+ (UIApplication *)sharedApplication;

@property (nonatomic, assign) id<UIApplicationDelegate> delegate;
@property (nonatomic, readonly) UIWindow *keyWindow;
@property (nonatomic, readonly) NSArray *windows;

/// NO for nil and for a URL that no program of the phone opens.
- (BOOL)openURL:(NSURL *)url;
- (BOOL)canOpenURL:(NSURL *)url;

/// A nil target means whoever answers to `action` first, from the first responder on.
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender forEvent:(UIEvent *)event;

@end
