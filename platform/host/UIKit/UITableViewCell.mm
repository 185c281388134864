// UITableViewCell: parts and states. After Apple's UITableViewCell Class Reference.
#import "UIKit/UIColor+Host.h"
#import "UIKit/UITableView+Host.h"
#import "UIKit/UITableViewCell+Host.h"
#import <UIKit/UIFont.h>

#include "UIKit/TableMetrics.h"

namespace {

/// The parts of a cell by style: role, font size and colour of the two texts.
struct TextLook {
    double textSize, detailSize;
    bool tintedText, grayDetail;
};

constexpr TextLook lookOf(UITableViewCellStyle style) {
    switch (style) {
    case UITableViewCellStyleValue1: return {17, 17, false, true};
    case UITableViewCellStyleValue2: return {12, 15, true, false};
    case UITableViewCellStyleSubtitle: return {17, 12, false, false};
    default: return {17, 17, false, false};
    }
}

UIColor *detailGray() {
    return [UIColor colorWithRed:142 / 255.0 green:142 / 255.0 blue:147 / 255.0 alpha:1];
}

UITableViewLabel *newLabel(const char *role, double size, UIColor *color) {
    UITableViewLabel *label = [[UITableViewLabel alloc] initWithFrame:CGRectZero];
    label->_hostRole = role;
    label.font = [UIFont systemFontOfSize:size];
    label.textColor = color;
    return label;
}

} // namespace

@implementation UITableViewCell

- (id)initWithFrame:(CGRect)frame {
    return [self initWithStyle:UITableViewCellStyleDefault reuseIdentifier:nil];
}

- (id)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier {
    if ((self = [super initWithFrame:CGRectMake(0, 0, 320, host::metrics::kRowHeight)])) {
        _cellState = new UITableViewCellState;
        _cellState->style = style;
        _cellState->identifier = [[reuseIdentifier copy] autorelease];
        _cellState->indentationWidth = host::metrics::kIndentation;
        _cellState->contentView = [[[UIView alloc] initWithFrame:self.bounds] autorelease];
        [self addSubview:_cellState->contentView];
    }
    return self;
}

- (void)dealloc {
    delete _cellState;
    [super dealloc];
}

- (UITableViewCellState &)_hostCell {
    return *_cellState;
}

- (UITableView *)_hostTable {
    UIView *view = self.superview;
    return [view isKindOfClass:[UITableView class]] ? static_cast<UITableView *>(view) : nil;
}

- (NSString *)reuseIdentifier {
    return _cellState->identifier;
}

- (void)prepareForReuse {
}

- (UIView *)contentView {
    return _cellState->contentView;
}

- (UILabel *)textLabel {
    if (!_cellState->textLabel) {
        const TextLook look = lookOf(_cellState->style);
        UILabel *label =
            newLabel("text", look.textSize, look.tintedText ? host::systemTint() : [UIColor blackColor]);
        if (_cellState->style == UITableViewCellStyleValue2)
            label.textAlignment = NSTextAlignmentRight;
        _cellState->textLabel = [label autorelease];
        [_cellState->contentView addSubview:label];
    }
    return _cellState->textLabel;
}

- (UILabel *)detailTextLabel {
    if (_cellState->style == UITableViewCellStyleDefault)
        return nil;
    if (!_cellState->detailLabel) {
        const TextLook look = lookOf(_cellState->style);
        UILabel *label =
            newLabel("detail", look.detailSize, look.grayDetail ? detailGray() : [UIColor blackColor]);
        if (_cellState->style == UITableViewCellStyleValue1)
            label.textAlignment = NSTextAlignmentRight;
        _cellState->detailLabel = [label autorelease];
        [_cellState->contentView addSubview:label];
    }
    return _cellState->detailLabel;
}

- (UIImageView *)imageView {
    if (!_cellState->imageView) {
        _cellState->imageView = [[[UITableViewCellImageView alloc] initWithFrame:CGRectZero] autorelease];
        [_cellState->contentView addSubview:_cellState->imageView];
    }
    return _cellState->imageView;
}

/// Puts `view` in the place of `old`, at `index` among the subviews.
- (void)_hostReplace:(host::Retained<UIView *> &)old by:(UIView *)view atIndex:(NSInteger)index {
    if (old.get() == view)
        return;
    [old removeFromSuperview];
    old = view;
    if (view)
        [self insertSubview:view atIndex:index];
    [self setNeedsLayout];
}

- (UIView *)backgroundView {
    return _cellState->backgroundView;
}

- (void)setBackgroundView:(UIView *)view {
    [self _hostReplace:_cellState->backgroundView by:view atIndex:0];
}

