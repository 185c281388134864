// UITableView: the table itself, its data source and its delegate. After Apple's UITableView Class Reference;
// the topics of that document are categories in files of their own.
#import "UIKit/UITableView+Host.h"
#import <UIKit/UIColor.h>

#include "UIKit/TableMetrics.h"

NSString *const UITableViewIndexSearch = @"{search}";
NSString *const UITableViewSelectionDidChangeNotification = @"UITableViewSelectionDidChangeNotification";
const CGFloat UITableViewAutomaticDimension = -1;

namespace {

host::TableDataSourceMethods methodsOfDataSource(id source) {
    const auto has = [source](SEL selector) -> bool { return [source respondsToSelector:selector]; };
    return {
        .sections = has(@selector(numberOfSectionsInTableView:)),
        .headerTitle = has(@selector(tableView:titleForHeaderInSection:)),
        .footerTitle = has(@selector(tableView:titleForFooterInSection:)),
        .canEdit = has(@selector(tableView:canEditRowAtIndexPath:)),
        .commit = has(@selector(tableView:commitEditingStyle:forRowAtIndexPath:)),
        .indexTitles = has(@selector(sectionIndexTitlesForTableView:)),
        .sectionForTitle = has(@selector(tableView:sectionForSectionIndexTitle:atIndex:)),
    };
}

host::TableDelegateMethods methodsOfDelegate(id delegate) {
    const auto has = [delegate](SEL selector) -> bool { return [delegate respondsToSelector:selector]; };
    return {
        .rowHeight = has(@selector(tableView:heightForRowAtIndexPath:)),
        .headerHeight = has(@selector(tableView:heightForHeaderInSection:)),
        .footerHeight = has(@selector(tableView:heightForFooterInSection:)),
        .headerView = has(@selector(tableView:viewForHeaderInSection:)),
        .footerView = has(@selector(tableView:viewForFooterInSection:)),
        .indentation = has(@selector(tableView:indentationLevelForRowAtIndexPath:)),
        .willDisplay = has(@selector(tableView:willDisplayCell:forRowAtIndexPath:)),
        .didEndDisplaying = has(@selector(tableView:didEndDisplayingCell:forRowAtIndexPath:)),
        .willDisplayHeader = has(@selector(tableView:willDisplayHeaderView:forSection:)),
        .willDisplayFooter = has(@selector(tableView:willDisplayFooterView:forSection:)),
        .shouldHighlight = has(@selector(tableView:shouldHighlightRowAtIndexPath:)),
        .didHighlight = has(@selector(tableView:didHighlightRowAtIndexPath:)),
        .didUnhighlight = has(@selector(tableView:didUnhighlightRowAtIndexPath:)),
        .willSelect = has(@selector(tableView:willSelectRowAtIndexPath:)),
        .willDeselect = has(@selector(tableView:willDeselectRowAtIndexPath:)),
        .didSelect = has(@selector(tableView:didSelectRowAtIndexPath:)),
        .didDeselect = has(@selector(tableView:didDeselectRowAtIndexPath:)),
        .accessoryTapped = has(@selector(tableView:accessoryButtonTappedForRowWithIndexPath:)),
        .editingStyle = has(@selector(tableView:editingStyleForRowAtIndexPath:)),
        .deleteTitle = has(@selector(tableView:titleForDeleteConfirmationButtonForRowAtIndexPath:)),
        .shouldIndent = has(@selector(tableView:shouldIndentWhileEditingRowAtIndexPath:)),
        .willBeginEditing = has(@selector(tableView:willBeginEditingRowAtIndexPath:)),
        .didEndEditing = has(@selector(tableView:didEndEditingRowAtIndexPath:)),
    };
}

} // namespace

@implementation UITableView

- (id)initWithFrame:(CGRect)frame {
    return [self initWithFrame:frame style:UITableViewStylePlain];
}

- (id)initWithFrame:(CGRect)frame style:(UITableViewStyle)style {
    if ((self = [super initWithFrame:frame])) {
        _tableState = new UITableViewState;
        _tableState->style = style;
        self.backgroundColor =
            style == UITableViewStyleGrouped ? [UIColor groupTableViewBackgroundColor] : [UIColor whiteColor];
    }
    return self;
}

