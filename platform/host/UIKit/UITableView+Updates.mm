// Inserting, deleting, reloading and moving rows and sections. After "Batch Insertion, Deletion, and
// Reloading of Rows and Sections" of Apple's Table View Programming Guide. Changes are shown at once; the
// animation is the page's.
#import "UIKit/UITableView+Host.h"

using host::RowPlace;

namespace {

template<typename Value>
std::map<long, Value> moved(const std::map<long, Value> &views, const host::TableUpdate &update) {
    std::map<long, Value> result;
    for (const auto &[section, view] : views) {
        if (const auto now = update.newSection(section))
            result[*now] = view;
    }
    return result;
}

} // namespace

@implementation UITableView (Updates)

- (void)beginUpdates {
    UITableViewState &table = [self _hostTableState];
    if (table.updateDepth++ == 0)
        table.update = std::make_unique<host::TableUpdate>();
}

- (void)endUpdates {
    UITableViewState &table = [self _hostTableState];
    if (table.updateDepth == 0 || --table.updateDepth > 0)
        return;
    const std::unique_ptr<host::TableUpdate> update = std::move(table.update);
    [self _hostApply:*update];
}

- (void)_hostApply:(host::TableUpdate &)update {
    UITableViewState &table = [self _hostTableState];
    if (table.needsRows)
        return [self setNeedsLayout]; // never loaded: the first load sees the rows as they are now
    const std::vector<long> before = [self _hostRowCounts];
    [self _hostAskForRows];
    const std::string wrong = update.resolve(before, [self _hostRowCounts]);
    if (!wrong.empty()) {
        [self reloadData];
        [NSException raise:NSInternalInconsistencyException format:@"%s", wrong.c_str()];
    }
    [self _hostMeasure];
    [self _hostMoveCells:update];
    [self _hostMoveOpenRow:update];
    [self _hostMoveTexts:update];
    [self setNeedsLayout];
    [self layoutIfNeeded];
}

/// Cells go with their rows. The cell of a deleted row is queued; for a reloaded row a new cell is asked for
/// first and the old one queued after that, so that the old cell never comes back for its own row.
- (void)_hostMoveCells:(const host::TableUpdate &)update {
    UITableViewState &table = [self _hostTableState];
    const auto cells = std::exchange(table.cells, {});
    const auto selected = std::exchange(table.selected, {});
    for (const RowPlace place : selected) {
        const auto now = update.newPlace(place);
        if (now && !update.reloads(place))
            table.selected.insert(*now);
    }
    std::vector<std::pair<RowPlace, host::Retained<UITableViewCell *>>> reloaded;
    for (const auto &[place, cell] : cells) {
        const auto now = update.newPlace(place);
        if (!now)
            [self _hostTakeAwayCell:cell at:place];
        else if (update.reloads(place))
            reloaded.emplace_back(*now, cell);
        else
            table.cells[*now] = cell;
    }
    for (const auto &[place, cell] : reloaded)
        [self _hostReplaceCell:cell at:place];
}

- (void)_hostReplaceCell:(UITableViewCell *)old at:(RowPlace)place {
    const host::Span row = [self _hostTableState].layout.row(place);
    const CGRect bounds = self.bounds;
    if (row.meets({bounds.origin.y, CGRectGetMaxY(bounds)}))
        [self _hostShowCell:[self _hostNewCellAt:place] at:place];
    if ([self _hostCellAt:place] != old)
        [self _hostTakeAwayCell:old at:place];
}

- (void)_hostMoveOpenRow:(const host::TableUpdate &)update {
    UITableViewState &table = [self _hostTableState];
    if (!table.open)
        return;
    const auto now = update.newPlace(*table.open);
    if (now && !update.reloads(*table.open))
        table.open = now;
    else
        [self _hostClose];
}

- (void)_hostMoveTexts:(const host::TableUpdate &)update {
    UITableViewState &table = [self _hostTableState];
    for (auto *views : {&table.headers, &table.footers}) {
        auto kept = moved(*views, update);
        for (const auto &[section, view] : *views) {
            if (!update.newSection(section))
                [view removeFromSuperview];
        }
        *views = std::move(kept);
    }
}

/// Each change outside beginUpdates and endUpdates is a batch of its own.
- (void)_hostUpdate:(void (^)(host::TableUpdate &update))change {
    [self beginUpdates];
    change(*[self _hostTableState].update);
    [self endUpdates];
}

- (void)_hostForEach:(NSIndexSet *)sections do:(void (^)(host::TableUpdate &update, long section))change {
    [self _hostUpdate:^(host::TableUpdate &update) {
        for (NSUInteger section = [sections firstIndex]; section != NSNotFound;
             section = [sections indexGreaterThanIndex:section])
            change(update, static_cast<long>(section));
    }];
}

- (void)_hostForEachRow:(NSArray *)paths do:(void (^)(host::TableUpdate &update, RowPlace place))change {
    [self _hostUpdate:^(host::TableUpdate &update) {
        for (NSIndexPath *path in paths)
            change(update, host::placeOf(path));
    }];
}

- (void)insertSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation {
    [self _hostForEach:sections
                    do:^(host::TableUpdate &update, long section) {
                        update.insertSection(section);
                    }];
}

- (void)deleteSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation {
    [self _hostForEach:sections
                    do:^(host::TableUpdate &update, long section) {
                        update.deleteSection(section);
                    }];
}

- (void)reloadSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation {
    [self _hostForEach:sections
                    do:^(host::TableUpdate &update, long section) {
                        update.reloadSection(section);
                    }];
}

- (void)insertRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation {
    [self _hostForEachRow:indexPaths
                       do:^(host::TableUpdate &update, RowPlace place) {
                           update.insertRow(place);
                       }];
}

- (void)deleteRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation {
    [self _hostForEachRow:indexPaths
                       do:^(host::TableUpdate &update, RowPlace place) {
                           update.deleteRow(place);
                       }];
}

- (void)reloadRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation {
    [self _hostForEachRow:indexPaths
                       do:^(host::TableUpdate &update, RowPlace place) {
                           update.reloadRow(place);
                       }];
}

- (void)moveRowAtIndexPath:(NSIndexPath *)indexPath toIndexPath:(NSIndexPath *)newIndexPath {
    [self _hostUpdate:^(host::TableUpdate &update) {
        update.moveRow(host::placeOf(indexPath), host::placeOf(newIndexPath));
    }];
}

@end
