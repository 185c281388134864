// UITableViewHeaderFooterView: the text above or below a section. After Apple's UITableViewHeaderFooterView
// Class Reference (iOS 8).
#pragma once

#import <UIKit/UIView.h>

@class UILabel;

@interface UITableViewHeaderFooterView : UIView {
@private
    struct UITableViewHeaderFooterViewState *_headerFooterState;
}

- (id)initWithReuseIdentifier:(NSString *)reuseIdentifier;

@property (nonatomic, readonly, copy) NSString *reuseIdentifier;
@property (nonatomic, readonly, retain) UILabel *textLabel;
/// Shown below the text in headers of grouped tables.
@property (nonatomic, readonly, retain) UILabel *detailTextLabel;
@property (nonatomic, readonly, retain) UIView *contentView;
@property (nonatomic, retain) UIView *backgroundView;

- (void)prepareForReuse;

@end
