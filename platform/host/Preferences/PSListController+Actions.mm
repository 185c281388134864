// PSListController: what a tap on a row does. The order (action, then page; how a page is made) follows the
// published descriptions of preference bundles and of PreferenceLoader's lazy loading.
#import <Preferences/PSConfirmationSpecifier.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSRootController.h>

#include "Preferences/BundleRows.h"
#include "Preferences/HostConfirmation.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PlainPage.h"
#include "Preferences/PSListController+Host.h"

namespace key = host::key;

/// A new page of the class, with a reference that the caller owns; nil when the bundle's code fails.
static PSViewController *newPage(Class page) {
    PSViewController *controller = nil;
    host::guarded(NSStringFromClass(page), [&] {
        if ([page instancesRespondToSelector:@selector(initForContentSize:)])
            controller = [[page alloc] initForContentSize:[[UIScreen mainScreen] bounds].size];
        else
            controller = [[page alloc] init];
    });
    return controller;
}

@implementation PSListController (Actions)

/// A row that names a class that is not there opens a page that says so.
- (void)_hostCheckPageClass:(PSSpecifier *)specifier {
    const Class page = [specifier detailControllerClass];
    NSString *wanted = page ? NSStringFromClass(page) : host::textProperty(specifier, key::detail);
    if (!wanted || [page isSubclassOfClass:[PSViewController class]])
        return;
    host::openFailurePage(specifier, [NSString stringWithFormat:page ? @"The class %@ is no page of Settings."
                                                                     : @"There is no class %@.",
                                                                wanted]);
}

- (UIViewController *)controllerForSpecifier:(PSSpecifier *)specifier {
    [self performLoadActionForSpecifier:specifier];
    [self _hostCheckPageClass:specifier];
    const Class page = [specifier detailControllerClass];
    if (!page)
        return nil;
    PSViewController *controller = [newPage(page) autorelease];
    if (!controller) {
        host::openFailurePage(specifier, [NSString stringWithFormat:@"The page %@ cannot be made.", page]);
        controller = [newPage([specifier detailControllerClass]) autorelease];
    }
    [controller setRootController:[self rootController]];
    [controller setParentController:self];
    [controller setSpecifier:specifier];
    return controller;
}

- (void)showController:(UIViewController *)controller {
    [self showController:controller animate:YES];
}

- (void)showController:(UIViewController *)controller animate:(BOOL)animate {
    [self pushController:controller animate:animate];
}

- (BOOL)performActionForSpecifier:(PSSpecifier *)specifier {
    return host::act(specifier, [specifier action]);
}

- (BOOL)performButtonActionForSpecifier:(PSSpecifier *)specifier {
    return host::act(specifier, [specifier buttonAction]) || [self performActionForSpecifier:specifier];
}

- (BOOL)performConfirmationActionForSpecifier:(PSSpecifier *)specifier {
    return host::act(specifier, [specifier confirmationAction]) ||
           [self performButtonActionForSpecifier:specifier];
}

- (BOOL)performConfirmationCancelActionForSpecifier:(PSSpecifier *)specifier {
    return host::act(specifier, [specifier confirmationCancelAction]) ||
           host::act(specifier, [specifier cancel]);
}

- (BOOL)performLoadActionForSpecifier:(PSSpecifier *)specifier {
    return host::act(specifier, [specifier controllerLoadAction]);
}

- (void)lazyLoadBundle:(PSSpecifier *)specifier {
    NSString *path = [[host::textProperty(specifier, key::lazyBundle) retain] autorelease];
    if (!path)
        return;
    [specifier removePropertyForKey:key::lazyBundle];
    [specifier setAction:nullptr];
    host::loadPageClass(specifier, path);
}

- (void)showConfirmationViewForSpecifier:(PSSpecifier *)specifier {
    [self _hostAsk:specifier value:nil];
}

- (void)_hostAsk:(PSSpecifier *)specifier value:(id)value {
    PSConfirmationSpecifier *question =
        host::as<PSConfirmationSpecifier>([PSConfirmationSpecifier class], specifier);
    [_confirmation release];
    _confirmation = [[HostConfirmation alloc] initWithPage:self specifier:question value:value];
    [_confirmation ask];
}

- (void)_hostAnswered:(HostConfirmation *)question {
    if (_confirmation != question)
        return;
    [_confirmation release];
    _confirmation = nil;
}

- (void)confirmationViewAcceptedForSpecifier:(PSSpecifier *)specifier {
    id value = [static_cast<HostConfirmation *>(_confirmation) value];
    if (value)
        host::setValueOf(specifier, value);
    else
        [self performConfirmationActionForSpecifier:specifier];
}

- (void)confirmationViewCancelledForSpecifier:(PSSpecifier *)specifier {
    [self performConfirmationCancelActionForSpecifier:specifier];
    [self reloadSpecifier:specifier];
}

- (void)_hostRow:(PSSpecifier *)specifier changedTo:(id)value {
    if ([specifier isKindOfClass:[PSConfirmationSpecifier class]])
        [self _hostAsk:specifier value:value];
    else
        host::setValueOf(specifier, value);
}

/// Questions of rows answer to an object of their own. These are here for pages that ask questions themselves
/// and call super.
- (void)alertView:(UIAlertView *)alertView clickedButtonAtIndex:(NSInteger)buttonIndex {
}

- (void)actionSheet:(UIActionSheet *)actionSheet clickedButtonAtIndex:(NSInteger)buttonIndex {
}

- (void)actionSheet:(UIActionSheet *)actionSheet didDismissWithButtonIndex:(NSInteger)buttonIndex {
}

/// A row that opens a page acts first: the action may be what finds the page's class.
- (void)_hostOpenPageOf:(PSSpecifier *)specifier {
    [self performActionForSpecifier:specifier];
    [self showController:[self controllerForSpecifier:specifier]];
}

- (void)_hostPress:(PSSpecifier *)specifier {
    if ([specifier isKindOfClass:[PSConfirmationSpecifier class]])
        [self showConfirmationViewForSpecifier:specifier];
    else
        [self performButtonActionForSpecifier:specifier];
}

- (void)_hostTapped:(PSSpecifier *)specifier {
    switch ([specifier cellType]) {
    case PSButtonCell: [self _hostPress:specifier]; break;
    case PSListItemCell:
        [self _hostChoose:specifier];
        [self performActionForSpecifier:specifier];
        break;
    case PSLinkCell:
    case PSLinkListCell:
    case PSGiantIconCell:
    case PSGiantCell: [self _hostOpenPageOf:specifier]; break;
    default: [self performActionForSpecifier:specifier]; break;
    }
}

@end