- (UIView *)selectedBackgroundView {
    return _cellState->selectedBackgroundView;
}

- (void)setSelectedBackgroundView:(UIView *)view {
    [self _hostReplace:_cellState->selectedBackgroundView by:view atIndex:0];
}

- (UITableViewCellSelectionStyle)selectionStyle {
    return _cellState->selectionStyle;
}

- (void)setSelectionStyle:(UITableViewCellSelectionStyle)style {
    _cellState->selectionStyle = style;
}

- (BOOL)isSelected {
    return _cellState->selected;
}

- (void)setSelected:(BOOL)selected {
    [self setSelected:selected animated:NO];
}

- (void)setSelected:(BOOL)selected animated:(BOOL)animated {
    _cellState->selected = selected;
    [self setNeedsLayout];
}

- (BOOL)isHighlighted {
    return _cellState->highlighted;
}

- (void)setHighlighted:(BOOL)highlighted {
    [self setHighlighted:highlighted animated:NO];
}

- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated {
    _cellState->highlighted = highlighted;
    [self setNeedsLayout];
}

- (UITableViewCellAccessoryType)accessoryType {
    return _cellState->accessoryType;
}

- (void)setAccessoryType:(UITableViewCellAccessoryType)type {
    _cellState->accessoryType = type;
    [self setNeedsLayout];
}

- (UITableViewCellAccessoryType)editingAccessoryType {
    return _cellState->editingAccessoryType;
}

- (void)setEditingAccessoryType:(UITableViewCellAccessoryType)type {
    _cellState->editingAccessoryType = type;
    [self setNeedsLayout];
}

- (UIView *)accessoryView {
    return _cellState->accessoryView;
}

- (void)setAccessoryView:(UIView *)view {
    [self _hostReplace:_cellState->accessoryView by:view atIndex:NSIntegerMax];
}

- (UIView *)editingAccessoryView {
    return _cellState->editingAccessoryView;
}

- (void)setEditingAccessoryView:(UIView *)view {
    [self _hostReplace:_cellState->editingAccessoryView by:view atIndex:NSIntegerMax];
}

- (NSInteger)indentationLevel {
    return _cellState->indentationLevel;
}

- (void)setIndentationLevel:(NSInteger)level {
    _cellState->indentationLevel = level;
    [self setNeedsLayout];
}

- (CGFloat)indentationWidth {
    return _cellState->indentationWidth;
}

- (void)setIndentationWidth:(CGFloat)width {
    _cellState->indentationWidth = width;
    [self setNeedsLayout];
}

- (UIEdgeInsets)separatorInset {
    return _cellState->separatorInset.value_or(UIEdgeInsetsMake(0, [self _hostSeparatorLeft], 0, 0));
}

- (void)setSeparatorInset:(UIEdgeInsets)inset {
    _cellState->separatorInset = inset;
}

- (BOOL)isEditing {
    return _cellState->editing;
}

- (void)setEditing:(BOOL)editing {
    [self setEditing:editing animated:NO];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    _cellState->editing = editing;
    [self setNeedsLayout];
}

- (UITableViewCellEditingStyle)editingStyle {
    return _cellState->editingStyle;
}

- (BOOL)shouldIndentWhileEditing {
    return _cellState->indentsWhileEditing;
}

- (void)setShouldIndentWhileEditing:(BOOL)indents {
    _cellState->indentsWhileEditing = indents;
    [self setNeedsLayout];
}

- (BOOL)showingDeleteConfirmation {
    return _cellState->open;
}

- (void)willTransitionToState:(UITableViewCellStateMask)state {
}

- (void)didTransitionToState:(UITableViewCellStateMask)state {
}

- (void)_hostChangeControl:(bool)control open:(bool)open {
    if (_cellState->showsControl == control && _cellState->open == open)
        return;
    const UITableViewCellStateMask state =
        (control ? UITableViewCellStateShowingEditControlMask : UITableViewCellStateDefaultMask) |
        (open ? UITableViewCellStateShowingDeleteConfirmationMask : UITableViewCellStateDefaultMask);
    [self willTransitionToState:state];
    _cellState->showsControl = control;
    _cellState->open = open;
    [self setNeedsLayout];
    [self didTransitionToState:state];
}

- (void)_hostShowControl:(BOOL)shown {
    [self _hostChangeControl:shown open:_cellState->open];
}

- (void)_hostOpen:(BOOL)open title:(NSString *)title {
    _cellState->deleteTitle = title;
    [self _hostChangeControl:_cellState->showsControl open:open];
}

@end
