#include "TableFixture.h"

#import <UIKit/UILabel.h>

#include "host/Text.h"

namespace {

std::string name(const char *what, NSIndexPath *path) {
    return std::string(what) + " " + std::to_string([path section]) + "." + std::to_string([path row]);
}

} // namespace

@implementation TableModel

- (id)init {
    if ((self = [super init])) {
        editingStyle = UITableViewCellEditingStyleDelete;
        sectionForIndex = -1;
    }
    return self;
}

- (void)dealloc {
    [headerView release];
    [indexTitles release];
    [selectInstead release];
    [super dealloc];
}

- (BOOL)respondsToSelector:(SEL)selector {
    const std::string asked = sel_getName(selector);
    const bool optional = asked.find("ableView") != std::string::npos &&
                          !asked.ends_with("numberOfRowsInSection:") &&
                          !asked.ends_with("cellForRowAtIndexPath:");
    return optional ? BOOL(offers.contains(asked)) : [super respondsToSelector:selector];
}

- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView {
    return static_cast<NSInteger>(sections.size());
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    ++rowQuestions;
    return static_cast<NSInteger>(sections.at(static_cast<std::size_t>(section)).size());
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)path {
    ++cellsAsked;
    if (cell)
        return cell(tableView, path);
    UITableViewCell *row = [tableView dequeueReusableCellWithIdentifier:@"Cell"];
    if (!row) {
        ++cellsMade;
        row = [[[UITableViewCell alloc] initWithStyle:cellStyle reuseIdentifier:@"Cell"] autorelease];
    }
    const auto &texts = sections.at(static_cast<std::size_t>([path section]));
    row.textLabel.text = host::string(texts.at(static_cast<std::size_t>([path row])));
    return row;
}

- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section {
    const auto index = static_cast<std::size_t>(section);
    return index < headers.size() ? host::string(headers[index]) : nil;
}

- (NSString *)tableView:(UITableView *)tableView titleForFooterInSection:(NSInteger)section {
    const auto index = static_cast<std::size_t>(section);
    return index < footers.size() ? host::string(footers[index]) : nil;
}

- (BOOL)tableView:(UITableView *)tableView canEditRowAtIndexPath:(NSIndexPath *)path {
    return !fixedSections.contains([path section]);
}

- (void)tableView:(UITableView *)tableView
    commitEditingStyle:(UITableViewCellEditingStyle)style
     forRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name(style == UITableViewCellEditingStyleDelete ? "delete" : "insert", path));
    if (commit)
        commit(tableView, path);
}

- (NSArray *)sectionIndexTitlesForTableView:(UITableView *)tableView {
    return indexTitles;
}

- (NSInteger)tableView:(UITableView *)tableView
    sectionForSectionIndexTitle:(NSString *)title
                        atIndex:(NSInteger)index {
    calls.push_back("index " + host::utf8(title) + " " + std::to_string(index));
    return sectionForIndex;
}

- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)path {
    ++heightQuestions;
    return height ? height([path section], [path row]) : 50;
}

- (CGFloat)tableView:(UITableView *)tableView heightForHeaderInSection:(NSInteger)section {
    return headerHeight;
}

- (CGFloat)tableView:(UITableView *)tableView heightForFooterInSection:(NSInteger)section {
    return footerHeight;
}

- (UIView *)tableView:(UITableView *)tableView viewForHeaderInSection:(NSInteger)section {
    return headerView;
}

- (UIView *)tableView:(UITableView *)tableView viewForFooterInSection:(NSInteger)section {
    return nil;
}

- (NSInteger)tableView:(UITableView *)tableView indentationLevelForRowAtIndexPath:(NSIndexPath *)path {
    return [path row];
}

- (void)tableView:(UITableView *)tableView
      willDisplayCell:(UITableViewCell *)row
    forRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("willDisplay", path));
}

- (void)tableView:(UITableView *)tableView
    didEndDisplayingCell:(UITableViewCell *)row
       forRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("didEndDisplaying", path));
}

- (void)tableView:(UITableView *)tableView
    willDisplayHeaderView:(UIView *)view
               forSection:(NSInteger)section {
    calls.push_back("willDisplayHeader " + std::to_string(section));
}

- (void)tableView:(UITableView *)tableView
    willDisplayFooterView:(UIView *)view
               forSection:(NSInteger)section {
    calls.push_back("willDisplayFooter " + std::to_string(section));
}

