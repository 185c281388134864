// UITableViewHeaderFooterView. After Apple's UITableViewHeaderFooterView Class Reference; looks as on
// Settings pages of iOS 7 and 8.
#import "UIKit/UITableViewCell+Host.h"
#import "UIKit/UITableViewHeaderFooterView+Host.h"
#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>

#include "UIKit/TableMetrics.h"

#include <algorithm>

using namespace host::metrics;

struct UITableViewHeaderFooterViewState {
    host::Retained<NSString *> identifier;
    host::Retained<UITableViewLabel *> textLabel, detailLabel;
    host::Retained<UIView *> contentView, backgroundView;
    bool header = true; ///< the text lies at the bottom, by the rows; else at the top
    bool plain = false;
};

namespace {

UIColor *groupTextColor() {
    return [UIColor colorWithRed:109 / 255.0 green:109 / 255.0 blue:114 / 255.0 alpha:1];
}

/// GNUstep makes capitals letter by letter and leaves the sharp s, whose capitals are two letters.
NSString *capitals(NSString *text) {
    return [[text stringByReplacingOccurrencesOfString:@"\u00DF" withString:@"SS"] uppercaseString];
}

} // namespace

@interface UITableViewHeaderFooterView ()
- (void)_hostBecomeTextOf:(UITableViewStyle)style header:(BOOL)header;
@end

@implementation UITableViewHeaderFooterView

- (id)initWithFrame:(CGRect)frame {
    return [self initWithReuseIdentifier:nil];
}

- (id)initWithReuseIdentifier:(NSString *)reuseIdentifier {
    if ((self = [super initWithFrame:CGRectZero])) {
        _headerFooterState = new UITableViewHeaderFooterViewState;
        _headerFooterState->identifier = [[reuseIdentifier copy] autorelease];
        _headerFooterState->contentView = [[[UIView alloc] initWithFrame:CGRectZero] autorelease];
        [self addSubview:_headerFooterState->contentView];
    }
    return self;
}

- (void)dealloc {
    delete _headerFooterState;
    [super dealloc];
}

- (NSString *)reuseIdentifier {
    return _headerFooterState->identifier;
}

- (void)prepareForReuse {
}

- (UIView *)contentView {
    return _headerFooterState->contentView;
}

- (UIView *)backgroundView {
    return _headerFooterState->backgroundView;
}

- (void)setBackgroundView:(UIView *)view {
    [_headerFooterState->backgroundView removeFromSuperview];
    _headerFooterState->backgroundView = view;
    if (view)
        [self insertSubview:view atIndex:0];
    [self setNeedsLayout];
}

- (UITableViewLabel *)_hostNewLabel {
    UITableViewLabel *label = [[[UITableViewLabel alloc] initWithFrame:CGRectZero] autorelease];
    label.font = [UIFont systemFontOfSize:kGroupTextSize];
    label.textColor = groupTextColor();
    label.numberOfLines = 0;
    [_headerFooterState->contentView addSubview:label];
    return label;
}

- (UILabel *)textLabel {
    if (!_headerFooterState->textLabel) {
        _headerFooterState->textLabel = [self _hostNewLabel];
        _headerFooterState->textLabel.get()->_hostRole = _headerFooterState->header ? "header" : "footer";
    }
    return _headerFooterState->textLabel;
}

- (UILabel *)detailTextLabel {
    if (!_headerFooterState->detailLabel)
        _headerFooterState->detailLabel = [self _hostNewLabel];
    return _headerFooterState->detailLabel;
}

- (void)_hostBecomeTextOf:(UITableViewStyle)style header:(BOOL)header {
    _headerFooterState->header = header;
    _headerFooterState->plain = style == UITableViewStylePlain;
    if (!_headerFooterState->plain)
        return;
    self.textLabel.font = [UIFont boldSystemFontOfSize:kPlainTextSize];
    self.textLabel.textColor = [UIColor blackColor];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    UITableViewHeaderFooterViewState &state = *_headerFooterState;
    const CGRect bounds = self.bounds;
    state.contentView.get().frame = state.backgroundView.get().frame = bounds;
    const CGFloat left = margin(bounds.size.width),
                  width = std::max(CGFloat(0), bounds.size.width - 2 * left);
    const CGFloat text = [state.textLabel sizeThatFits:CGSizeMake(width, 0)].height;
    const CGFloat detail =
        state.detailLabel ? [state.detailLabel sizeThatFits:CGSizeMake(width, 0)].height : 0;
    const CGFloat top = [self _hostTextTop:text + detail];
    state.textLabel.get().frame = CGRectMake(left, top, width, text);
    state.detailLabel.get().frame = CGRectMake(left, top + text, width, detail);
}

- (CGFloat)_hostTextTop:(CGFloat)textHeight {
    const CGFloat height = self.bounds.size.height;
    if (_headerFooterState->plain)
        return (height - textHeight) / 2;
    return _headerFooterState->header ? height - kHeaderToRows - textHeight : kRowsToFooter;
}

@end

UITableViewHeaderFooterView *host::newSectionText(NSString *text, UITableViewStyle style, bool header) {
    UITableViewHeaderFooterView *view =
        [[[UITableViewHeaderFooterView alloc] initWithReuseIdentifier:nil] autorelease];
    [view _hostBecomeTextOf:style header:header];
    view.textLabel.text = header && style == UITableViewStyleGrouped ? capitals(text) : text;
    return view;
}
