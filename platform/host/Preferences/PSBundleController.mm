// PSBundleController: a bundle that adds rows to another page.
#import <Preferences/PSBundleController.h>

@implementation PSBundleController

- (instancetype)initWithParentListController:(PSListController *)parent {
    self = [super init];
    if (self)
        _parent = parent;
    return self;
}

- (PSListController *)parent {
    return _parent;
}

- (NSArray *)specifiersWithSpecifier:(PSSpecifier *)specifier {
    return [NSArray array];
}

- (void)load {
    // for subclasses
}

- (void)unload {
    // for subclasses
}

@end
