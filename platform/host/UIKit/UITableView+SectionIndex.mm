// The column of letters at the right edge. After "Populating an Indexed List" of Apple's Table View
// Programming Guide.
#import "UIKit/UITableView+Host.h"

#include "host/Text.h"
#include "UIKit/TableMetrics.h"

#include <algorithm>
#include <charconv>
#include <numeric>

/// The letters themselves. Each is a part of this view: "index:7" is the eighth.
@interface HostSectionIndexView : UIView
@end

namespace {

constexpr std::string_view kIndexPart = "index:";

std::optional<NSInteger> indexOfPart(const std::string &part) {
    if (!part.starts_with(kIndexPart))
        return std::nullopt;
    NSInteger index = 0;
    const char *end = part.data() + part.size();
    const auto read = std::from_chars(part.data() + kIndexPart.size(), end, index);
    return read.ec == std::errc() && read.ptr == end ? std::optional(index) : std::nullopt;
}

} // namespace

@implementation HostSectionIndexView

- (UITableView *)_hostTable {
    return static_cast<UITableView *>(self.superview);
}

- (BOOL)_hostDescribe:(host::Element &)element {
    NSArray *titles = [[self _hostTable] _hostIndexTitles];
    element.type = "Other";
    const host::Rect &rect = element.rect;
    const double height = rect.height / static_cast<double>([titles count]);
    long ordinal = 0;
    for (NSString *title in titles) {
        host::Element letter{.type = "Button", .label = host::utf8(title), .number = element.number};
        letter.part = std::string(kIndexPart) + std::to_string(ordinal);
        letter.rect = {rect.x, rect.y + height * static_cast<double>(ordinal++), rect.width, height};
        letter.attributes["role"] = std::string("index");
        element.children.push_back(std::move(letter));
    }
    return YES;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    const auto index = indexOfPart(gesture.part);
    if (gesture.kind != host::GestureKind::tap)
        return [super _hostPerform:gesture];
    return index ? [[self _hostTable] _hostTapIndex:*index] : host::Outcome::notThere;
}

@end

@implementation UITableView (SectionIndex)

- (NSInteger)sectionIndexMinimumDisplayRowCount {
    return [self _hostTableState].indexMinimumRows;
}

- (void)setSectionIndexMinimumDisplayRowCount:(NSInteger)count {
    [self _hostTableState].indexMinimumRows = count;
    [self setNeedsLayout];
}

- (void)reloadSectionIndexTitles {
    [self _hostAskForIndexTitles];
    [self setNeedsLayout];
}

- (void)_hostAskForIndexTitles {
    UITableViewState &table = [self _hostTableState];
    table.indexTitles =
        table.dataSourceHas.indexTitles ? [table.dataSource sectionIndexTitlesForTableView:self] : nil;
}

- (NSArray *)_hostIndexTitles {
    const UITableViewState &table = [self _hostTableState];
    const std::vector<long> rows = [self _hostRowCounts];
    const bool enough = std::accumulate(rows.begin(), rows.end(), 0L) >= table.indexMinimumRows;
    return enough && [table.indexTitles count] > 0 ? table.indexTitles.get() : nil;
}

- (void)_hostPlaceIndex {
    UITableViewState &table = [self _hostTableState];
    const bool shown = [self _hostIndexTitles] != nil;
    if (shown && !table.indexView) {
        table.indexView = [[[HostSectionIndexView alloc] initWithFrame:CGRectZero] autorelease];
        [self addSubview:table.indexView];
    }
    const CGRect bounds = UIEdgeInsetsInsetRect(self.bounds, self.contentInset);
    const CGFloat width = host::metrics::kIndexWidth;
    table.indexView.get().hidden = !shown;
    table.indexView.get().frame =
        CGRectMake(CGRectGetMaxX(bounds) - width, bounds.origin.y, width, bounds.size.height);
}

/// Brings the section of a letter to the top; the search sign the head of the table.
- (host::Outcome)_hostTapIndex:(NSInteger)index {
    const UITableViewState &table = [self _hostTableState];
    NSArray *titles = [self _hostIndexTitles];
    if (index < 0 || index >= static_cast<NSInteger>([titles count]))
        return host::Outcome::notThere;
    NSString *title = [titles objectAtIndex:static_cast<NSUInteger>(index)];
    NSInteger section = index;
    if (table.dataSourceHas.sectionForTitle)
        section = [table.dataSource tableView:self sectionForSectionIndexTitle:title atIndex:index];
    const bool toTop = section < 0 || [title isEqualToString:UITableViewIndexSearch];
    if (!toTop && section >= table.layout.sections())
        return host::Outcome::done;
    const CGFloat room = self.bounds.size.height - self.contentInset.top - self.contentInset.bottom;
    const CGFloat lowest = std::max(CGFloat(0), self.contentSize.height - room);
    const CGFloat top = toTop ? 0 : std::min(CGFloat(table.layout.section(section).top), lowest);
    self.contentOffset = CGPointMake(self.contentOffset.x, top - self.contentInset.top);
    return host::Outcome::done;
}

@end
