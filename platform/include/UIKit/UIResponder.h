// What can have the keyboard's attention (UIResponder class reference).
#pragma once

#import <Foundation/Foundation.h>

@interface UIResponder : NSObject

- (UIResponder *)nextResponder;

- (BOOL)canBecomeFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)canResignFirstResponder;
- (BOOL)resignFirstResponder;
- (BOOL)isFirstResponder;

@end
