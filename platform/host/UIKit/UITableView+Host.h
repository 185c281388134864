// What the parts of a table know of one another.
#pragma once

#import "UIKit/NSIndexPath+Host.h"
#import "UIKit/UITableViewCell+Host.h"
#import <UIKit/UITableView.h>

#include "host/Retained.h"
#include "UIKit/TableLayout.h"
#include "UIKit/TableUpdate.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace host {

/// Which optional methods a data source and a delegate have; asked once, when they are set.
struct TableDataSourceMethods {
    bool sections = false, headerTitle = false, footerTitle = false;
    bool canEdit = false, commit = false;
    bool indexTitles = false, sectionForTitle = false;
};

struct TableDelegateMethods {
    bool rowHeight = false, headerHeight = false, footerHeight = false;
    bool headerView = false, footerView = false, indentation = false;
    bool willDisplay = false, didEndDisplaying = false, willDisplayHeader = false, willDisplayFooter = false;
    bool shouldHighlight = false, didHighlight = false, didUnhighlight = false;
    bool willSelect = false, willDeselect = false, didSelect = false, didDeselect = false;
    bool accessoryTapped = false;
    bool editingStyle = false, deleteTitle = false, shouldIndent = false;
    bool willBeginEditing = false, didEndEditing = false;
};

/// The texts of a section and its number of rows, as last asked for.
struct SectionContent {
    long rows = 0;
    Retained<NSString *> headerTitle, footerTitle;
};

enum class Edge { header, footer };

} // namespace host

struct UITableViewState {
    UITableViewStyle style = UITableViewStylePlain;
    id<UITableViewDataSource> dataSource = nil; // not retained
    host::TableDataSourceMethods dataSourceHas;
    host::TableDelegateMethods delegateHas;

    double rowHeight = 0, headerHeight = 0, footerHeight = 0; ///< 0: the table's own
    std::optional<UIEdgeInsets> separatorInset;
    UITableViewCellSeparatorStyle separatorStyle = UITableViewCellSeparatorStyleSingleLine;
    host::Retained<UIView *> backgroundView, headerView, footerView;

    bool needsRows = true;     ///< the data source has not been asked for its counts yet
    bool needsHeights = false; ///< the width changed, and with it the heights of wrapped texts
    bool showsRows = false;    ///< cells are being asked for
    unsigned generation = 0;   ///< counts the loads, so that a load inside a load is noticed
    std::vector<host::SectionContent> sections;
    host::TableLayout layout;

    std::map<host::RowPlace, host::Retained<UITableViewCell *>> cells; ///< on screen
    std::map<long, host::Retained<UIView *>> headers, footers;         ///< on screen
    host::Retained<NSMutableDictionary *> queuedCells, queuedViews;    ///< identifier to an array of them
    host::Retained<NSMutableDictionary *> cellClasses, viewClasses;    ///< identifier to class name

    std::unique_ptr<host::TableUpdate> update; ///< the changes since beginUpdates
    int updateDepth = 0;

    bool editing = false;
    bool swiped = false;                ///< editing only because one row was swiped
    std::optional<host::RowPlace> open; ///< the row that shows its Delete button

    bool allowsSelection = true, allowsMultipleSelection = false;
    bool allowsSelectionDuringEditing = false, allowsMultipleSelectionDuringEditing = false;
    std::set<host::RowPlace> selected;

    long indexMinimumRows = 0;
    host::Retained<NSArray *> indexTitles;
    host::Retained<UIView *> indexView;
};

@interface UITableView (HostTableState)
- (UITableViewState &)_hostTableState;
@end

@interface UITableView (HostRows)
/// Asks the data source for sections, rows and texts.
- (void)_hostAskForRows;
/// Asks for heights and lays the table out anew; the rows stay.
- (void)_hostMeasure;
/// Does either, if something changed since it was last done.
- (void)_hostBringUpToDate;
- (std::vector<long>)_hostRowCounts;
@end

@interface UITableView (HostCells)
/// Shows the rows, headers and footers that the bounds meet, and no others.
- (void)_hostShowRows;
/// Asks the data source for a cell, checks and configures it. Raises when it gives none.
- (UITableViewCell *)_hostNewCellAt:(host::RowPlace)place;
- (void)_hostShowCell:(UITableViewCell *)cell at:(host::RowPlace)place;
- (void)_hostTakeAwayCell:(UITableViewCell *)cell at:(host::RowPlace)place;
/// Takes everything away that shows a row or a text.
- (void)_hostTakeAwayAll;
- (void)_hostPlaceCell:(UITableViewCell *)cell at:(host::RowPlace)place;
- (UITableViewCell *)_hostCellAt:(host::RowPlace)place;
/// The place of a cell on screen.
- (std::optional<host::RowPlace>)_hostPlaceOf:(UITableViewCell *)cell;
@end

@interface UITableView (HostReuse)
- (void)_hostQueueCell:(UITableViewCell *)cell;
- (void)_hostQueueView:(UIView *)view;
@end

@interface UITableView (HostEditing)
- (BOOL)_hostCanEdit:(host::RowPlace)place;
- (UITableViewCellEditingStyle)_hostEditingStyleOf:(host::RowPlace)place;
/// Brings a cell's edit controls in line with the table.
- (void)_hostConfigureEditingOf:(UITableViewCell *)cell at:(host::RowPlace)place;
- (BOOL)_hostCanSwipe:(host::RowPlace)place;
- (NSString *)_hostDeleteTitleOf:(host::RowPlace)place;
/// Closes the row that shows its Delete button; a swiped one takes the table out of editing with it.
- (void)_hostClose;
- (host::Outcome)_hostSwipe:(host::RowPlace)place;
- (host::Outcome)_hostTapMinus:(host::RowPlace)place;
- (host::Outcome)_hostTapDelete:(host::RowPlace)place;
@end

@interface UITableView (HostSelection)
- (BOOL)_hostSelectionAllowed;
- (host::Outcome)_hostTapRow:(host::RowPlace)place;
- (host::Outcome)_hostTapAccessory:(host::RowPlace)place;
@end

@interface UITableView (HostIndex)
- (void)_hostAskForIndexTitles;
/// The titles to show; nil when there are none or too few rows.
- (NSArray *)_hostIndexTitles;
/// Puts the letters over the right edge of what is on screen, or takes them away.
- (void)_hostPlaceIndex;
- (host::Outcome)_hostTapIndex:(NSInteger)index;
@end
