// Several lines of text to read or type (UITextView class reference).
#pragma once

#import <UIKit/NSText.h>
#import <UIKit/UIScrollView.h>
#import <UIKit/UITextInputTraits.h>

@class UIFont, UITextView;

@protocol UITextViewDelegate <NSObject, UIScrollViewDelegate>
@optional
- (BOOL)textViewShouldBeginEditing:(UITextView *)textView;
- (void)textViewDidBeginEditing:(UITextView *)textView;
- (BOOL)textViewShouldEndEditing:(UITextView *)textView;
- (void)textViewDidEndEditing:(UITextView *)textView;
- (BOOL)textView:(UITextView *)textView
    shouldChangeTextInRange:(NSRange)range
            replacementText:(NSString *)text;
- (void)textViewDidChange:(UITextView *)textView;
@end

extern NSString *const UITextViewTextDidBeginEditingNotification;
extern NSString *const UITextViewTextDidChangeNotification;
extern NSString *const UITextViewTextDidEndEditingNotification;

@interface UITextView : UIScrollView <UITextInputTraits> {
@private
    struct UITextViewState *_textView;
}

/// Never nil.
@property (nonatomic, copy) NSString *text;
@property (nonatomic, retain) UIFont *font;
@property (nonatomic, retain) UIColor *textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic, getter=isEditable) BOOL editable;
@property (nonatomic, getter=isSelectable) BOOL selectable;
@property (nonatomic, assign) id<UITextViewDelegate> delegate;

@end
