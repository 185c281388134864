// PSSegmentTableCell: a segmented control over the width of the row, one segment a value.
#import <Preferences/PSSegmentTableCell.h>

#include "Preferences/Messages.h"
#include "Preferences/PSTableCell+Host.h"

@implementation PSSegmentTableCell

- (UIControl *)newControl {
    UISegmentedControl *segments = [[UISegmentedControl alloc] initWithItems:[NSArray array]];
    [[self contentView] addSubview:segments];
    return segments;
}

- (void)dealloc {
    [_shownTitles release];
    [super dealloc];
}

- (UISegmentedControl *)_hostSegments {
    return static_cast<UISegmentedControl *>(_control);
}

static NSArray *titlesOf(PSSpecifier *specifier) {
    NSMutableArray *titles = [NSMutableArray array];
    for (id value in [specifier values]) {
        NSString *title =
            host::as<NSString>([NSString class], [[specifier titleDictionary] objectForKey:value]);
        [titles addObject:title ? title : [value description]];
    }
    return titles;
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    [self _hostShowTitles:titlesOf(specifier)];
    [super refreshCellContentsWithSpecifier:specifier];
}

- (void)_hostShowTitles:(NSArray *)titles {
    if ([_shownTitles isEqualToArray:titles])
        return;
    [titles retain];
    [_shownTitles release];
    _shownTitles = titles;
    [[self _hostSegments] removeAllSegments];
    for (NSString *title in titles) {
        [[self _hostSegments] insertSegmentWithTitle:title
                                             atIndex:[[self _hostSegments] numberOfSegments]
                                            animated:NO];
    }
}

- (BOOL)_hostShowsTitle {
    return NO;
}

- (void)updateControl {
    NSArray *values = [[self specifier] values];
    const NSUInteger index = values && [self value] ? [values indexOfObject:[self value]] : NSNotFound;
    [[self _hostSegments] setSelectedSegmentIndex:index == NSNotFound ? UISegmentedControlNoSegment
                                                                      : static_cast<NSInteger>(index)];
}

- (id)controlValue {
    const NSInteger index = [[self _hostSegments] selectedSegmentIndex];
    NSArray *values = [[self specifier] values];
    return index >= 0 && index < static_cast<NSInteger>([values count])
               ? [values objectAtIndex:static_cast<NSUInteger>(index)]
               : nil;
}

- (void)layoutSubviews {
    [super layoutSubviews];
    constexpr CGFloat height = 29;
    const CGRect content = [[self contentView] bounds];
    const CGFloat width = content.size.width - 2 * host::rowMargin;
    [_control
        setFrame:CGRectMake(host::rowMargin, (content.size.height - height) / 2, MAX(0, width), height)];
}

@end
