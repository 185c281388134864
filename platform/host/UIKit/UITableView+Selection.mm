// Choosing rows. After "Managing Selections" of Apple's Table View Programming Guide.
#import "UIKit/UITableView+Host.h"

using host::Outcome;
using host::RowPlace;

@implementation UITableView (Selection)

- (BOOL)allowsSelection {
    return [self _hostTableState].allowsSelection;
}

- (void)setAllowsSelection:(BOOL)allows {
    [self _hostTableState].allowsSelection = allows;
}

- (BOOL)allowsSelectionDuringEditing {
    return [self _hostTableState].allowsSelectionDuringEditing;
}

- (void)setAllowsSelectionDuringEditing:(BOOL)allows {
    [self _hostTableState].allowsSelectionDuringEditing = allows;
}

- (BOOL)allowsMultipleSelection {
    return [self _hostTableState].allowsMultipleSelection;
}

- (void)setAllowsMultipleSelection:(BOOL)allows {
    [self _hostTableState].allowsMultipleSelection = allows;
}

- (BOOL)allowsMultipleSelectionDuringEditing {
    return [self _hostTableState].allowsMultipleSelectionDuringEditing;
}

- (void)setAllowsMultipleSelectionDuringEditing:(BOOL)allows {
    [self _hostTableState].allowsMultipleSelectionDuringEditing = allows;
}

- (NSIndexPath *)indexPathForSelectedRow {
    const auto &selected = [self _hostTableState].selected;
    return selected.empty() ? nil : host::pathOf(*selected.begin());
}

- (NSArray *)indexPathsForSelectedRows {
    NSMutableArray *paths = [NSMutableArray array];
    for (const RowPlace place : [self _hostTableState].selected)
        [paths addObject:host::pathOf(place)];
    return [paths count] ? paths : nil;
}

- (void)_hostMark:(RowPlace)place selected:(BOOL)selected animated:(BOOL)animated {
    UITableViewState &table = [self _hostTableState];
    if (selected)
        table.selected.insert(place);
    else
        table.selected.erase(place);
    [[self _hostCellAt:place] setSelected:selected animated:animated];
}

- (void)selectRowAtIndexPath:(NSIndexPath *)indexPath
                    animated:(BOOL)animated
              scrollPosition:(UITableViewScrollPosition)scrollPosition {
    [self _hostBringUpToDate];
    UITableViewState &table = [self _hostTableState];
    const RowPlace place = host::placeOf(indexPath);
    if (![self _hostMultiple] || !indexPath) {
        for (const RowPlace other : std::set(table.selected))
            [self _hostMark:other selected:NO animated:animated];
    }
    if (!table.layout.has(place))
        return;
    [self _hostMark:place selected:YES animated:animated];
    if (scrollPosition != UITableViewScrollPositionNone)
        [self scrollToRowAtIndexPath:indexPath atScrollPosition:scrollPosition animated:animated];
}

- (void)deselectRowAtIndexPath:(NSIndexPath *)indexPath animated:(BOOL)animated {
    [self _hostMark:host::placeOf(indexPath) selected:NO animated:animated];
}

- (BOOL)_hostMultiple {
    const UITableViewState &table = [self _hostTableState];
    return table.editing ? table.allowsMultipleSelectionDuringEditing : table.allowsMultipleSelection;
}

- (BOOL)_hostSelectionAllowed {
    const UITableViewState &table = [self _hostTableState];
    if (table.editing)
        return table.allowsSelectionDuringEditing || table.allowsMultipleSelectionDuringEditing;
    return table.allowsSelection || table.allowsMultipleSelection;
}

- (Outcome)_hostTapRow:(RowPlace)place {
    UITableViewState &table = [self _hostTableState];
    if (table.open) {
        [self _hostClose];
        return Outcome::done;
    }
    UITableViewCell *cell = [self _hostCellAt:place];
    if (![self _hostSelectionAllowed] || !cell.userInteractionEnabled || ![self _hostMayHighlight:place])
        return Outcome::disabled;
    [self _hostFlash:cell at:place];
    if ([self _hostMultiple] && table.selected.contains(place))
        [self _hostDeselectByTap:place];
    else
        [self _hostSelectByTap:place];
    return Outcome::done;
}

- (BOOL)_hostMayHighlight:(RowPlace)place {
    if (![self _hostTableState].delegateHas.shouldHighlight)
        return YES;
    return [self.delegate tableView:self shouldHighlightRowAtIndexPath:host::pathOf(place)];
}

/// The finger goes down and up again.
- (void)_hostFlash:(UITableViewCell *)cell at:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    [cell setHighlighted:YES animated:NO];
    if (table.delegateHas.didHighlight)
        [self.delegate tableView:self didHighlightRowAtIndexPath:host::pathOf(place)];
    [cell setHighlighted:NO animated:NO];
    if (table.delegateHas.didUnhighlight)
        [self.delegate tableView:self didUnhighlightRowAtIndexPath:host::pathOf(place)];
}

/// The row that is chosen in place of the tapped one; none when the delegate does not want it.
- (std::optional<RowPlace>)_hostRowToSelect:(RowPlace)place {
    UITableViewState &table = [self _hostTableState];
    if (!table.delegateHas.willSelect)
        return place;
    NSIndexPath *path = [self.delegate tableView:self willSelectRowAtIndexPath:host::pathOf(place)];
    const RowPlace wanted = host::placeOf(path);
    return table.layout.has(wanted) ? std::optional(wanted) : std::nullopt;
}

- (void)_hostSelectByTap:(RowPlace)tapped {
    UITableViewState &table = [self _hostTableState];
    const auto place = [self _hostRowToSelect:tapped];
    if (!place)
        return;
    if (![self _hostMultiple]) {
        for (const RowPlace other : std::set(table.selected)) {
            if (other != *place)
                [self _hostDeselectByTap:other];
        }
    }
    [self _hostMark:*place selected:YES animated:NO];
    if (table.delegateHas.didSelect)
        [self.delegate tableView:self didSelectRowAtIndexPath:host::pathOf(*place)];
    [self _hostTellSelectionChanged];
}

- (void)_hostDeselectByTap:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    NSIndexPath *path = host::pathOf(place);
    if (table.delegateHas.willDeselect)
        path = [self.delegate tableView:self willDeselectRowAtIndexPath:path];
    if (!path)
        return;
    [self _hostMark:host::placeOf(path) selected:NO animated:NO];
    if (table.delegateHas.didDeselect)
        [self.delegate tableView:self didDeselectRowAtIndexPath:path];
    [self _hostTellSelectionChanged];
}

- (void)_hostTellSelectionChanged {
    [[NSNotificationCenter defaultCenter] postNotificationName:UITableViewSelectionDidChangeNotification
                                                        object:self];
}

- (Outcome)_hostTapAccessory:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    if (table.open) {
        [self _hostClose];
        return Outcome::done;
    }
    if (!table.delegateHas.accessoryTapped)
        return [self _hostTapRow:place];
    [self.delegate tableView:self accessoryButtonTappedForRowWithIndexPath:host::pathOf(place)];
    return Outcome::done;
}

@end
