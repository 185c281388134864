// The cells, headers and footers on screen. Cells are asked for when their row comes into the bounds and
// queued when it leaves them, after "Creating and Configuring a Table View" of Apple's Table View Programming
// Guide.
#import "UIKit/UIResponder+Host.h"
#import "UIKit/UITableView+Host.h"
#import "UIKit/UITableViewHeaderFooterView+Host.h"

#include "host/Text.h"
#include "UIKit/TableMetrics.h"

#include <algorithm>

using host::RowPlace;

namespace {

/// Sets a flag for as long as a block of code runs, whichever way it is left.
class Flagged {
public:
    explicit Flagged(bool &flag) : m_flag(flag) { m_flag = true; }
    ~Flagged() { m_flag = false; }
    Flagged(const Flagged &) = delete;
    Flagged &operator=(const Flagged &) = delete;

private:
    bool &m_flag;
};

bool holdsFirstResponder(UIView *view) {
    UIResponder *responder = host::firstResponder();
    return [responder isKindOfClass:[UIView class]] &&
           [static_cast<UIView *>(responder) isDescendantOfView:view];
}

} // namespace

@implementation UITableView (HostCells)

- (host::Span)_hostShownSpan {
    const CGRect bounds = self.bounds;
    return {bounds.origin.y, CGRectGetMaxY(bounds)};
}

- (void)_hostShowRows {
    UITableViewState &table = [self _hostTableState];
    if (table.showsRows || table.updateDepth > 0)
        return;
    const Flagged showing(table.showsRows);
    [self _hostBringUpToDate];
    const host::Span span = [self _hostShownSpan];
    const std::vector<RowPlace> rows = table.layout.rowsIn(span);
    [self _hostTakeAwayCellsOutside:rows];
    [self _hostShowCells:rows];
    [self _hostShowTextsIn:span];
    [self _hostPlaceOwnViews];
    [self _hostPlaceIndex];
}

/// The row of the text field that is being typed into stays, as scrolling must not end the typing.
- (void)_hostTakeAwayCellsOutside:(const std::vector<RowPlace> &)rows {
    UITableViewState &table = [self _hostTableState];
    std::vector<std::pair<RowPlace, host::Retained<UITableViewCell *>>> leaving;
    for (const auto &[place, cell] : table.cells) {
        if (!std::binary_search(rows.begin(), rows.end(), place) && !holdsFirstResponder(cell))
            leaving.emplace_back(place, cell);
    }
    for (const auto &[place, cell] : leaving) {
        table.cells.erase(place);
        [self _hostTakeAwayCell:cell at:place];
    }
}

- (void)_hostShowCells:(const std::vector<RowPlace> &)rows {
    UITableViewState &table = [self _hostTableState];
    const unsigned generation = table.generation;
    for (const RowPlace place : rows) {
        if (const auto shown = table.cells.find(place); shown != table.cells.end()) {
            [self _hostPlaceCell:shown->second at:place];
            continue;
        }
        UITableViewCell *cell = [self _hostNewCellAt:place];
        if (table.generation != generation)
            return [self setNeedsLayout]; // reloaded while it gave a cell: the rows are others now
        [self _hostShowCell:cell at:place];
    }
}

- (void)_hostShowCell:(UITableViewCell *)cell at:(RowPlace)place {
    UITableViewState &table = [self _hostTableState];
    if (const auto before = [self _hostPlaceOf:cell])
        table.cells.erase(*before); // the same cell given for two rows stands at the later one
    table.cells[place] = cell;
    [self _hostPlaceCell:cell at:place];
    if (table.delegateHas.willDisplay)
        [self.delegate tableView:self willDisplayCell:cell forRowAtIndexPath:host::pathOf(place)];
    if (cell.superview != self)
        [self addSubview:cell];
    [cell setNeedsLayout];
}

- (UITableViewCell *)_hostNewCellAt:(RowPlace)place {
    UITableViewState &table = [self _hostTableState];
    NSIndexPath *path = host::pathOf(place);
    UITableViewCell *cell = [table.dataSource tableView:self cellForRowAtIndexPath:path];
    if (![cell isKindOfClass:[UITableViewCell class]])
        [NSException raise:NSInternalInconsistencyException
                    format:@"The table's data source gave no cell for row %ld of section %ld", place.row,
                           place.section];
    [self _hostConfigureCell:cell at:place];
    return cell;
}

- (void)_hostConfigureCell:(UITableViewCell *)cell at:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    if (table.delegateHas.indentation)
        cell.indentationLevel = [self.delegate tableView:self
                       indentationLevelForRowAtIndexPath:host::pathOf(place)];
    if (table.separatorInset && ![cell _hostCell].separatorInset)
        cell.separatorInset = *table.separatorInset;
    cell.highlighted = NO;
    cell.selected = table.selected.contains(place);
    [self _hostConfigureEditingOf:cell at:place];
}

- (void)_hostPlaceCell:(UITableViewCell *)cell at:(RowPlace)place {
    const host::Span span = [self _hostTableState].layout.row(place);
    const CGRect frame = CGRectMake(0, span.top, self.bounds.size.width, span.height());
    if (!CGRectEqualToRect(cell.frame, frame))
        cell.frame = frame;
}

