// Tables of many rows cost what their rows on the screen cost.
#import <UIKit/UIKit.h>

#include "Benchmark.h"
#include "host/Element.h"
#include "UIKit/UIView+Host.h"

/// Rows of one height.
@interface ManyRows : NSObject <UITableViewDataSource> {
@public
    NSInteger count;
}
@end

@implementation ManyRows

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return count;
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)path {
    UITableViewCell *cell = [tableView dequeueReusableCellWithIdentifier:@"Cell"];
    if (!cell)
        cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                       reuseIdentifier:@"Cell"] autorelease];
    cell.textLabel.text = [NSString stringWithFormat:@"Person %ld", long(path.row)];
    cell.detailTextLabel.text = @"555-0100";
    return cell;
}

@end

namespace {

using bench::Work;

constexpr bench::Limits openingLimits{.bar = 1.5};
constexpr bench::Limits lookLimits{.bar = 1.2};

ManyRows *newRows(NSInteger count) {
    ManyRows *rows = [ManyRows new];
    rows->count = count;
    return rows;
}

/// A table on a 4-inch screen. The caller releases it, and its rows after it.
UITableView *newTable(ManyRows *rows) {
    UITableView *table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 568)
                                                      style:UITableViewStyleGrouped];
    table.dataSource = rows;
    [table layoutIfNeeded];
    return table;
}

Work opening(NSInteger count) {
    return [rows = newRows(count)] { [newTable(rows) release]; };
}

Work looking(NSInteger count) {
    return [table = newTable(newRows(count))] {
        std::vector<host::Element> elements;
        host::describe(table, 0, 0, elements);
        bench::use(&elements);
    };
}

Work scrolling(NSInteger count) {
    return [table = newTable(newRows(count)), offset = 0.0]() mutable {
        offset = offset > table.contentSize.height - 1200 ? 0 : offset + 568;
        table.contentOffset = CGPointMake(0, offset);
        [table layoutIfNeeded];
    };
}

const bench::Ratio open("Table: open 100,000 rows, as 100", openingLimits, [] {
    return bench::Works{opening(100'000), opening(100)};
});
const bench::Ratio look("Table: the tree of 10,000 rows, as of 20", lookLimits, [] {
    return bench::Works{looking(10'000), looking(20)};
});
const bench::Ratio scroll("Table: scroll 100,000 rows by a screen, as 100", openingLimits, [] {
    return bench::Works{scrolling(100'000), scrolling(100)};
});

} // namespace
