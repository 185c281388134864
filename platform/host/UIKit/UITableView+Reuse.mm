// Cells and section views that wait to be used again, a queue for each identifier.
#import "UIKit/UITableView+Host.h"

namespace {

void enqueue(host::Retained<NSMutableDictionary *> &queues, NSString *identifier, id view) {
    if (!identifier)
        return;
    if (!queues)
        queues = [NSMutableDictionary dictionary];
    NSMutableArray *queue = [queues.get() objectForKey:identifier];
    if (!queue) {
        queue = [NSMutableArray array];
        [queues.get() setObject:queue forKey:identifier];
    }
    [queue addObject:view];
}

/// The view queued last, autoreleased; nil when none is.
id dequeue(NSMutableDictionary *queues, NSString *identifier) {
    NSMutableArray *queue = identifier ? [queues objectForKey:identifier] : nil;
    if ([queue count] == 0)
        return nil;
    id view = [[[queue lastObject] retain] autorelease];
    [queue removeLastObject];
    [view prepareForReuse];
    return view;
}

void remember(host::Retained<NSMutableDictionary *> &classes, Class type, NSString *identifier) {
    if (!identifier)
        return;
    if (!classes)
        classes = [NSMutableDictionary dictionary];
    if (type)
        [classes.get() setObject:NSStringFromClass(type) forKey:identifier];
    else
        [classes.get() removeObjectForKey:identifier];
}

Class classFor(NSMutableDictionary *classes, NSString *identifier) {
    NSString *name = identifier ? [classes objectForKey:identifier] : nil;
    return name ? NSClassFromString(name) : Nil;
}

} // namespace

@implementation UITableView (Reuse)

- (void)_hostQueueCell:(UITableViewCell *)cell {
    enqueue([self _hostTableState].queuedCells, cell.reuseIdentifier, cell);
}

- (void)_hostQueueView:(UIView *)view {
    if ([view isKindOfClass:[UITableViewHeaderFooterView class]])
        enqueue([self _hostTableState].queuedViews,
                static_cast<UITableViewHeaderFooterView *>(view).reuseIdentifier, view);
}

- (id)dequeueReusableCellWithIdentifier:(NSString *)identifier {
    const UITableViewState &table = [self _hostTableState];
    if (id cell = dequeue(table.queuedCells, identifier))
        return cell;
    return [[[classFor(table.cellClasses, identifier) alloc] initWithStyle:UITableViewCellStyleDefault
                                                           reuseIdentifier:identifier] autorelease];
}

- (id)dequeueReusableCellWithIdentifier:(NSString *)identifier forIndexPath:(NSIndexPath *)indexPath {
    id cell = [self dequeueReusableCellWithIdentifier:identifier];
    if (!cell)
        [NSException raise:NSInternalInconsistencyException
                    format:@"There is no cell to reuse with identifier %@ and no class is registered for it",
                           identifier];
    return cell;
}

- (id)dequeueReusableHeaderFooterViewWithIdentifier:(NSString *)identifier {
    const UITableViewState &table = [self _hostTableState];
    if (id view = dequeue(table.queuedViews, identifier))
        return view;
    return [[[classFor(table.viewClasses, identifier) alloc] initWithReuseIdentifier:identifier] autorelease];
}

- (void)registerClass:(Class)cellClass forCellReuseIdentifier:(NSString *)identifier {
    remember([self _hostTableState].cellClasses, cellClass, identifier);
}

- (void)registerClass:(Class)aClass forHeaderFooterViewReuseIdentifier:(NSString *)identifier {
    remember([self _hostTableState].viewClasses, aClass, identifier);
}

@end
