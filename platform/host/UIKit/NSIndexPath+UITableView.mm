// Rows and sections as index paths of two indexes. After Apple's NSIndexPath UIKit Additions Reference.
#import "UIKit/NSIndexPath+Host.h"

@implementation NSIndexPath (UITableView)

+ (NSIndexPath *)indexPathForRow:(NSInteger)row inSection:(NSInteger)section {
    NSUInteger indexes[] = {static_cast<NSUInteger>(section), static_cast<NSUInteger>(row)};
    return [self indexPathWithIndexes:indexes length:2];
}

- (NSInteger)section {
    return static_cast<NSInteger>([self indexAtPosition:0]);
}

- (NSInteger)row {
    return static_cast<NSInteger>([self indexAtPosition:1]);
}

@end

namespace host {

RowPlace placeOf(NSIndexPath *path) {
    return path ? RowPlace{[path section], [path row]} : RowPlace{-1, -1};
}

NSIndexPath *pathOf(RowPlace place) {
    return [NSIndexPath indexPathForRow:place.row inSection:place.section];
}

} // namespace host
