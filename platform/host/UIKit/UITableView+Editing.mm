// Editing mode, the minus and plus of rows, swipe to delete. After "Inserting and Deleting Rows and Sections"
// of Apple's Table View Programming Guide and the UITableViewDelegate reference: a swipe sets `editing` too,
// but shows no other controls than the Delete button of its row.
#import "UIKit/UITableView+Host.h"

#include "host/SystemText.h"
#include "host/Text.h"

using host::Outcome;
using host::RowPlace;

@implementation UITableView (Editing)

- (BOOL)isEditing {
    return [self _hostTableState].editing;
}

- (void)setEditing:(BOOL)editing {
    [self setEditing:editing animated:NO];
}

- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    UITableViewState &table = [self _hostTableState];
    [self _hostClose];
    if (table.editing == bool(editing))
        return;
    table.editing = editing;
    for (const auto &[place, cell] : std::map(table.cells))
        [self _hostConfigureEditingOf:cell at:place];
}

- (BOOL)_hostCanEdit:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    if (!table.dataSourceHas.canEdit)
        return YES;
    return [table.dataSource tableView:self canEditRowAtIndexPath:host::pathOf(place)];
}

- (UITableViewCellEditingStyle)_hostEditingStyleOf:(RowPlace)place {
    if (![self _hostCanEdit:place])
        return UITableViewCellEditingStyleNone;
    if (![self _hostTableState].delegateHas.editingStyle)
        return UITableViewCellEditingStyleDelete;
    return [self.delegate tableView:self editingStyleForRowAtIndexPath:host::pathOf(place)];
}

- (void)_hostConfigureEditingOf:(UITableViewCell *)cell at:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    UITableViewCellState &state = [cell _hostCell];
    const bool canEdit = [self _hostCanEdit:place];
    state.editingStyle = [self _hostEditingStyleOf:place];
    state.swipeable = table.dataSourceHas.commit && state.editingStyle == UITableViewCellEditingStyleDelete;
    if (table.delegateHas.shouldIndent)
        cell.shouldIndentWhileEditing = [self.delegate tableView:self
                          shouldIndentWhileEditingRowAtIndexPath:host::pathOf(place)];
    const bool open = table.open == place;
    const bool editing = table.editing && canEdit && (!table.swiped || open);
    if (bool(cell.editing) != editing)
        [cell setEditing:editing animated:NO];
    [cell _hostShowControl:editing && !table.swiped && state.editingStyle != UITableViewCellEditingStyleNone];
    [cell _hostOpen:open title:open ? [self _hostDeleteTitleOf:place] : nil];
}

- (NSString *)_hostDeleteTitleOf:(RowPlace)place {
    NSString *title = nil;
    if ([self _hostTableState].delegateHas.deleteTitle)
        title = [self.delegate tableView:self
            titleForDeleteConfirmationButtonForRowAtIndexPath:host::pathOf(place)];
    return title ?: host::string(host::systemText("Delete"));
}

- (BOOL)_hostCanSwipe:(RowPlace)place {
    return [self _hostTableState].dataSourceHas.commit &&
           [self _hostEditingStyleOf:place] == UITableViewCellEditingStyleDelete;
}

- (void)_hostOpen:(RowPlace)place {
    [self _hostTableState].open = place;
    if (UITableViewCell *cell = [self _hostCellAt:place])
        [self _hostConfigureEditingOf:cell at:place];
}

- (void)_hostClose {
    UITableViewState &table = [self _hostTableState];
    if (!table.open)
        return;
    const RowPlace place = *std::exchange(table.open, std::nullopt);
    const bool swiped = std::exchange(table.swiped, false);
    if (swiped)
        table.editing = false;
    if (UITableViewCell *cell = [self _hostCellAt:place])
        [self _hostConfigureEditingOf:cell at:place];
    if (swiped && table.delegateHas.didEndEditing)
        [self.delegate tableView:self didEndEditingRowAtIndexPath:host::pathOf(place)];
}

/// A touch anywhere while a row is open only closes it.
- (Outcome)_hostSwipe:(RowPlace)place {
    UITableViewState &table = [self _hostTableState];
    if (table.open) {
        [self _hostClose];
        return Outcome::done;
    }
    if (table.editing || ![self _hostCanSwipe:place])
        return Outcome::disabled;
    if (table.delegateHas.willBeginEditing)
        [self.delegate tableView:self willBeginEditingRowAtIndexPath:host::pathOf(place)];
    table.editing = table.swiped = true;
    [self _hostOpen:place];
    return Outcome::done;
}

/// The minus opens and closes its row; the plus inserts at once.
- (Outcome)_hostTapMinus:(RowPlace)place {
    UITableViewState &table = [self _hostTableState];
    if (table.open) {
        [self _hostClose];
        return Outcome::done;
    }
    const UITableViewCellEditingStyle style = [[self _hostCellAt:place] editingStyle];
    if (style == UITableViewCellEditingStyleDelete)
        [self _hostOpen:place];
    else if (style == UITableViewCellEditingStyleInsert && table.dataSourceHas.commit)
        [table.dataSource tableView:self commitEditingStyle:style forRowAtIndexPath:host::pathOf(place)];
    return Outcome::done;
}

/// The row closes after the data source was told, unless it is gone by then; a swiped one ends editing.
- (Outcome)_hostTapDelete:(RowPlace)place {
    UITableViewState &table = [self _hostTableState];
    if (table.dataSourceHas.commit)
        [table.dataSource tableView:self
                 commitEditingStyle:UITableViewCellEditingStyleDelete
                  forRowAtIndexPath:host::pathOf(place)];
    [self _hostClose];
    return Outcome::done;
}

@end
