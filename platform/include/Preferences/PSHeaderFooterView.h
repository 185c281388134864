// A view of its own above or below a group: `headerCellClass` or `footerCellClass` of the group.
#pragma once

#import <UIKit/UIKit.h>

@class PSSpecifier;

@protocol PSHeaderFooterView <NSObject>
@required
- (id)initWithSpecifier:(PSSpecifier *)specifier;
@optional
- (CGFloat)preferredHeightForWidth:(CGFloat)width;
@end
