// PSSpinnerTableCell: a row with a turning wheel at its right end.
#import <Preferences/PSSpinnerTableCell.h>

@implementation PSSpinnerTableCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    if (self) {
        _spinner =
            [[UIActivityIndicatorView alloc] initWithActivityIndicatorStyle:UIActivityIndicatorViewStyleGray];
        [_spinner startAnimating];
        [self setAccessoryView:_spinner];
    }
    return self;
}

- (void)dealloc {
    [_spinner release];
    [super dealloc];
}

- (UIActivityIndicatorView *)spinner {
    return _spinner;
}

@end
