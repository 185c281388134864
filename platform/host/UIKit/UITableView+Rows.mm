// What a table asks for before it shows a row: counts, texts and heights.
#import "UIKit/UITableView+Host.h"
#import <UIKit/UIFont.h>

#include "host/EventLog.h"
#include "host/Text.h"
#include "UIKit/TableMetrics.h"
#include "UIKit/TextMeasure.h"

#include <algorithm>
#include <cmath>

using namespace host::metrics;

namespace {

/// More than any list on a phone has; a data source that claims more made a mistake.
constexpr long kMostSections = 100'000;
constexpr long kMostRows = 1'000'000'000;
/// Rows whose heights are asked for one by one take memory each.
constexpr long kMostRowsWithHeights = 1'000'000;

long allowed(NSInteger count, long most, const char *what) {
    if (count <= most)
        return std::max(NSInteger(0), count);
    host::record(host::EventKind::log, "A table was told of " + std::to_string(count) + " " + what +
                                           " and shows " + std::to_string(most));
    return most;
}

NSString *textOrNil(id title) {
    return [title isKindOfClass:[NSString class]] ? title : nil;
}

/// A height as it can be used: none for what is not a number.
double usable(double height) {
    return std::isfinite(height) ? std::clamp(height, 0.0, kTallestRow) : 0;
}

} // namespace

@implementation UITableView (HostRows)

- (void)_hostAskForRows {
    UITableViewState &table = [self _hostTableState];
    const unsigned generation = ++table.generation;
    std::vector<host::SectionContent> sections;
    const long count = [self _hostAskForSectionCount];
    for (long section = 0; section < count; ++section)
        sections.push_back([self _hostAskForSection:section]);
    if (table.generation != generation)
        return; // the data source asked for a load of its own meanwhile
    table.sections = std::move(sections);
    table.needsRows = false;
    [self _hostAskForIndexTitles];
}

- (long)_hostAskForSectionCount {
    const UITableViewState &table = [self _hostTableState];
    if (!table.dataSource)
        return 0;
    if (!table.dataSourceHas.sections)
        return 1;
    return allowed([table.dataSource numberOfSectionsInTableView:self], kMostSections, "sections");
}

- (host::SectionContent)_hostAskForSection:(long)section {
    const UITableViewState &table = [self _hostTableState];
    host::SectionContent content;
    content.rows = allowed([table.dataSource tableView:self numberOfRowsInSection:section],
                           table.delegateHas.rowHeight ? kMostRowsWithHeights : kMostRows, "rows");
    if (table.dataSourceHas.headerTitle)
        content.headerTitle = textOrNil([table.dataSource tableView:self titleForHeaderInSection:section]);
    if (table.dataSourceHas.footerTitle)
        content.footerTitle = textOrNil([table.dataSource tableView:self titleForFooterInSection:section]);
    return content;
}

- (std::vector<long>)_hostRowCounts {
    std::vector<long> counts;
    for (const host::SectionContent &section : [self _hostTableState].sections)
        counts.push_back(section.rows);
    return counts;
}

- (void)_hostBringUpToDate {
    UITableViewState &table = [self _hostTableState];
    const bool asks = table.needsRows;
    if (asks)
        [self _hostAskForRows];
    if (asks || table.needsHeights)
        [self _hostMeasure];
}

- (void)_hostMeasure {
    UITableViewState &table = [self _hostTableState];
    const unsigned generation = table.generation;
    table.needsHeights = false;
    host::TableLayout layout;
    layout.begin(table.headerView ? table.headerView.get().frame.size.height : 0);
    for (long section = 0; section < static_cast<long>(table.sections.size()); ++section) {
        layout.add([self _hostMeasureSection:section]);
        if (table.generation != generation)
            return; // the delegate reloaded the table meanwhile; that load has measured
    }
    table.layout = std::move(layout);
    const CGFloat footer = table.footerView ? table.footerView.get().frame.size.height : 0;
    self.contentSize = CGSizeMake(self.bounds.size.width, table.layout.bottom() + footer);
    [self setNeedsLayout];
}

- (host::SectionShape)_hostMeasureSection:(long)section {
    const UITableViewState &table = [self _hostTableState];
    host::SectionShape shape;
    shape.rows = table.sections[static_cast<std::size_t>(section)].rows;
    shape.rowHeight = usable(self.rowHeight);
    if (table.delegateHas.rowHeight)
        shape.heights = [self _hostRowHeightsOf:section rows:shape.rows];
    shape.header = [self _hostHeightOf:host::Edge::header section:section];
    shape.footer = [self _hostHeightOf:host::Edge::footer section:section];
    return shape;
}

- (std::vector<double>)_hostRowHeightsOf:(long)section rows:(long)rows {
    std::vector<double> heights;
    heights.reserve(static_cast<std::size_t>(rows));
    for (long row = 0; row < rows; ++row) {
        @autoreleasepool {
            const double height = [self.delegate tableView:self
                                   heightForRowAtIndexPath:host::pathOf({section, row})];
            heights.push_back(usable(height == UITableViewAutomaticDimension ? self.rowHeight : height));
        }
    }
    return heights;
}

/// The delegate's height, the table's, or the one that the text asks for. Grouped tables take a height of 0
/// from either as "as usual", as they do on iOS 7 and 8.
- (double)_hostHeightOf:(host::Edge)edge section:(long)section {
    const UITableViewState &table = [self _hostTableState];
    const bool header = edge == host::Edge::header;
    double height = header ? self.sectionHeaderHeight : self.sectionFooterHeight;
    if (header && table.delegateHas.headerHeight)
        height = [self.delegate tableView:self heightForHeaderInSection:section];
    if (!header && table.delegateHas.footerHeight)
        height = [self.delegate tableView:self heightForFooterInSection:section];
    const bool usual =
        height == UITableViewAutomaticDimension || (height == 0 && table.style == UITableViewStyleGrouped);
    return usual ? [self _hostUsualHeightOf:edge section:section] : usable(height);
}

- (double)_hostUsualHeightOf:(host::Edge)edge section:(long)section {
    const UITableViewState &table = [self _hostTableState];
    const host::SectionContent &content = table.sections[static_cast<std::size_t>(section)];
    const bool header = edge == host::Edge::header;
    const double text = [self _hostTextHeight:header ? content.headerTitle : content.footerTitle];
    if (table.style == UITableViewStylePlain)
        return text > 0 ? text + kPlainPadding : 0;
    const double first = header && section == 0 ? kFirstGroupTop - kGroupGap : 0;
    if (text <= 0)
        return first + kGroupGap;
    if (header)
        return first + kGapToHeader + text + kHeaderToRows;
    return kRowsToFooter + text + kFooterBottom;
}

- (double)_hostTextHeight:(NSString *)text {
    const double size =
        [self _hostTableState].style == UITableViewStylePlain ? kPlainTextSize : kGroupTextSize;
    const double width = self.bounds.size.width;
    return host::textSize(host::utf16(text), {size}, width - 2 * margin(width)).height;
}

@end
