// A cell as an element, and what a person can do to it.
#import "UIKit/UITableView+Host.h"
#import "UIKit/UITableViewCell+Host.h"

#include "host/Text.h"
#include "UIKit/TableMetrics.h"

using host::Element;
using host::GestureKind;
using host::Outcome;
using namespace host::metrics;

namespace {

std::string styleName(UITableViewCellStyle style) {
    switch (style) {
    case UITableViewCellStyleValue1: return "value1";
    case UITableViewCellStyleValue2: return "value2";
    case UITableViewCellStyleSubtitle: return "subtitle";
    default: return "default";
    }
}

std::string accessoryName(UITableViewCellAccessoryType type) {
    switch (type) {
    case UITableViewCellAccessoryDisclosureIndicator: return "disclosure";
    case UITableViewCellAccessoryDetailDisclosureButton: return "detail-disclosure";
    case UITableViewCellAccessoryCheckmark: return "checkmark";
    case UITableViewCellAccessoryDetailButton: return "detail";
    default: return "none";
    }
}

std::string editingName(UITableViewCellEditingStyle style) {
    switch (style) {
    case UITableViewCellEditingStyleDelete: return "delete";
    case UITableViewCellEditingStyleInsert: return "insert";
    default: return "none";
    }
}

bool hasDetailButton(UITableViewCellAccessoryType type) {
    return type == UITableViewCellAccessoryDetailDisclosureButton ||
           type == UITableViewCellAccessoryDetailButton;
}

Element button(const Element &cell, std::string part, std::string label, host::Rect rect) {
    Element element{
        .type = "Button", .label = std::move(label), .rect = rect, .number = cell.number, .part = part};
    element.attributes["role"] = std::move(part);
    return element;
}

} // namespace

@implementation UITableViewCell (HostTree)

- (BOOL)_hostDescribe:(Element &)element {
    UITableView *table = [self _hostTable];
    const auto place = [table _hostPlaceOf:self];
    if (!place)
        return NO;
    [self layoutIfNeeded];
    const UITableViewCellState &cell = [self _hostCell];
    element.type = "Cell";
    element.label = host::utf8(cell.textLabel.get().text);
    element.value = host::utf8(cell.detailLabel.get().text);
    element.enabled = self.userInteractionEnabled;
    element.selected = cell.selected;
    [self _hostDescribeState:element at:*place];
    [self _hostDescribeParts:element];
    return YES;
}

- (void)_hostDescribeState:(Element &)element at:(host::RowPlace)place {
    UITableView *table = [self _hostTable];
    const UITableViewCellState &cell = [self _hostCell];
    auto &attributes = element.attributes;
    attributes["section"] = double(place.section);
    attributes["row"] = double(place.row);
    attributes["style"] = styleName(cell.style);
    attributes["accessory"] = accessoryName([self _hostAccessoryType]);
    attributes["editing"] =
        editingName(cell.showsControl ? cell.editingStyle : UITableViewCellEditingStyleNone);
    attributes["open"] = cell.open;
    attributes["selectable"] = bool([table _hostSelectionAllowed] && self.userInteractionEnabled);
    attributes["swipeable"] = bool(cell.swipeable && !table.editing);
    attributes["inset"] = double([self _hostSeparatorLeft]);
}

- (void)_hostDescribeParts:(Element &)element {
    const UITableViewCellState &cell = [self _hostCell];
    if (cell.showsControl)
        element.children.push_back(button(element, "minus", "", [self _hostControlRect:element.rect]));
    host::describe(cell.contentView, element.rect.x, element.rect.y, element.children);
    if (UIView *accessory = [self _hostAccessoryView]) {
        const auto first = element.children.size();
        host::describe(accessory, element.rect.x, element.rect.y, element.children);
        for (auto part = first; part < element.children.size(); ++part) {
            if (element.children[part].type == "StaticText")
                element.children[part].attributes["role"] = std::string("accessory");
        }
    }
    if (hasDetailButton([self _hostAccessoryType]))
        element.children.push_back(button(element, "detail", "", [self _hostDetailButtonRect:element.rect]));
    if (cell.open)
        element.children.push_back(
            button(element, "delete", host::utf8(cell.deleteTitle), [self _hostDeleteRect:element.rect]));
}

- (host::Rect)_hostControlRect:(const host::Rect &)cell {
    const double left = cell.x + kMinusLeft - [self _hostDeleteWidth];
    return {left, cell.y + (cell.height - kMinusSize) / 2, kMinusSize, kMinusSize};
}

- (host::Rect)_hostDeleteRect:(const host::Rect &)cell {
    const double width = [self _hostDeleteWidth];
    return {cell.x + cell.width - width, cell.y, width, cell.height};
}

- (host::Rect)_hostDetailButtonRect:(const host::Rect &)cell {
    const bool chevron = [self _hostAccessoryType] == UITableViewCellAccessoryDetailDisclosureButton;
    const double right = cell.x + cell.width - margin(cell.width) - [self _hostDeleteWidth] -
                         (chevron ? kChevronWidth + kAccessoryGap : 0);
    return {right - kDetailButtonWidth, cell.y + (cell.height - kDetailButtonWidth) / 2, kDetailButtonWidth,
            kDetailButtonWidth};
}

/// The parts describe themselves within the cell.
- (NSArray *)_hostVisibleSubviews {
    return [NSArray array];
}

- (Outcome)_hostPerform:(const host::Gesture &)gesture {
    UITableView *table = [self _hostTable];
    const auto place = [table _hostPlaceOf:self];
    if (!place)
        return Outcome::notThere;
    switch (gesture.kind) {
    case GestureKind::tap: return [self _hostTap:gesture.part at:*place];
    case GestureKind::swipe: return [table _hostSwipe:*place];
    case GestureKind::closeSwipe:
        if (![self _hostCell].open)
            return Outcome::disabled;
        [table _hostClose];
        return Outcome::done;
    default: return [super _hostPerform:gesture];
    }
}

- (Outcome)_hostTap:(const std::string &)part at:(host::RowPlace)place {
    UITableView *table = [self _hostTable];
    const UITableViewCellState &cell = [self _hostCell];
    if (part.empty())
        return [table _hostTapRow:place];
    if (part == "minus" && cell.showsControl)
        return [table _hostTapMinus:place];
    if (part == "delete" && cell.open)
        return [table _hostTapDelete:place];
    if (part == "detail" && hasDetailButton([self _hostAccessoryType]))
        return [table _hostTapAccessory:place];
    return Outcome::notThere;
}

@end
