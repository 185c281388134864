// Where the parts of a cell lie. Lengths as measured on Settings pages of iOS 7 and 8.
#import "UIKit/UIFont+Host.h"
#import "UIKit/UITableViewCell+Host.h"
#import <UIKit/UIImage.h>

#include "host/Text.h"
#include "UIKit/TableMetrics.h"
#include "UIKit/TextMeasure.h"

#include <algorithm>

using namespace host::metrics;

namespace {

/// The column of the tinted labels of style value2.
constexpr double kValue2TextWidth = 91, kValue2Gap = 6;
/// Between the text and the value of style value1.
constexpr double kValueGap = 6;

CGSize fittingSize(UILabel *label) {
    return label ? [label sizeThatFits:CGSizeZero] : CGSizeZero;
}

double accessoryWidth(UITableViewCellAccessoryType type) {
    switch (type) {
    case UITableViewCellAccessoryDisclosureIndicator: return kChevronWidth;
    case UITableViewCellAccessoryDetailDisclosureButton:
        return kChevronWidth + kAccessoryGap + kDetailButtonWidth;
    case UITableViewCellAccessoryCheckmark: return kCheckmarkWidth;
    case UITableViewCellAccessoryDetailButton: return kDetailButtonWidth;
    default: return 0;
    }
}

/// The middle of a row, on a pixel of a 2x screen.
CGFloat centred(CGFloat height, CGFloat room) {
    return std::max(CGFloat(0), host::upToHalfPoint((room - height) / 2));
}

/// The room for texts of a content view.
struct TextRoom {
    CGFloat left, right, height;
    [[nodiscard]] CGFloat width() const { return std::max(CGFloat(0), right - left); }
};

void layOutDefault(UITableViewCellState &cell, const TextRoom &room) {
    cell.textLabel.get().frame = CGRectMake(room.left, 0, room.width(), room.height);
}

void layOutValue1(UITableViewCellState &cell, const TextRoom &room) {
    const CGSize text = fittingSize(cell.textLabel), detail = fittingSize(cell.detailLabel);
    const CGFloat textWidth = std::min(text.width, room.width());
    const CGFloat gap = text.width > 0 ? kValueGap : 0;
    const CGFloat detailWidth =
        std::clamp(detail.width, CGFloat(0), std::max(CGFloat(0), room.width() - textWidth - gap));
    cell.textLabel.get().frame =
        CGRectMake(room.left, centred(text.height, room.height), textWidth, text.height);
    cell.detailLabel.get().frame =
        CGRectMake(room.right - detailWidth, centred(detail.height, room.height), detailWidth, detail.height);
}

void layOutValue2(UITableViewCellState &cell, const TextRoom &room) {
    const CGSize text = fittingSize(cell.textLabel), detail = fittingSize(cell.detailLabel);
    const CGFloat detailLeft = room.left + kValue2TextWidth + kValue2Gap;
    cell.textLabel.get().frame =
        CGRectMake(room.left, centred(text.height, room.height), kValue2TextWidth, text.height);
    cell.detailLabel.get().frame = CGRectMake(detailLeft, centred(detail.height, room.height),
                                              std::max(CGFloat(0), room.right - detailLeft), detail.height);
}

/// Two lines in the middle of the row; the text alone when there is no detail.
void layOutSubtitle(UITableViewCellState &cell, const TextRoom &room) {
    const CGSize text = fittingSize(cell.textLabel), detail = fittingSize(cell.detailLabel);
    const CGFloat top = centred(text.height + detail.height, room.height);
    cell.textLabel.get().frame = CGRectMake(room.left, top, std::min(text.width, room.width()), text.height);
    cell.detailLabel.get().frame =
        CGRectMake(room.left, top + text.height, std::min(detail.width, room.width()), detail.height);
}

void layOutTexts(UITableViewCellState &cell, const TextRoom &room) {
    switch (cell.style) {
    case UITableViewCellStyleValue1: return layOutValue1(cell, room);
    case UITableViewCellStyleValue2: return layOutValue2(cell, room);
    case UITableViewCellStyleSubtitle: return layOutSubtitle(cell, room);
    default: return layOutDefault(cell, room);
    }
}

} // namespace

@implementation UITableViewCell (HostLayout)

- (UIView *)_hostAccessoryView {
    const UITableViewCellState &cell = [self _hostCell];
    return cell.editing ? cell.editingAccessoryView : cell.accessoryView;
}