- (void)dealloc {
    delete _tableState;
    [super dealloc];
}

- (UITableViewState &)_hostTableState {
    return *_tableState;
}

- (UITableViewStyle)style {
    return _tableState->style;
}

- (id<UITableViewDataSource>)dataSource {
    return _tableState->dataSource;
}

- (void)setDataSource:(id<UITableViewDataSource>)source {
    _tableState->dataSource = source;
    _tableState->dataSourceHas = methodsOfDataSource(source);
    _tableState->needsRows = true;
    [self setNeedsLayout];
}

- (id<UITableViewDelegate>)delegate {
    return static_cast<id<UITableViewDelegate>>([super delegate]);
}

- (void)setDelegate:(id<UITableViewDelegate>)delegate {
    [super setDelegate:delegate];
    _tableState->delegateHas = methodsOfDelegate(delegate);
    _tableState->needsHeights = true;
    [self setNeedsLayout];
}

- (void)_hostHeightsChanged {
    _tableState->needsHeights = true;
    [self setNeedsLayout];
}

- (CGFloat)rowHeight {
    return _tableState->rowHeight > 0 ? _tableState->rowHeight : host::metrics::kRowHeight;
}

- (void)setRowHeight:(CGFloat)height {
    _tableState->rowHeight = height;
    [self _hostHeightsChanged];
}

- (CGFloat)sectionHeaderHeight {
    return _tableState->headerHeight > 0 ? _tableState->headerHeight : UITableViewAutomaticDimension;
}

- (void)setSectionHeaderHeight:(CGFloat)height {
    _tableState->headerHeight = height;
    [self _hostHeightsChanged];
}

- (CGFloat)sectionFooterHeight {
    return _tableState->footerHeight > 0 ? _tableState->footerHeight : UITableViewAutomaticDimension;
}

- (void)setSectionFooterHeight:(CGFloat)height {
    _tableState->footerHeight = height;
    [self _hostHeightsChanged];
}

- (UIEdgeInsets)separatorInset {
    const CGFloat left = host::metrics::margin(self.bounds.size.width);
    return _tableState->separatorInset.value_or(UIEdgeInsetsMake(0, left, 0, 0));
}

/// Cells made from now on take it over, unless they have an inset of their own.
- (void)setSeparatorInset:(UIEdgeInsets)inset {
    _tableState->separatorInset = inset;
}

- (UITableViewCellSeparatorStyle)separatorStyle {
    return _tableState->separatorStyle;
}

- (void)setSeparatorStyle:(UITableViewCellSeparatorStyle)style {
    _tableState->separatorStyle = style;
}

/// Puts `view` in the place of `old`, below the rows.
- (void)_hostReplace:(host::Retained<UIView *> &)old by:(UIView *)view {
    [old removeFromSuperview];
    old = view;
    if (view)
        [self insertSubview:view atIndex:0];
    [self _hostHeightsChanged];
}

- (UIView *)backgroundView {
    return _tableState->backgroundView;
}

- (void)setBackgroundView:(UIView *)view {
    [self _hostReplace:_tableState->backgroundView by:view];
}

- (UIView *)tableHeaderView {
    return _tableState->headerView;
}

- (void)setTableHeaderView:(UIView *)view {
    [self _hostReplace:_tableState->headerView by:view];
}

- (UIView *)tableFooterView {
    return _tableState->footerView;
}

- (void)setTableFooterView:(UIView *)view {
    [self _hostReplace:_tableState->footerView by:view];
}

/// Texts wrap anew when the width changes, and with them the heights of headers and footers.
- (void)setFrame:(CGRect)frame {
    const CGFloat width = self.frame.size.width;
    [super setFrame:frame];
    if (_tableState && frame.size.width != width)
        [self _hostHeightsChanged];
}

- (void)reloadData {
    UITableViewState &table = *_tableState;
    [self _hostClose];
    [self _hostTakeAwayAll];
    table.selected.clear();
    [self _hostAskForRows];
    [self _hostMeasure];
    [self setNeedsLayout];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [self _hostShowRows];
}

@end
