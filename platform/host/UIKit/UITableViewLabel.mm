// The labels and images of cells: parts whose size decides how the cell is laid out.
#import "UIKit/UITableViewCell+Host.h"

namespace {

/// The cell or header around a view.
UIView *outerView(UIView *part) {
    return part.superview.superview;
}

} // namespace

@implementation UITableViewLabel

- (void)setText:(NSString *)text {
    [super setText:text];
    [outerView(self) setNeedsLayout];
}

- (void)setFont:(UIFont *)font {
    [super setFont:font];
    [outerView(self) setNeedsLayout];
}

- (BOOL)_hostDescribe:(host::Element &)element {
    if (self.text.length == 0 || ![super _hostDescribe:element])
        return NO;
    if (_hostRole)
        element.attributes["role"] = std::string(_hostRole);
    return YES;
}

@end

@implementation UITableViewCellImageView

- (void)setImage:(UIImage *)image {
    [super setImage:image];
    [outerView(self) setNeedsLayout];
}

@end