- (UITableViewCellAccessoryType)_hostAccessoryType {
    const UITableViewCellState &cell = [self _hostCell];
    if ([self _hostAccessoryView])
        return UITableViewCellAccessoryNone;
    return cell.editing ? cell.editingAccessoryType : cell.accessoryType;
}

- (CGFloat)_hostDeleteWidth {
    const UITableViewCellState &cell = [self _hostCell];
    if (!cell.open)
        return 0;
    UIFont *font = [UIFont systemFontOfSize:kDeleteTextSize];
    return std::max(kDeleteNarrowest,
                    host::textWidth(host::utf16(cell.deleteTitle), host::face(font)) + 2 * kDeletePadding);
}

- (CGFloat)_hostShift {
    const UITableViewCellState &cell = [self _hostCell];
    const CGFloat indent = cell.showsControl && cell.indentsWhileEditing ? kEditShift : 0;
    return indent - [self _hostDeleteWidth];
}

/// Size of the image as it is drawn: never higher than the row.
- (CGSize)_hostImageSize {
    UIImage *image = [self _hostCell].imageView.get().image;
    const CGSize size = image ? image.size : CGSizeZero;
    const CGFloat height = self.bounds.size.height;
    if (size.height <= height || size.height <= 0)
        return size;
    return CGSizeMake(size.width * height / size.height, height);
}

- (CGFloat)_hostTextLeft {
    const UITableViewCellState &cell = [self _hostCell];
    const CGFloat left = margin(self.bounds.size.width) +
                         CGFloat(std::max(NSInteger(0), cell.indentationLevel)) * cell.indentationWidth;
    const CGSize image = [self _hostImageSize];
    return image.width > 0 ? left + image.width + kImageToText : left;
}

- (CGFloat)_hostSeparatorLeft {
    const UITableViewCellState &cell = [self _hostCell];
    const CGFloat indent = cell.showsControl && cell.indentsWhileEditing ? kEditShift : 0;
    return indent + (cell.separatorInset ? cell.separatorInset->left : [self _hostTextLeft]);
}

/// Width taken at the right edge, with the gap to the content; 0 without an accessory.
- (CGFloat)_hostAccessoryRoom {
    UIView *view = [self _hostAccessoryView];
    const CGFloat width = view ? view.frame.size.width : accessoryWidth([self _hostAccessoryType]);
    return width > 0 ? margin(self.bounds.size.width) + width + kAccessoryGap : 0;
}

- (void)layoutSubviews {
    [super layoutSubviews];
    UITableViewCellState &cell = [self _hostCell];
    const CGSize size = self.bounds.size;
    const CGFloat shift = [self _hostShift], accessory = [self _hostAccessoryRoom];
    const CGFloat indent = shift + [self _hostDeleteWidth];
    const CGFloat contentWidth = std::max(CGFloat(0), size.width - indent - accessory);
    cell.contentView.get().frame = CGRectMake(shift, 0, contentWidth, size.height);
    cell.backgroundView.get().frame = cell.selectedBackgroundView.get().frame = self.bounds;
    cell.selectedBackgroundView.get().hidden = !cell.selected && !cell.highlighted;
    [self _hostLayOutAccessoryAt:size.width - margin(size.width) - [self _hostDeleteWidth]];
    [self _hostLayOutContent:contentWidth hasAccessory:accessory > 0];
}

- (void)_hostLayOutAccessoryAt:(CGFloat)right {
    const UITableViewCellState &cell = [self _hostCell];
    UIView *shown = [self _hostAccessoryView];
    cell.accessoryView.get().hidden = cell.accessoryView != shown;
    cell.editingAccessoryView.get().hidden = cell.editingAccessoryView != shown;
    const CGSize size = shown ? shown.frame.size : CGSizeZero;
    shown.frame = CGRectMake(right - size.width, centred(size.height, self.bounds.size.height), size.width,
                             size.height);
}

- (void)_hostLayOutContent:(CGFloat)width hasAccessory:(BOOL)hasAccessory {
    UITableViewCellState &cell = [self _hostCell];
    const CGFloat height = self.bounds.size.height, left = [self _hostTextLeft];
    const CGSize image = [self _hostImageSize];
    cell.imageView.get().frame = CGRectMake(left - kImageToText - image.width, centred(image.height, height),
                                            image.width, image.height);
    cell.imageView.get().hidden = image.width <= 0;
    const CGFloat right = hasAccessory ? width : width - margin(self.bounds.size.width);
    layOutTexts(cell, {left, right, height});
}

@end
