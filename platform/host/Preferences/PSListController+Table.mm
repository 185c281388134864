// PSListController: the table's data source and delegate.
#import <Preferences/PSHeaderFooterView.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSTableCell.h>

#include "Preferences/Keys.h"
#include "Preferences/ListGroups.h"
#include "Preferences/Messages.h"
#include "Preferences/PSListController+Host.h"
#include "Preferences/PSTableCell+Host.h"

namespace key = host::key;

@implementation PSListController (Table)

- (PSSpecifier *)_hostHeaderOf:(NSInteger)section {
    NSArray *groups = [self _hostGroups];
    const NSUInteger index = static_cast<NSUInteger>(section);
    return index < [groups count] ? host::headerOf([groups objectAtIndex:index]) : nil;
}

- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView {
    return [self numberOfGroups];
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return [self rowsForGroup:static_cast<int>(section)];
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath {
    PSSpecifier *specifier = [self specifierAtIndexPath:indexPath];
    PSTableCell *cell =
        [tableView dequeueReusableCellWithIdentifier:[PSTableCell reuseIdentifierForSpecifier:specifier]];
    if (!cell)
        cell = [host::newCell(specifier) autorelease];
    [cell setCellTarget:self];
    host::guarded(@"showing a row", [&] { [cell refreshCellContentsWithSpecifier:specifier]; });
    return cell;
}

- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)indexPath {
    PSSpecifier *specifier = [self specifierAtIndexPath:indexPath];
    const CGFloat wanted = host::heightOfRow(specifier, [tableView bounds].size.width);
    return wanted > 0 ? wanted : [tableView rowHeight];
}

- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section {
    NSString *title = [[self _hostHeaderOf:section] name];
    return [title length] ? title : nil;
}

- (NSString *)tableView:(UITableView *)tableView titleForFooterInSection:(NSInteger)section {
    NSString *text = host::textProperty([self _hostHeaderOf:section], key::footerText);
    return [text length] ? text : nil;
}

/// The view of a group's `headerCellClass` or `footerCellClass`; nil for the table's own.
- (UIView *)_hostViewOf:(NSInteger)section key:(NSString *)name {
    PSSpecifier *group = [self _hostHeaderOf:section];
    NSString *className = host::textProperty(group, name);
    if (!className)
        return nil;
    const Class view = NSClassFromString(className);
    if (![view isSubclassOfClass:[UIView class]] ||
        ![view instancesRespondToSelector:@selector(initWithSpecifier:)]) {
        host::complain(@"%@ is no view of a group", className);
        return nil;
    }
    UIView *made = nil;
    host::guarded(className, [&] { made = [[[view alloc] initWithSpecifier:group] autorelease]; });
    return made;
}

- (CGFloat)_hostHeightOf:(NSInteger)section key:(NSString *)name width:(CGFloat)width {
    UIView *view = [self _hostViewOf:section key:name];
    if (![view respondsToSelector:@selector(preferredHeightForWidth:)])
        return UITableViewAutomaticDimension;
    return [static_cast<UIView<PSHeaderFooterView> *>(view) preferredHeightForWidth:width];
}

- (UIView *)tableView:(UITableView *)tableView viewForHeaderInSection:(NSInteger)section {
    return [self _hostViewOf:section key:key::headerCellClass];
}

- (UIView *)tableView:(UITableView *)tableView viewForFooterInSection:(NSInteger)section {
    return [self _hostViewOf:section key:key::footerCellClass];
}

- (CGFloat)tableView:(UITableView *)tableView heightForHeaderInSection:(NSInteger)section {
    return [self _hostHeightOf:section key:key::headerCellClass width:[tableView bounds].size.width];
}

- (CGFloat)tableView:(UITableView *)tableView heightForFooterInSection:(NSInteger)section {
    return [self _hostHeightOf:section key:key::footerCellClass width:[tableView bounds].size.width];
}

- (void)tableView:(UITableView *)tableView
    willDisplayHeaderView:(UIView *)view
               forSection:(NSInteger)section {
    NSString *detail = host::textProperty([self _hostHeaderOf:section], key::headerDetailText);
    if (detail && [view isKindOfClass:[UITableViewHeaderFooterView class]])
        [[static_cast<UITableViewHeaderFooterView *>(view) detailTextLabel] setText:detail];
}

- (void)tableView:(UITableView *)tableView
    willDisplayFooterView:(UIView *)view
               forSection:(NSInteger)section {
    NSNumber *alignment = host::numberProperty([self _hostHeaderOf:section], key::footerAlignment);
    if (alignment && [view isKindOfClass:[UITableViewHeaderFooterView class]]) {
        [[static_cast<UITableViewHeaderFooterView *>(view) textLabel]
            setTextAlignment:static_cast<NSTextAlignment>([alignment integerValue])];
    }
}

- (BOOL)tableView:(UITableView *)tableView canEditRowAtIndexPath:(NSIndexPath *)indexPath {
    return NO;
}

- (BOOL)tableView:(UITableView *)tableView shouldHighlightRowAtIndexPath:(NSIndexPath *)indexPath {
    return host::takesTaps([self specifierAtIndexPath:indexPath]);
}

- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)indexPath {
    PSSpecifier *specifier = [[[self specifierAtIndexPath:indexPath] retain] autorelease];
    UIViewController *before = [[self navigationController] topViewController];
    if (host::takesTaps(specifier)) {
        [[self _hostCellOf:specifier] _hostTapped];
        [self _hostTapped:specifier];
    }
    if ([[self navigationController] topViewController] == before)
        [tableView deselectRowAtIndexPath:indexPath animated:YES];
}

@end
