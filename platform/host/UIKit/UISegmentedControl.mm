// Follows the UISegmentedControl class reference.
#import <UIKit/UISegmentedControl.h>

#import <UIKit/UIFont.h>
#import <UIKit/UIImage.h>

#include "host/Retained.h"
#include "host/Text.h"
#include "UIKit/UIFont+Host.h"
#include "UIKit/UIImage+Host.h"
#include "UIKit/UIView+Host.h"

#include <algorithm>
#include <vector>

namespace {

constexpr CGFloat segmentHeight = 29, titlePoints = 13, titleMargin = 10;

/// Shows its title, or its image where it has none.
struct Segment {
    host::Retained<NSString *> title;
    host::Retained<UIImage *> image;
    bool enabled = true;
};

} // namespace

struct UISegmentedControlState {
    std::vector<Segment> all;
    NSInteger selected = UISegmentedControlNoSegment;
    bool momentary = false;
};

@implementation UISegmentedControl

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _segments = new UISegmentedControlState;
    return self;
}

- (id)initWithItems:(NSArray *)items {
    if ((self = [self initWithFrame:CGRectZero])) {
        for (id item in items) {
            if ([item isKindOfClass:[UIImage class]])
                [self insertSegmentWithImage:item atIndex:[self numberOfSegments] animated:NO];
            else
                [self insertSegmentWithTitle:item atIndex:[self numberOfSegments] animated:NO];
        }
        [self sizeToFit];
    }
    return self;
}

- (void)dealloc {
    delete _segments;
    [super dealloc];
}

- (NSUInteger)numberOfSegments {
    return _segments->all.size();
}

- (NSInteger)selectedSegmentIndex {
    return _segments->selected;
}

- (void)setSelectedSegmentIndex:(NSInteger)index {
    if (index >= (NSInteger)_segments->all.size())
        [NSException raise:NSRangeException
                    format:@"segment %ld of %lu", (long)index, (unsigned long)_segments->all.size()];
    _segments->selected = std::max<NSInteger>(index, UISegmentedControlNoSegment);
}

- (BOOL)isMomentary {
    return _segments->momentary;
}

- (void)setMomentary:(BOOL)momentary {
    _segments->momentary = momentary;
}

- (void)_hostInsert:(Segment)segment atIndex:(NSUInteger)index {
    const NSUInteger place = std::min<NSUInteger>(index, _segments->all.size());
    _segments->all.insert(_segments->all.begin() + (std::ptrdiff_t)place, std::move(segment));
    if (_segments->selected >= (NSInteger)place)
        _segments->selected++;
}

- (void)insertSegmentWithTitle:(NSString *)title atIndex:(NSUInteger)index animated:(BOOL)animated {
    [self _hostInsert:{[[title copy] autorelease], nil} atIndex:index];
}

- (void)insertSegmentWithImage:(UIImage *)image atIndex:(NSUInteger)index animated:(BOOL)animated {
    [self _hostInsert:{nil, image} atIndex:index];
}

- (void)removeSegmentAtIndex:(NSUInteger)index animated:(BOOL)animated {
    if (_segments->all.empty())
        return;
    const auto place = (std::ptrdiff_t)std::min<NSUInteger>(index, _segments->all.size() - 1);
    _segments->all.erase(_segments->all.begin() + place);
    if (_segments->selected == place)
        _segments->selected = UISegmentedControlNoSegment;
    else if (_segments->selected > place)
        _segments->selected--;
}

- (void)removeAllSegments {
    _segments->all.clear();
    _segments->selected = UISegmentedControlNoSegment;
}

/// The segment at `index`, or the last one when there are fewer; raises when there is none.
- (Segment &)_hostSegmentAt:(NSUInteger)index {
    if (_segments->all.empty())
        [NSException raise:NSRangeException format:@"a segmented control without segments"];
    return _segments->all[std::min<NSUInteger>(index, _segments->all.size() - 1)];
}

- (void)setTitle:(NSString *)title forSegmentAtIndex:(NSUInteger)index {
    Segment &segment = [self _hostSegmentAt:index];
    segment.title = [[title copy] autorelease];
    segment.image = nil;
}

- (NSString *)titleForSegmentAtIndex:(NSUInteger)index {
    return [self _hostSegmentAt:index].title;
}

- (void)setImage:(UIImage *)image forSegmentAtIndex:(NSUInteger)index {
    Segment &segment = [self _hostSegmentAt:index];
    segment.image = image;
    segment.title = nil;
}

- (UIImage *)imageForSegmentAtIndex:(NSUInteger)index {
    return [self _hostSegmentAt:index].image;
}

- (void)setEnabled:(BOOL)enabled forSegmentAtIndex:(NSUInteger)index {
    [self _hostSegmentAt:index].enabled = enabled;
}

- (BOOL)isEnabledForSegmentAtIndex:(NSUInteger)index {
    return [self _hostSegmentAt:index].enabled;
}

/// All segments are as wide as the widest.
- (CGSize)sizeThatFits:(CGSize)size {
    const host::Face face{titlePoints, host::Weight::regular};
    CGFloat widest = 0;
    for (const Segment &segment : _segments->all) {
        const CGFloat width = segment.image ? [segment.image.get() size].width
                                            : host::textWidth(host::utf16(segment.title), face);
        widest = std::max(widest, host::upToHalfPoint(width) + 2 * titleMargin);
    }
    return CGSizeMake(widest * (CGFloat)_segments->all.size(), segmentHeight);
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = "SegmentedControl";
    element.enabled = [self isEnabled];
    const std::size_t count = _segments->all.size();
    for (std::size_t i = 0; i < count; i++) {
        const Segment &segment = _segments->all[i];
        host::Element button{.type = "Button", .label = host::utf8(segment.title)};
        button.number = element.number;
        button.part = std::to_string(i);
        button.enabled = [self isEnabled] && segment.enabled;
        button.selected = (NSInteger)i == _segments->selected;
        const double width = element.rect.width / (double)count;
        button.rect = {element.rect.x + width * (double)i, element.rect.y, width, element.rect.height};
        host::describeImage(button, segment.image);
        element.children.push_back(std::move(button));
    }
    return YES;
}

/// A tap on the chosen segment changes nothing and sends nothing.
- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    if (gesture.kind != host::GestureKind::tap || ![self isEnabled] || gesture.part.empty())
        return host::Outcome::disabled;
    const auto index = (NSUInteger)std::strtoul(gesture.part.c_str(), nullptr, 10);
    if (index >= _segments->all.size() || !_segments->all[index].enabled)
        return host::Outcome::disabled;
    if (_segments->selected == (NSInteger)index)
        return host::Outcome::done;
    _segments->selected = (NSInteger)index;
    [self sendActionsForControlEvents:UIControlEventValueChanged];
    if (_segments->momentary)
        _segments->selected = UISegmentedControlNoSegment;
    return host::Outcome::done;
}

@end
