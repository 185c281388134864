// The row of a specifier.
#pragma once

#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>

@interface PSTableCell : UITableViewCell {
    id _value;
    id _cellTarget; // not retained
    PSSpecifier *_specifier;
    int _type;
    BOOL _checked;
    BOOL _cellEnabled;
    NSInteger _alignment;
}

/// The code of a `cell` name; -1 for a name that is none.
+ (int)cellTypeFromString:(NSString *)name;
+ (NSString *)stringFromCellType:(int)type;

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier;

@property (nonatomic, retain) PSSpecifier *specifier;
@property (nonatomic, assign) int type;

/// The page that shows the row; it stores what a person changes.
@property (nonatomic, assign) id cellTarget;

/// Shows the specifier's title, icon, state and value anew.
- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier;

- (void)setTitle:(NSString *)title;
- (NSString *)title;

/// What the specifier's getter gave. The base shows its text at the right; a control shows it itself.
- (void)setValue:(id)value;
- (id)value;

- (void)setIcon:(UIImage *)icon;
- (UIImage *)icon;

- (void)setAlignment:(NSInteger)alignment;

- (void)setChecked:(BOOL)checked;
- (BOOL)isChecked;

/// A disabled row is gray and ignores taps.
- (void)setCellEnabled:(BOOL)enabled;
- (BOOL)cellEnabled;

/// Whether a tap on the row (not on a control in it) does anything.
- (BOOL)canBeSelected;

- (UILabel *)titleLabel;
- (UILabel *)valueLabel;
- (UIImageView *)iconImageView;

@end

/// What a specifier asks of its row.
@interface PSTableCell (Kinds)

/// The class that a specifier's row is made of: `cellClass`, or the framework's own.
+ (Class)cellClassForSpecifier:(PSSpecifier *)specifier;
+ (NSString *)reuseIdentifierForSpecifier:(PSSpecifier *)specifier;
/// The style for a specifier's row; a subclass may want another one.
+ (UITableViewCellStyle)cellStyleForSpecifier:(PSSpecifier *)specifier;

/// The height that the row wants in a table of that width; 0: the table's row height.
+ (CGFloat)heightForSpecifier:(PSSpecifier *)specifier width:(CGFloat)width;

@end
