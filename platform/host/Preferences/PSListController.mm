// PSListController: a page that is a list of specifiers. Loading, ownership and order follow the public
// documentation of preference bundles.
#import <Preferences/PSBundleController.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/Keys.h"
#include "Preferences/ListGroups.h"
#include "Preferences/Messages.h"
#include "Preferences/PageFile.h"
#include "Preferences/PSListController+Host.h"
#include "Preferences/SpecifierLoader.h"
#include "UIKit/KeyboardRoom.h"

namespace key = host::key;

@implementation PSListController

- (instancetype)init {
    self = [super init];
    if (self) {
        _bundleControllers = [[NSMutableArray alloc] init];
        _keyboardRoom = [[HostKeyboardRoom alloc] init];
    }
    return self;
}

- (instancetype)initForContentSize:(CGSize)size {
    return [self init];
}

- (void)dealloc {
    [self _hostUnloadBundles];
    [_table setDataSource:nil];
    [_table setDelegate:nil];
    [_table release];
    [_specifiers release];
    [_groups release];
    [_groupedSpecifiers release];
    [_specifierID release];
    [_bundleControllers release];
    [_confirmation release];
    [_keyboardRoom release];
    [_loadFailure release];
    [super dealloc];
}

- (NSBundle *)bundle {
    return [NSBundle bundleForClass:[self class]];
}

- (NSArray *)specifiers {
    if (!_specifiers) {
        PSSpecifier *opener = [self specifier];
        NSString *page = host::textProperty(opener, key::id);
        _specifiers = [[self loadSpecifiersFromPlistName:page ? page : host::textProperty(opener, key::label)
                                                  target:self] retain];
    }
    return _specifiers;
}

- (void)setSpecifiers:(NSArray *)specifiers {
    [specifiers retain];
    [_specifiers release];
    _specifiers = specifiers;
    [self _hostRegroup];
    [_table reloadData];
}

- (NSArray *)loadSpecifiersFromPlistName:(NSString *)name target:(id)target {
    NSBundle *bundle = [self bundle];
    const host::PageFile page = host::readPage(bundle, name);
    if (page.failure) {
        [self _hostFailed:page.failure];
        return [NSMutableArray array];
    }
    const host::PageSource source{{bundle, name}, target, _bundleControllers};
    if (NSString *title = host::as<NSString>([NSString class], [page.root objectForKey:key::title]))
        [self setTitle:source.table(title)];
    if (NSString *identifier = host::as<NSString>([NSString class], [page.root objectForKey:key::id]))
        [self setSpecifierID:identifier];
    return host::specifiersOfItems(page.items, source);
}

- (NSString *)specifierID {
    return _specifierID;
}

- (void)setSpecifierID:(NSString *)identifier {
    [_specifierID autorelease];
    _specifierID = [identifier copy];
}

- (void)setSpecifier:(PSSpecifier *)specifier {
    [super setSpecifier:specifier];
    if ([specifier name])
        [self setTitle:[specifier name]];
}

- (void)loadView {
    _table = [[UITableView alloc] initWithFrame:[[UIScreen mainScreen] bounds] style:UITableViewStyleGrouped];
    [_table setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [self setView:_table];
    [self _hostRegroup];
    [_table setDataSource:self];
    [_table setDelegate:self];
}

- (UITableView *)table {
    return _table;
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if (NSIndexPath *chosen = [_table indexPathForSelectedRow])
        [_table deselectRowAtIndexPath:chosen animated:animated];
}

- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
    [_keyboardRoom pageDidAppear:_table];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [_keyboardRoom pageWillDisappear];
}

/// A page may have changed its array in place.
- (void)reload {
    [_groups release];
    _groups = nil;
    [_table reloadData];
}

- (void)reloadSpecifiers {
    [self _hostUnloadBundles];
    [_specifiers release];
    _specifiers = nil;
    [_loadFailure release];
    _loadFailure = nil;
    [self _hostRegroup];
    [_table reloadData];
}

- (void)loseFocus {
    [_table endEditing:YES];
}

- (NSArray *)_hostGroups {
    if (_groupedSpecifiers == _specifiers && _groups)
        return _groups;
    [_groupedSpecifiers release];
    _groupedSpecifiers = [_specifiers retain];
    [_groups release];
    const bool empty = [_specifiers count] == 0 && _loadFailure;
    _groups = [(empty ? host::groupSaying(_loadFailure) : host::groupsOf(_specifiers)) retain];
    return _groups;
}

- (void)_hostRegroup {
    [_groups release];
    _groups = nil;
    NSString *page = NSStringFromClass([self class]);
    if (NSString *raised = host::guarded(page, [&] { [self specifiers]; }))
        [self _hostFailed:raised];
}

- (void)_hostFailed:(NSString *)reason {
    host::complain(@"%@", reason);
    [_loadFailure autorelease];
    _loadFailure = [reason copy];
}

- (void)_hostUnloadBundles {
    for (PSBundleController *controller in _bundleControllers)
        host::guarded(NSStringFromClass([controller class]), [&] { [controller unload]; });
    [_bundleControllers removeAllObjects];
}

@end