- (void)_hostTakeAwayCell:(UITableViewCell *)cell at:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    if (cell.superview == self)
        [cell removeFromSuperview];
    [self _hostQueueCell:cell];
    if (table.delegateHas.didEndDisplaying)
        [self.delegate tableView:self didEndDisplayingCell:cell forRowAtIndexPath:host::pathOf(place)];
}

- (void)_hostTakeAwayAll {
    UITableViewState &table = [self _hostTableState];
    const auto cells = std::exchange(table.cells, {});
    for (const auto &[place, cell] : cells)
        [self _hostTakeAwayCell:cell at:place];
    [self _hostTakeAway:table.headers except:{}];
    [self _hostTakeAway:table.footers except:{}];
}

- (UITableViewCell *)_hostCellAt:(RowPlace)place {
    const UITableViewState &table = [self _hostTableState];
    const auto found = table.cells.find(place);
    return found == table.cells.end() ? nil : found->second.get();
}

- (std::optional<RowPlace>)_hostPlaceOf:(UITableViewCell *)cell {
    for (const auto &[place, shown] : [self _hostTableState].cells) {
        if (shown.get() == cell)
            return place;
    }
    return std::nullopt;
}

- (void)_hostTakeAway:(std::map<long, host::Retained<UIView *>> &)views
               except:(const std::set<long> &)sections {
    for (auto view = views.begin(); view != views.end();) {
        if (sections.contains(view->first)) {
            ++view;
            continue;
        }
        [view->second removeFromSuperview];
        [self _hostQueueView:view->second];
        view = views.erase(view);
    }
}

- (void)_hostShowTextsIn:(host::Span)span {
    for (const host::Edge edge : {host::Edge::header, host::Edge::footer}) {
        const std::set<long> sections = [self _hostSectionsShowing:edge in:span];
        [self _hostTakeAway:[self _hostTexts:edge] except:sections];
        for (const long section : sections)
            [self _hostShow:edge of:section];
    }
}

- (std::map<long, host::Retained<UIView *>> &)_hostTexts:(host::Edge)edge {
    UITableViewState &table = [self _hostTableState];
    return edge == host::Edge::header ? table.headers : table.footers;
}

- (std::set<long>)_hostSectionsShowing:(host::Edge)edge in:(host::Span)span {
    std::set<long> showing;
    const auto sections = [self _hostTableState].layout.sectionsIn(span);
    for (long section = sections.first; section < sections.second; ++section) {
        const host::Span place = [self _hostSpanOf:edge section:section];
        if (place.height() > 0 && place.meets(span))
            showing.insert(section);
    }
    return showing;
}

- (void)_hostShow:(host::Edge)edge of:(long)section {
    auto &views = [self _hostTexts:edge];
    if (!views.contains(section)) {
        UIView *view = [self _hostNewView:edge of:section];
        if (!view)
            return;
        views[section] = view;
        [self _hostTellWillDisplay:view edge:edge section:section];
        [self addSubview:view];
    }
    const host::Span place = [self _hostSpanOf:edge section:section];
    views[section].get().frame = CGRectMake(0, place.top, self.bounds.size.width, place.height());
}

- (void)_hostTellWillDisplay:(UIView *)view edge:(host::Edge)edge section:(long)section {
    const host::TableDelegateMethods &has = [self _hostTableState].delegateHas;
    if (edge == host::Edge::header && has.willDisplayHeader)
        [self.delegate tableView:self willDisplayHeaderView:view forSection:section];
    if (edge == host::Edge::footer && has.willDisplayFooter)
        [self.delegate tableView:self willDisplayFooterView:view forSection:section];
}

/// Headers of plain tables stay at the top while their section is on screen.
- (host::Span)_hostSpanOf:(host::Edge)edge section:(long)section {
    const UITableViewState &table = [self _hostTableState];
    if (edge == host::Edge::footer)
        return table.layout.footer(section);
    const host::Span natural = table.layout.header(section);
    if (table.style != UITableViewStylePlain)
        return natural;
    const double top = self.contentOffset.y + self.contentInset.top;
    const double lowest = table.layout.section(section).bottom - natural.height();
    const double at = std::max(natural.top, std::min(top, lowest));
    return {at, at + natural.height()};
}

/// The delegate's view, else one with the data source's text, else none.
- (UIView *)_hostNewView:(host::Edge)edge of:(long)section {
    const UITableViewState &table = [self _hostTableState];
    const bool header = edge == host::Edge::header;
    UIView *view = nil;
    if (header && table.delegateHas.headerView)
        view = [self.delegate tableView:self viewForHeaderInSection:section];
    if (!header && table.delegateHas.footerView)
        view = [self.delegate tableView:self viewForFooterInSection:section];
    const host::SectionContent &content = table.sections[static_cast<std::size_t>(section)];
    NSString *title = header ? content.headerTitle : content.footerTitle;
    if (view || title.length == 0)
        return view;
    return host::newSectionText(title, table.style, edge == host::Edge::header);
}

- (void)_hostPlaceOwnViews {
    const UITableViewState &table = [self _hostTableState];
    const CGFloat width = self.bounds.size.width;
    const auto put = [width](UIView *view, CGFloat top) {
        view.frame = CGRectMake(0, top, width, view.frame.size.height);
    };
    put(table.headerView, 0);
    put(table.footerView, table.layout.bottom());
    table.backgroundView.get().frame = self.bounds;
}

@end
