// A field to search with (UISearchBar class reference).
#pragma once

#import <UIKit/UITextInputTraits.h>
#import <UIKit/UIView.h>

@class UISearchBar;

@protocol UISearchBarDelegate <NSObject>
@optional
- (BOOL)searchBarShouldBeginEditing:(UISearchBar *)searchBar;
- (void)searchBarTextDidBeginEditing:(UISearchBar *)searchBar;
- (BOOL)searchBarShouldEndEditing:(UISearchBar *)searchBar;
- (void)searchBarTextDidEndEditing:(UISearchBar *)searchBar;
- (void)searchBar:(UISearchBar *)searchBar textDidChange:(NSString *)searchText;
- (void)searchBarSearchButtonClicked:(UISearchBar *)searchBar;
- (void)searchBarCancelButtonClicked:(UISearchBar *)searchBar;
@end

/// Of the traits: capitalisation, correction and keyboard.
@interface UISearchBar : UIView <UITextInputTraits> {
@private
    struct UISearchBarState *_searchBar;
}

@property (nonatomic, copy) NSString *text;
@property (nonatomic, copy) NSString *placeholder;
@property (nonatomic) BOOL showsCancelButton;
@property (nonatomic, assign) id<UISearchBarDelegate> delegate;

- (void)setShowsCancelButton:(BOOL)shows animated:(BOOL)animated;

@end
