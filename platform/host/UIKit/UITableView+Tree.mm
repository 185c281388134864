// A table as an element: what lies inside its bounds, from top to bottom.
#import "UIKit/UITableView+Host.h"
#import "UIKit/UIViewController+Host.h"

#include "host/Text.h"
#include "UIKit/TableMetrics.h"

#include <charconv>

using host::Element;

namespace {

/// The page that a view belongs to, or nil.
UIViewController *pageOf(UIResponder *responder) {
    while (responder && ![responder isKindOfClass:[UIViewController class]])
        responder = responder.nextResponder;
    return static_cast<UIViewController *>(responder);
}

} // namespace

@implementation UITableView (HostTree)

- (BOOL)_hostDescribe:(Element &)element {
    [self layoutIfNeeded];
    const UITableViewState &table = [self _hostTableState];
    element.type = "Table";
    auto &attributes = element.attributes;
    attributes["page"] = double([pageOf(self) _hostNumber]);
    attributes["style"] = std::string(table.style == UITableViewStyleGrouped ? "grouped" : "plain");
    attributes["contentHeight"] = double(self.contentSize.height);
    attributes["offset"] = double(self.contentOffset.y);
    attributes["top"] = double(self.contentInset.top);
    attributes["bottom"] = double(self.contentInset.bottom);
    attributes["editing"] = table.editing;
    return YES;
}

/// Headers, rows and footers in the order of the table, and only those inside the bounds.
- (NSArray *)_hostVisibleSubviews {
    const UITableViewState &table = [self _hostTableState];
    const CGRect bounds = self.bounds;
    NSMutableArray *views = [NSMutableArray array];
    const auto add = [&](UIView *view) {
        const CGRect frame = view.frame;
        if (view && !view.hidden &&
            host::Span{frame.origin.y, CGRectGetMaxY(frame)}.meets({bounds.origin.y, CGRectGetMaxY(bounds)}))
            [views addObject:view];
    };
    const auto addText = [&](const std::map<long, host::Retained<UIView *>> &texts, long section) {
        if (const auto found = texts.find(section); found != texts.end())
            add(found->second);
    };
    add(table.headerView);
    const auto sections = table.layout.sectionsIn({bounds.origin.y, CGRectGetMaxY(bounds)});
    auto cell = table.cells.begin();
    for (long section = sections.first; section < sections.second; ++section) {
        addText(table.headers, section);
        for (; cell != table.cells.end() && cell->first.section <= section; ++cell)
            add(cell->second);
        addText(table.footers, section);
    }
    add(table.footerView);
    if (table.indexView && !table.indexView.get().hidden)
        [views addObject:table.indexView];
    return views;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    const UITableViewState &table = [self _hostTableState];
    if (gesture.kind == host::GestureKind::closeSwipe) {
        if (!table.open)
            return host::Outcome::disabled;
        [self _hostClose];
        return host::Outcome::done;
    }
    if (gesture.kind == host::GestureKind::scroll)
        [self _hostClose];
    return [super _hostPerform:gesture];
}

@end
