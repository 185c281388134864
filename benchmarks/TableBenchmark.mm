// Tables of many rows. The wishes: a table of 100,000 rows of one height opens within 1.5 times the time of
// one of 100; the tree of a screen of 10,000 rows takes at most 1.2 times as long as that of 20.
#import <UIKit/UIKit.h>

#include "UIKit/UIView+Host.h"

#include <benchmark/benchmark.h>

/// Rows of one height, or of heights that are asked for one by one.
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

@interface ManyHeights : ManyRows <UITableViewDelegate>
@end

@implementation ManyHeights

- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)path {
    return 50;
}

@end

namespace {

/// A table on a 4-inch screen; the caller releases it and, after it, its rows.
UITableView *newTable(ManyRows *rows) {
    UITableView *table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 568)
                                                      style:UITableViewStyleGrouped];
    table.dataSource = rows;
    if ([rows isKindOfClass:[ManyHeights class]])
        table.delegate = static_cast<ManyHeights *>(rows);
    [table layoutIfNeeded];
    return table;
}

void openTable(benchmark::State &state, Class kind) {
    ManyRows *rows = [kind new];
    rows->count = state.range(0);
    for (auto step : state) {
        @autoreleasepool {
            [newTable(rows) release];
        }
    }
    [rows release];
}

void openTableOfOneHeight(benchmark::State &state) {
    openTable(state, [ManyRows class]);
}

void openTableOfManyHeights(benchmark::State &state) {
    openTable(state, [ManyHeights class]);
}

void treeOfScreen(benchmark::State &state) {
    ManyRows *rows = [ManyRows new];
    rows->count = state.range(0);
    UITableView *table = newTable(rows);
    for (auto step : state) {
        @autoreleasepool {
            std::vector<host::Element> elements;
            host::describe(table, 0, 0, elements);
            benchmark::DoNotOptimize(elements);
        }
    }
    [table release];
    [rows release];
}

void scrollByAScreen(benchmark::State &state) {
    ManyRows *rows = [ManyRows new];
    rows->count = state.range(0);
    UITableView *table = newTable(rows);
    double offset = 0;
    for (auto step : state) {
        @autoreleasepool {
            offset = offset > table.contentSize.height - 1200 ? 0 : offset + 568;
            table.contentOffset = CGPointMake(0, offset);
            [table layoutIfNeeded];
        }
    }
    [table release];
    [rows release];
}

BENCHMARK(openTableOfOneHeight)->Arg(100)->Arg(100'000);
BENCHMARK(openTableOfManyHeights)->Arg(100)->Arg(10'000);
BENCHMARK(treeOfScreen)->Arg(20)->Arg(10'000);
BENCHMARK(scrollByAScreen)->Arg(10'000);

} // namespace
