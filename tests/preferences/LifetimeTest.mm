// How many cells a long page makes, and that pages, cells, rows and questions go when nobody needs them.
#include "preferences/PreferencesTest.h"

#include <algorithm>

namespace {

struct Count {
    int made = 0;
    int alive = 0;
};

Count pages, cells, rows;                    // NOLINT: the runtime makes the objects that count themselves
std::vector<const void *> rowsOfSingleCells; // NOLINT: the same

} // namespace

/// Counts itself.
@interface CountedPage : PSListController
@end

@implementation CountedPage

- (instancetype)init {
    self = [super init];
    pages.made++;
    pages.alive++;
    return self;
}

- (void)dealloc {
    pages.alive--;
    [super dealloc];
}

@end

/// Counts itself and takes whatever row it is given.
@interface CountedCell : PSTableCell
@end

@implementation CountedCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    cells.made++;
    cells.alive++;
    return self;
}

- (void)dealloc {
    cells.alive--;
    [super dealloc];
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    [super refreshCellContentsWithSpecifier:specifier];
    [[self textLabel] setText:[[specifier name] uppercaseString]];
}

@end

/// Looks at its row when it is made and never again.
@interface SingleRowCell : PSTableCell
@end

@implementation SingleRowCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    rowsOfSingleCells.push_back(specifier);
    return self;
}

@end

/// Counts itself.
@interface CountedRow : PSConfirmationSpecifier
@end

@implementation CountedRow

- (instancetype)init {
    self = [super init];
    rows.made++;
    rows.alive++;
    return self;
}

- (void)dealloc {
    rows.alive--;
    [super dealloc];
}

@end

namespace {

class Lifetime : public preferences::Test {
protected:
    PSListController *root = preferences::open("Weathercock");

    UINavigationController *stack() { return [root navigationController]; }
    CountedPage *page() { return static_cast<CountedPage *>([stack() topViewController]); }

    static PSSpecifier *row(NSString *name, int type, NSString *cellClass, Class rowClass) {
        PSSpecifier *made = [rowClass preferenceSpecifierNamed:name
                                                        target:nil
                                                           set:NULL
                                                           get:NULL
                                                        detail:Nil
                                                          cell:type
                                                          edit:Nil];
        [made setProperty:cellClass forKey:@"cellClass"];
        return made;
    }

    /// Opens a page with `count` rows of a kind, all of this class of cells.
    void open(int count, int type, NSString *cellClass, Class rowClass = [PSSpecifier class]) {
        @autoreleasepool {
            CountedPage *made = [[[CountedPage alloc] init] autorelease];
            NSMutableArray *specifiers = [NSMutableArray array];
            for (int i = 0; i < count; i++)
                [specifiers
                    addObject:row([NSString stringWithFormat:@"Row %d", i], type, cellClass, rowClass)];
            for (PSSpecifier *each in specifiers)
                [each setTarget:made];
            [made setSpecifiers:specifiers];
            [made setRootController:[root rootController]];
            [root showController:made animate:NO];
            host::waitUntilIdle();
            (void)host::screen();
        }
    }

