// The page of a multiple choice: one row a value of the row that opened it.
#pragma once

#import <Preferences/PSListController.h>

@interface PSListItemsController : PSListController {
    NSInteger _rowToSelect;
    BOOL _deferItemSelection;
    BOOL _restrictionList;
    PSSpecifier *_lastSelectedSpecifier;
}

/// The rows, made from the opener's `values` and titles.
- (NSArray *)itemsFromParent;
/// The same after asking the opener's data sources again.
- (NSArray *)itemsFromDataSource;

/// Finds the row of the current value; that of none when no choice has it.
- (void)setRowToSelect;

/// Moves the checkmark to the row and hands its value to the opener's setter (or keeps it until the page
/// leaves, with `deferItemSelection`).
- (void)listItemSelected:(NSIndexPath *)path;

@end
