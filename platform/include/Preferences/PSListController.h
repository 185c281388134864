// A page of Settings that is a list of rows in groups.
#pragma once

#import <Preferences/PSViewController.h>

@interface PSListController : PSViewController <UIActionSheetDelegate, UIAlertViewDelegate> {
    UITableView *_table;
    /// Owned by the page. A subclass that overrides `specifiers` sets this array and returns it.
    NSArray *_specifiers;
    NSArray *_groups;
    NSArray *_groupedSpecifiers;
    NSString *_specifierID;
    NSMutableArray *_bundleControllers;
    id _confirmation;
    id _keyboardRoom;
    NSString *_loadFailure;
}

- (instancetype)init;
/// Calls `init`.
- (instancetype)initForContentSize:(CGSize)size;

/// The bundle of the page's class: where its property lists, string tables and images are.
- (NSBundle *)bundle;

/// The page's rows and group headers. The base loads the property list named like the `id` (without it, the
/// unlocalized `label`) of the row that opened the page, and keeps what it loaded.
- (NSArray *)specifiers;
- (void)setSpecifiers:(NSArray *)specifiers;

/// A new, autoreleased array of the specifiers of NAME.plist in the page's bundle; empty when there is no
/// such page. Sets the page's title and `specifierID` from the property list.
- (NSArray *)loadSpecifiersFromPlistName:(NSString *)name target:(id)target;

/// The `id` of the page's property list.
- (NSString *)specifierID;
- (void)setSpecifierID:(NSString *)identifier;

- (UITableView *)table;
/// Reloads the table. Each row on screen reads its value again.
- (void)reload;
/// Loads the specifiers anew, then reloads the table.
- (void)reloadSpecifiers;

/// Ends editing in the page's text rows.
- (void)loseFocus;

@end

/// Groups begin at each group header; rows in front of the first one form a first group without header.
/// Indexes count rows and group headers alike. What is not on the page is nil, NSNotFound or NO.
@interface PSListController (Rows)

/// Reads one row's title and value again.
- (void)reloadSpecifier:(PSSpecifier *)specifier;
- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)reloadSpecifierAtIndex:(int)index;
- (void)reloadSpecifierAtIndex:(int)index animated:(BOOL)animated;
- (void)reloadSpecifierID:(NSString *)identifier;
- (void)reloadSpecifierID:(NSString *)identifier animated:(BOOL)animated;

- (PSSpecifier *)specifierForID:(NSString *)identifier;
- (PSSpecifier *)specifierAtIndex:(int)index;
- (PSSpecifier *)specifierAtIndexPath:(NSIndexPath *)path;
- (NSIndexPath *)indexPathForSpecifier:(PSSpecifier *)specifier;
- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier;
- (NSInteger)indexOfSpecifierID:(NSString *)identifier;
- (BOOL)containsSpecifier:(PSSpecifier *)specifier;

/// A group header has row -1.
- (BOOL)getGroup:(int *)group row:(int *)row ofSpecifier:(PSSpecifier *)specifier;
- (BOOL)getGroup:(int *)group row:(int *)row ofSpecifierID:(NSString *)identifier;
- (BOOL)getGroup:(int *)group row:(int *)row ofSpecifierAtIndex:(int)index;
- (int)numberOfGroups;
- (int)rowsForGroup:(int)group;
/// Index in `specifiers` of a row.
- (int)indexForRow:(int)row inGroup:(int)group;
/// The header and the rows of a group.
- (NSArray *)specifiersInGroup:(int)group;

@end

/// Changes of the page's rows, shown at once. An index beyond the end means the end.
@interface PSListController (Changes)

- (void)addSpecifier:(PSSpecifier *)specifier;
- (void)addSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)addSpecifiersFromArray:(NSArray *)specifiers;
- (void)addSpecifiersFromArray:(NSArray *)specifiers animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(int)index;
- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(int)index animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)after;
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)after animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifierID:(NSString *)identifier;
- (void)insertSpecifier:(PSSpecifier *)specifier
       afterSpecifierID:(NSString *)identifier
               animated:(BOOL)animated;
- (void)insertSpecifier:(PSSpecifier *)specifier atEndOfGroup:(int)group;
- (void)insertSpecifier:(PSSpecifier *)specifier atEndOfGroup:(int)group animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(int)index;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(int)index animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers afterSpecifier:(PSSpecifier *)after;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers
                    afterSpecifier:(PSSpecifier *)after
                          animated:(BOOL)animated;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers afterSpecifierID:(NSString *)identifier;
- (void)insertContiguousSpecifiers:(NSArray *)specifiers
                  afterSpecifierID:(NSString *)identifier
                          animated:(BOOL)animated;
- (void)removeSpecifier:(PSSpecifier *)specifier;
- (void)removeSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated;
- (void)removeSpecifierAtIndex:(int)index;
- (void)removeSpecifierAtIndex:(int)index animated:(BOOL)animated;
- (void)removeSpecifierID:(NSString *)identifier;
- (void)removeSpecifierID:(NSString *)identifier animated:(BOOL)animated;
- (void)removeLastSpecifier;
- (void)removeLastSpecifierAnimated:(BOOL)animated;
- (void)removeContiguousSpecifiers:(NSArray *)specifiers;
- (void)removeContiguousSpecifiers:(NSArray *)specifiers animated:(BOOL)animated;
- (void)replaceContiguousSpecifiers:(NSArray *)oldSpecifiers withSpecifiers:(NSArray *)newSpecifiers;
- (void)replaceContiguousSpecifiers:(NSArray *)oldSpecifiers
                     withSpecifiers:(NSArray *)newSpecifiers
                           animated:(BOOL)animated;

@end

@interface PSListController (Actions)

/// The page that a row opens, ready to be shown; nil when the row opens none.
- (UIViewController *)controllerForSpecifier:(PSSpecifier *)specifier;
- (void)showController:(UIViewController *)controller;
- (void)showController:(UIViewController *)controller animate:(BOOL)animate;

/// What a tap on the row does, apart from opening a page. The answer: whether there was something to do.
- (BOOL)performActionForSpecifier:(PSSpecifier *)specifier;
- (BOOL)performButtonActionForSpecifier:(PSSpecifier *)specifier;
- (BOOL)performConfirmationActionForSpecifier:(PSSpecifier *)specifier;
- (BOOL)performConfirmationCancelActionForSpecifier:(PSSpecifier *)specifier;
- (BOOL)performLoadActionForSpecifier:(PSSpecifier *)specifier;

/// Loads the bundle at the row's property "lazy-bundle" and takes the class of its page from it.
- (void)lazyLoadBundle:(PSSpecifier *)specifier;

/// Asks the question of a PSConfirmationSpecifier.
- (void)showConfirmationViewForSpecifier:(PSSpecifier *)specifier;
- (void)confirmationViewAcceptedForSpecifier:(PSSpecifier *)specifier;
- (void)confirmationViewCancelledForSpecifier:(PSSpecifier *)specifier;

@end

@interface PSListController (Table) <UITableViewDataSource, UITableViewDelegate>
@end