    /// Back to the page before, and everything that waits to be released is.
    void leave() {
        @autoreleasepool {
            person.back();
        }
    }
};

TEST_F(Lifetime, TenThousandRowsMakeFewCells) {
    open(10000, PSTitleValueCell, @"CountedCell");
    EXPECT_GT(cells.made, 5);
    EXPECT_LT(cells.made, 60);
}

TEST_F(Lifetime, AtTheEndOfTenThousandRowsThereAreNoMore) {
    open(10000, PSTitleValueCell, @"CountedCell");
    person.scrollTo(1e9);
    EXPECT_TRUE(person.sees("ROW 9999"));
    EXPECT_LT(cells.made, 60);
}

TEST_F(Lifetime, ScrollingThroughAllOfThemMakesNoMore) {
    open(10000, PSTitleValueCell, @"CountedCell");
    for (double offset = 0; offset < 10000 * 44; offset += 400)
        person.scrollTo(offset);
    EXPECT_LT(cells.made, 60);
    EXPECT_EQ(cells.made, cells.alive);
}

TEST_F(Lifetime, ACellThatKnowsOneRowIsNotGivenToAnother) {
    open(100, PSTitleValueCell, @"SingleRowCell");
    const std::size_t atFirst = rowsOfSingleCells.size();
    EXPECT_GT(atFirst, 5u);
    EXPECT_EQ(person.rows().size(), 100u);
    EXPECT_GT(rowsOfSingleCells.size(), atFirst);
    (void)person.rows();
    std::sort(rowsOfSingleCells.begin(), rowsOfSingleCells.end());
    const auto twice = std::adjacent_find(rowsOfSingleCells.begin(), rowsOfSingleCells.end());
    EXPECT_EQ(twice, rowsOfSingleCells.end());
    EXPECT_EQ(rowsOfSingleCells.size(), 100u);
}

TEST_F(Lifetime, APageTakesItsCellsAndRowsWithIt) {
    open(50, PSTitleValueCell, @"CountedCell", [CountedRow class]);
    EXPECT_EQ(pages.alive, 1);
    EXPECT_EQ(rows.alive, 50);
    EXPECT_GT(cells.alive, 0);
    leave();
    EXPECT_EQ(pages.alive, 0);
    EXPECT_EQ(rows.alive, 0);
    EXPECT_EQ(cells.alive, 0);
}

TEST_F(Lifetime, LoadingAPageAnewReleasesTheOldRows) {
    open(50, PSTitleValueCell, @"CountedCell", [CountedRow class]);
    @autoreleasepool {
        [page() setSpecifiers:[NSArray array]];
        host::waitUntilIdle();
    }
    EXPECT_EQ(rows.made, 50);
    leave();
    EXPECT_EQ(rows.alive, 0);
    EXPECT_EQ(cells.alive, 0);
}

TEST_F(Lifetime, AnsweredQuestionsAreForgotten) {
    open(3, PSButtonCell, @"CountedCell", [CountedRow class]);
    @autoreleasepool {
        person.tap("Row 1");
        person.answer("Cancel");
        person.tap("Row 2");
        person.answer("OK");
    }
    leave();
    EXPECT_EQ(pages.alive, 0);
    EXPECT_EQ(rows.alive, 0);
}

TEST_F(Lifetime, APageThatGoesUnderItsQuestionIsReleased) {
    open(3, PSButtonCell, @"CountedCell", [CountedRow class]);
    @autoreleasepool {
        person.tap("Row 1");
        [stack() popViewControllerAnimated:NO];
        host::waitUntilIdle();
    }
    EXPECT_EQ(pages.alive, 0);
    EXPECT_EQ(rows.alive, 0);
    EXPECT_TRUE(host::cancelQuestion());
}

TEST_F(Lifetime, AFieldThatIsTypedIntoGoesWithItsPage) {
    open(3, PSEditTextCell, nil, [CountedRow class]);
    @autoreleasepool {
        person.type("Row 1", "text");
    }
    leave();
    EXPECT_EQ(pages.alive, 0);
    EXPECT_EQ(rows.alive, 0);
    EXPECT_EQ(person.focusedField().type, "");
}

TEST_F(Lifetime, APageOfChoicesLeavesNothingBehind) {
    open(1, PSLinkListCell, nil, [CountedRow class]);
    @autoreleasepool {
        PSSpecifier *choice = [page() specifierAtIndex:0];
        [choice setDetailControllerClass:[PSListItemsController class]];
        [choice setValues:@[ @"a", @"b" ] titles:@[ @"A", @"B" ]];
        person.tap("Row 0");
        person.tap("B");
    }
    leave();
    leave();
    EXPECT_EQ(pages.alive, 0);
    EXPECT_EQ(rows.alive, 0);
}

TEST_F(Lifetime, APaneLeavesNothingBehind) {
    open(1, PSLinkCell, nil, [CountedRow class]);
    @autoreleasepool {
        [[page() specifierAtIndex:0] setDetailControllerClass:[PSDetailController class]];
        [page() reload];
        person.tap("Row 0");
    }
    leave();
    leave();
    EXPECT_EQ(pages.alive, 0);
    EXPECT_EQ(rows.alive, 0);
}

} // namespace
