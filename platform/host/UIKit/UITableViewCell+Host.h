// What a table and the parts of a cell know of a cell.
#pragma once

#import "UIKit/UIView+Host.h"
#import <UIKit/UIImageView.h>
#import <UIKit/UILabel.h>
#import <UIKit/UITableView.h>

#include "host/Retained.h"

#include <optional>
#include <string>

struct UITableViewCellState {
    UITableViewCellStyle style = UITableViewCellStyleDefault;
    host::Retained<NSString *> identifier;
    host::Retained<UILabel *> textLabel, detailLabel;
    host::Retained<UIImageView *> imageView;
    host::Retained<UIView *> contentView, backgroundView, selectedBackgroundView;
    host::Retained<UIView *> accessoryView, editingAccessoryView;
    UITableViewCellSelectionStyle selectionStyle = UITableViewCellSelectionStyleDefault;
    UITableViewCellAccessoryType accessoryType = UITableViewCellAccessoryNone;
    UITableViewCellAccessoryType editingAccessoryType = UITableViewCellAccessoryNone;
    bool selected = false, highlighted = false;
    NSInteger indentationLevel = 0;
    CGFloat indentationWidth = 0;
    std::optional<UIEdgeInsets> separatorInset;

    bool editing = false;
    bool indentsWhileEditing = true;
    UITableViewCellEditingStyle editingStyle = UITableViewCellEditingStyleNone;
    bool showsControl = false; ///< the minus or plus of editing mode
    bool open = false;         ///< the Delete button shows
    bool swipeable = false;
    host::Retained<NSString *> deleteTitle;
};

@interface UITableViewCell (Host)
- (UITableViewCellState &)_hostCell;
/// The table that shows this cell, or nil.
- (UITableView *)_hostTable;
/// Shows or hides the minus or plus, and tells the cell of the change.
- (void)_hostShowControl:(BOOL)shown;
/// Shows or hides the Delete button with this title.
- (void)_hostOpen:(BOOL)open title:(NSString *)title;
@end

@interface UITableViewCell (HostLayout)
/// The view and the type that stand at the right edge now.
- (UIView *)_hostAccessoryView;
- (UITableViewCellAccessoryType)_hostAccessoryType;
- (CGFloat)_hostDeleteWidth;
/// How far the content is moved to make room for edit controls; negative to the left.
- (CGFloat)_hostShift;
/// Where the separator below the cell begins.
- (CGFloat)_hostSeparatorLeft;
@end

/// A label of a cell or a header: asks the view around the content for a new layout when its text changes,
/// and names its role in the tree of elements.
@interface UITableViewLabel : UILabel {
@public
    const char *_hostRole;
}
@end

/// The image of a cell.
@interface UITableViewCellImageView : UIImageView
@end
