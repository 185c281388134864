// Where rows are and which rows are where.
#import "UIKit/UITableView+Host.h"

#include <algorithm>

@implementation UITableView (Places)

- (NSInteger)numberOfSections {
    [self _hostBringUpToDate];
    return [self _hostTableState].layout.sections();
}

- (NSInteger)numberOfRowsInSection:(NSInteger)section {
    [self _hostBringUpToDate];
    return [self _hostTableState].layout.rows(section);
}

- (CGRect)_hostRectOf:(host::Span)span {
    return CGRectMake(0, span.top, self.bounds.size.width, span.height());
}

- (BOOL)_hostHasSection:(NSInteger)section {
    return section >= 0 && section < [self numberOfSections];
}

- (CGRect)rectForSection:(NSInteger)section {
    return [self _hostHasSection:section] ? [self _hostRectOf:[self _hostTableState].layout.section(section)]
                                          : CGRectZero;
}

- (CGRect)rectForHeaderInSection:(NSInteger)section {
    return [self _hostHasSection:section] ? [self _hostRectOf:[self _hostTableState].layout.header(section)]
                                          : CGRectZero;
}

- (CGRect)rectForFooterInSection:(NSInteger)section {
    return [self _hostHasSection:section] ? [self _hostRectOf:[self _hostTableState].layout.footer(section)]
                                          : CGRectZero;
}

- (CGRect)rectForRowAtIndexPath:(NSIndexPath *)indexPath {
    [self _hostBringUpToDate];
    const host::TableLayout &layout = [self _hostTableState].layout;
    const host::RowPlace place = host::placeOf(indexPath);
    return layout.has(place) ? [self _hostRectOf:layout.row(place)] : CGRectZero;
}

- (NSIndexPath *)indexPathForRowAtPoint:(CGPoint)point {
    [self _hostBringUpToDate];
    if (point.x < 0 || point.x >= self.bounds.size.width)
        return nil;
    const auto place = [self _hostTableState].layout.rowAt(point.y);
    return place ? host::pathOf(*place) : nil;
}

- (NSIndexPath *)indexPathForCell:(UITableViewCell *)cell {
    const auto place = [self _hostPlaceOf:cell];
    return place ? host::pathOf(*place) : nil;
}

- (NSArray *)indexPathsForRowsInRect:(CGRect)rect {
    [self _hostBringUpToDate];
    NSMutableArray *paths = [NSMutableArray array];
    for (const host::RowPlace place :
         [self _hostTableState].layout.rowsIn({rect.origin.y, CGRectGetMaxY(rect)}))
        [paths addObject:host::pathOf(place)];
    return paths;
}

- (UITableViewCell *)cellForRowAtIndexPath:(NSIndexPath *)indexPath {
    return [self _hostCellAt:host::placeOf(indexPath)];
}

- (NSArray *)visibleCells {
    [self layoutIfNeeded];
    NSMutableArray *cells = [NSMutableArray array];
    for (const auto &[place, cell] : [self _hostTableState].cells)
        [cells addObject:cell];
    return cells;
}

- (NSArray *)indexPathsForVisibleRows {
    [self layoutIfNeeded];
    NSMutableArray *paths = [NSMutableArray array];
    for (const auto &[place, cell] : [self _hostTableState].cells)
        [paths addObject:host::pathOf(place)];
    return paths;
}

- (UITableViewHeaderFooterView *)_hostText:(const std::map<long, host::Retained<UIView *>> &)views
                                        of:(NSInteger)section {
    const auto found = views.find(section);
    UIView *view = found == views.end() ? nil : found->second.get();
    return [view isKindOfClass:[UITableViewHeaderFooterView class]]
               ? static_cast<UITableViewHeaderFooterView *>(view)
               : nil;
}

- (UITableViewHeaderFooterView *)headerViewForSection:(NSInteger)section {
    return [self _hostText:[self _hostTableState].headers of:section];
}

- (UITableViewHeaderFooterView *)footerViewForSection:(NSInteger)section {
    return [self _hostText:[self _hostTableState].footers of:section];
}

- (void)scrollToRowAtIndexPath:(NSIndexPath *)indexPath
              atScrollPosition:(UITableViewScrollPosition)scrollPosition
                      animated:(BOOL)animated {
    [self _hostBringUpToDate];
    const host::TableLayout &layout = [self _hostTableState].layout;
    const host::RowPlace place = host::placeOf(indexPath);
    if (!layout.has(place))
        [NSException raise:NSRangeException
                    format:@"There is no row %ld in section %ld to scroll to", place.row, place.section];
    const CGRect row = [self _hostRectOf:layout.row(place)];
    const UIEdgeInsets inset = self.contentInset;
    const CGFloat room = self.bounds.size.height - inset.top - inset.bottom;
    CGFloat top = row.origin.y;
    switch (scrollPosition) {
    case UITableViewScrollPositionNone: return [self scrollRectToVisible:row animated:animated];
    case UITableViewScrollPositionTop: break;
    case UITableViewScrollPositionMiddle: top -= (room - row.size.height) / 2; break;
    case UITableViewScrollPositionBottom: top -= room - row.size.height; break;
    }
    const CGFloat lowest = std::max(CGFloat(0), self.contentSize.height - room);
    const CGFloat offset = std::clamp(top, CGFloat(0), lowest) - inset.top;
    [self setContentOffset:CGPointMake(self.contentOffset.x, offset) animated:animated];
}

@end
