// UITableViewCell: one row of a table. After Apple's UITableViewCell Class Reference (iOS 8).
#pragma once

#import <UIKit/UIGeometry.h>
#import <UIKit/UIView.h>

@class UIImageView, UILabel;

typedef NS_ENUM(NSInteger, UITableViewCellStyle) {
    UITableViewCellStyleDefault,
    UITableViewCellStyleValue1,
    UITableViewCellStyleValue2,
    UITableViewCellStyleSubtitle
};

typedef NS_ENUM(NSInteger, UITableViewCellSeparatorStyle) {
    UITableViewCellSeparatorStyleNone,
    UITableViewCellSeparatorStyleSingleLine,
    UITableViewCellSeparatorStyleSingleLineEtched
};

typedef NS_ENUM(NSInteger, UITableViewCellSelectionStyle) {
    UITableViewCellSelectionStyleNone,
    UITableViewCellSelectionStyleBlue,
    UITableViewCellSelectionStyleGray,
    UITableViewCellSelectionStyleDefault
};

typedef NS_ENUM(NSInteger, UITableViewCellEditingStyle) {
    UITableViewCellEditingStyleNone,
    UITableViewCellEditingStyleDelete,
    UITableViewCellEditingStyleInsert
};

typedef NS_ENUM(NSInteger, UITableViewCellAccessoryType) {
    UITableViewCellAccessoryNone,
    UITableViewCellAccessoryDisclosureIndicator,
    UITableViewCellAccessoryDetailDisclosureButton,
    UITableViewCellAccessoryCheckmark,
    UITableViewCellAccessoryDetailButton
};

typedef NS_OPTIONS(NSUInteger, UITableViewCellStateMask) {
    UITableViewCellStateDefaultMask = 0,
    UITableViewCellStateShowingEditControlMask = 1 << 0,
    UITableViewCellStateShowingDeleteConfirmationMask = 1 << 1
};

@interface UITableViewCell : UIView {
@private
    struct UITableViewCellState *_cellState;
}

/// The designated initialiser. `reuseIdentifier` nil makes a cell that is never used again.
- (id)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)reuseIdentifier;

@property (nonatomic, readonly, copy) NSString *reuseIdentifier;
@property (nonatomic, readonly, retain) UILabel *textLabel;
/// nil in the default style.
@property (nonatomic, readonly, retain) UILabel *detailTextLabel;
/// Takes no room while its image is nil.
@property (nonatomic, readonly, retain) UIImageView *imageView;
@property (nonatomic, readonly, retain) UIView *contentView;
@property (nonatomic, retain) UIView *backgroundView;
@property (nonatomic, retain) UIView *selectedBackgroundView;

@property (nonatomic) UITableViewCellSelectionStyle selectionStyle;
@property (nonatomic, getter=isSelected) BOOL selected;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
- (void)setSelected:(BOOL)selected animated:(BOOL)animated;
- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated;

@property (nonatomic) UITableViewCellAccessoryType accessoryType;
/// Takes the place of `accessoryType`.
@property (nonatomic, retain) UIView *accessoryView;
/// The same two while the table is edited.
@property (nonatomic) UITableViewCellAccessoryType editingAccessoryType;
@property (nonatomic, retain) UIView *editingAccessoryView;

@property (nonatomic) NSInteger indentationLevel;
/// Points a level; 10 unless set.
@property (nonatomic) CGFloat indentationWidth;
@property (nonatomic) UIEdgeInsets separatorInset;

@property (nonatomic, getter=isEditing) BOOL editing;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;
@property (nonatomic, readonly) UITableViewCellEditingStyle editingStyle;
@property (nonatomic) BOOL shouldIndentWhileEditing;
@property (nonatomic, readonly) BOOL showingDeleteConfirmation;
- (void)willTransitionToState:(UITableViewCellStateMask)state;
- (void)didTransitionToState:(UITableViewCellStateMask)state;

/// Sent by the table before a cell is handed out again. Nothing of the cell's content is reset by it.
- (void)prepareForReuse;

@end