- (BOOL)tableView:(UITableView *)tableView shouldHighlightRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("shouldHighlight", path));
    return !refusesHighlight;
}

- (void)tableView:(UITableView *)tableView didHighlightRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("didHighlight", path));
}

- (void)tableView:(UITableView *)tableView didUnhighlightRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("didUnhighlight", path));
}

- (NSIndexPath *)tableView:(UITableView *)tableView willSelectRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("willSelect", path));
    return refusesSelection ? nil : (selectInstead ?: path);
}

- (NSIndexPath *)tableView:(UITableView *)tableView willDeselectRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("willDeselect", path));
    return refusesDeselection ? nil : path;
}

- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("didSelect", path));
}

- (void)tableView:(UITableView *)tableView didDeselectRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("didDeselect", path));
}

- (void)tableView:(UITableView *)tableView accessoryButtonTappedForRowWithIndexPath:(NSIndexPath *)path {
    calls.push_back(name("accessory", path));
}

- (UITableViewCellEditingStyle)tableView:(UITableView *)tableView
           editingStyleForRowAtIndexPath:(NSIndexPath *)path {
    return editingStyle;
}

- (NSString *)tableView:(UITableView *)tableView
    titleForDeleteConfirmationButtonForRowAtIndexPath:(NSIndexPath *)path {
    return deleteTitle;
}

- (BOOL)tableView:(UITableView *)tableView shouldIndentWhileEditingRowAtIndexPath:(NSIndexPath *)path {
    return NO;
}

- (void)tableView:(UITableView *)tableView willBeginEditingRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("willBeginEditing", path));
}

- (void)tableView:(UITableView *)tableView didEndEditingRowAtIndexPath:(NSIndexPath *)path {
    calls.push_back(name("didEndEditing", path));
}

- (void)scrollViewDidScroll:(UIScrollView *)scrollView {
    calls.push_back("didScroll");
}

@end

TableTest::TableTest() {
    model = [TableModel new];
}

TableTest::~TableTest() {
    [table release];
    [model release];
}

UITableView *TableTest::show(UITableViewStyle style, double width, double height) {
    if (model->sections.size() > 1)
        offer("numberOfSectionsInTableView:");
    table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, width, height) style:style];
    table.dataSource = model;
    table.delegate = model;
    [table layoutIfNeeded];
    return table;
}

void TableTest::fill(long count) {
    std::vector<std::string> rows;
    for (long row = 0; row < count; ++row)
        rows.push_back(std::to_string(row));
    model->sections = {rows};
}

host::Element TableTest::tree() {
    std::vector<host::Element> elements;
    host::describe(table, 0, 0, elements);
    return elements.at(0);
}

const host::Element *TableTest::cell(const host::Element &tree, long section, long row) {
    return tree.find([&](const host::Element &element) {
        return element.type == "Cell" && element.amount("section") == double(section) &&
               element.amount("row") == double(row);
    });
}

std::vector<std::string> TableTest::shownRows() {
    std::vector<std::string> rows;
    const host::Element shown = tree();
    for (const host::Element *row : shown.all("Cell"))
        rows.push_back(std::to_string(long(row->amount("section"))) + "." +
                       std::to_string(long(row->amount("row"))) + " " + row->label);
    return rows;
}

host::Outcome TableTest::perform(long section, long row, host::GestureKind kind, const std::string &part) {
    UITableViewCell *cell = [table cellForRowAtIndexPath:path(section, row)];
    if (!cell)
        return host::Outcome::notThere;
    host::Gesture gesture{.kind = kind, .number = cell._hostNumber, .part = part};
    return [cell _hostPerform:gesture];
}

void TableTest::scrollTo(double offset) {
    const host::Gesture gesture{.kind = host::GestureKind::scroll, .amount = offset};
    ASSERT_EQ([table _hostPerform:gesture], host::Outcome::done);
    [table layoutIfNeeded];
}

NSIndexPath *path(long section, long row) {
    return [NSIndexPath indexPathForRow:row inSection:section];
}

NSArray *paths(std::initializer_list<std::pair<long, long>> places) {
    NSMutableArray *result = [NSMutableArray array];
    for (const auto &[section, row] : places)
        [result addObject:path(section, row)];
    return result;
}

std::string reasonOf(NSString *exceptionName, const std::function<void()> &act) {
    @try {
        act();
    } @catch (NSException *exception) {
        EXPECT_EQ(host::utf8([exception name]), host::utf8(exceptionName));
        return host::utf8([exception reason]);
    }
    return {};
}
