// A page that keeps the field that is typed into above the keyboard, as "Managing the Keyboard" of the Text
// Programming Guide for iOS shows it: by room at the bottom of its table.
#pragma once

#import <UIKit/UIScrollView.h>

@interface HostKeyboardRoom : NSObject {
    UIScrollView *_table;
    BOOL _made;
}

/// The page of this table is on the screen now. Not before: bars give the table its insets first.
- (void)pageDidAppear:(UIScrollView *)table;

- (void)pageWillDisappear;

@end
