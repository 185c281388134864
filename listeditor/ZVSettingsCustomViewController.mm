#import "listeditor/ZVSettingsCustomViewController.h"

#import <Preferences/PSSpecifier.h>

#import "pickers/ZVSettingsEditNumberViewController.h"
#import "pickers/ZVSettingsSelectCallHistoryViewController.h"
#import "rootpage/ZelvoraSettingsController.h"

#include "listeditor/CallTime.h"
#include "listeditor/EditorSetup.h"
#include "listeditor/ListCells.h"
#include "listeditor/ListDocument.h"
#include "settings/CommandLine.h"
#include "settings/Localization.h"
#include "settings/Notifications.h"
#include "settings/RecordKeys.h"
#include "settings/SystemCallHistory.h"

using zv::ListKind;

namespace {

constexpr CGFloat actionRowHeight = 44.0, entryRowHeight = 50.0; // points
constexpr CGFloat barsHeight = 64.0;                             // status and navigation bar, in points

NSArray *onlyRow(NSInteger row, NSInteger section) {
    return [NSArray arrayWithObject:[NSIndexPath indexPathForRow:row inSection:section]];
}

ListKind kindOf(int customId) {
    return static_cast<ListKind>(customId);
}

// The id of the list that a specifier opens; nil for one that opens none.
NSString *listIdOf(PSSpecifier *specifier) {
    id listId = [specifier propertyForKey:zv::listIdProperty];
    return [listId isKindOfClass:[NSString class]] ? listId : nil;
}

// Puts a record in place of another and shows it. The list may have been built anew since the row was tapped.
void replaceRow(NSMutableArray *list, UITableView *table, NSUInteger index, NSDictionary *record) {
    const auto row = static_cast<NSInteger>(index);
    if (!zv::recordAt(list, row))
        return;
    [list replaceObjectAtIndex:index withObject:record];
    [table reloadRowsAtIndexPaths:onlyRow(row, zv::entrySection)
                 withRowAnimation:UITableViewRowAnimationAutomatic];
}

void insertRowAtTop(NSMutableArray *list, UITableView *table, NSDictionary *record) {
    [list insertObject:record atIndex:0];
    [table insertRowsAtIndexPaths:onlyRow(0, zv::entrySection)
                 withRowAnimation:UITableViewRowAnimationAutomatic];
}

// Shows `modal` over `page`, in a navigation controller of its own.
void present(UIViewController *page, UIViewController *modal) {
    UINavigationController *stack = [[UINavigationController alloc] initWithRootViewController:modal];
    [[page navigationController] presentViewController:stack animated:YES completion:nil];
    [stack release];
}

void presentPicker(ZVSettingsCustomViewController *page, Class pickerClass, NSArray *list, NSString *title) {
    ZVSettingsSelectContactsViewController *picker = [[pickerClass alloc] initWithList:list];
    [picker setTitle:zv::localized(title, [page bundle])];
    [picker setDelegate:page];
    present(page, picker);
    [picker release];
}

void presentEditor(ZVSettingsCustomViewController *page, NSDictionary *editInfo, NSString *title) {
    ZVSettingsEditNumberViewController *editor =
        [[ZVSettingsEditNumberViewController alloc] initWithEditInfos:editInfo];
    [editor setTitle:title];
    [editor setDelegate:page];
    present(page, editor);
    [editor release];
}

} // namespace

@implementation ZVSettingsCustomViewController

// `view` is still nil here, so the table starts with an empty frame; whoever shows the page sizes it.
- (instancetype)init {
    self = [super init];
    if (!self)
        return nil;
    _tableView = [[UITableView alloc] initWithFrame:[[self view] frame] style:UITableViewStyleGrouped];
    [_tableView setContentInset:UIEdgeInsetsMake(barsHeight, 0, 0, 0)];
    [_tableView setDataSource:self];
    [_tableView setDelegate:self];
    return self;
}

- (void)dealloc {
    [_tableView setDataSource:nil];
    [_tableView setDelegate:nil];
    [_tableView release];
    [_saveplist release];
    [_defaultplist release];
    [_list release];
    [super dealloc];
}

- (NSBundle *)bundle {
    return [[ZelvoraSettingsController sharedInstance] bundle];
}

- (UIView *)view {
    return _tableView;
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if (kindOf(_customId) == ListKind::callTime || [[self navigationItem] rightBarButtonItem])
        return;
    UIBarButtonItem *edit = [[UIBarButtonItem alloc] initWithTitle:zv::localized(@"Edit", [self bundle])
                                                             style:UIBarButtonItemStylePlain
                                                            target:self
                                                            action:@selector(editButtonPressed:)];
    [[self navigationItem] setRightBarButtonItem:edit];
    [edit release];
}

// Only the first specifier chooses the list.
- (void)setSpecifier:(PSSpecifier *)specifier {
    [super setSpecifier:specifier];
    [self setTitle:[specifier name]];
    if (_list)
        return;
    _list = [[NSMutableArray alloc] init];
    NSString *listId = listIdOf(specifier);
    const zv::ListKindEntry &entry = zv::listKindWithId([listId UTF8String]);
    _customId = static_cast<int>(entry.kind);
    if (!entry.hasDocument)
        return;
    _saveplist = [zv::ListDocument::userPath(listId) retain];
    _defaultplist = [zv::ListDocument::defaultPath(listId) retain];
    [self reloadPlistDictionary:[self getPlistDictionary]];
}

- (NSInteger)numberOfSectionsInTableView:(UITableView *)table {
    return kindOf(_customId) == ListKind::callTime ? 1 : 2;
}

- (NSInteger)tableView:(UITableView *)table numberOfRowsInSection:(NSInteger)section {
    switch (section) {
    case zv::actionSection: return zv::actionRowCount(kindOf(_customId));
    case zv::entrySection: return static_cast<NSInteger>([_list count]);
    default: return 0;
    }
}

- (CGFloat)tableView:(UITableView *)table heightForRowAtIndexPath:(NSIndexPath *)path {
    return [path section] == zv::entrySection ? entryRowHeight : actionRowHeight;
}

- (BOOL)tableView:(UITableView *)table canEditRowAtIndexPath:(NSIndexPath *)path {
    return [path section] == zv::entrySection;
}

- (UITableViewCellEditingStyle)tableView:(UITableView *)table
           editingStyleForRowAtIndexPath:(NSIndexPath *)path {
    return [path section] == zv::entrySection ? UITableViewCellEditingStyleDelete
                                              : UITableViewCellEditingStyleNone;
}

- (void)tableView:(UITableView *)table
    commitEditingStyle:(UITableViewCellEditingStyle)style
     forRowAtIndexPath:(NSIndexPath *)path {
    NSDictionary *record = zv::recordAt(_list, [path row]);
    if (style != UITableViewCellEditingStyleDelete || [path section] != zv::entrySection || !record)
        return;
    zv::ListDocument(_saveplist, _defaultplist).remove([record objectForKey:zv::key::number]);
    [_list removeObjectAtIndex:[path row]];
    [table deleteRowsAtIndexPaths:[NSArray arrayWithObject:path]
                 withRowAnimation:UITableViewRowAnimationAutomatic];
    [self settingsChanged];
}

- (UITableViewCell *)tableView:(UITableView *)table cellForRowAtIndexPath:(NSIndexPath *)path {
    const ListKind kind = kindOf(_customId);
    if ([path section] == zv::entrySection)
        return zv::entryCell(table, zv::recordAt(_list, [path row]));
    if ([path section] != zv::actionSection)
        return nil;
    if (kind == ListKind::callTime && [path row] == zv::addRow)
        return zv::actionCell(table, zv::callTimeText([self getCallLifetime], [self bundle]));
    return zv::actionCell(table, zv::actionRowText(kind, [path row], [self bundle]));
}

- (void)tableView:(UITableView *)table didSelectRowAtIndexPath:(NSIndexPath *)path {
    [table deselectRowAtIndexPath:path animated:NO];
    _selectedRow = static_cast<unsigned long long>([path row]);
    const ListKind kind = kindOf(_customId);
    const NSInteger action = [path section] == zv::actionSection ? [path row] : zv::addRow;
    if (zv::holdsPhoneNumbers(kind) && action == zv::recentCallsRow)
        return presentPicker(self, [ZVSettingsSelectCallHistoryViewController class], _list,
                             @"Select Call History");
    if (zv::holdsPhoneNumbers(kind) && action == zv::contactsRow)
        return presentPicker(self, [ZVSettingsSelectContactsViewController class], _list, @"Select Contacts");
    NSBundle *bundle = [self bundle];
    NSDictionary *entry = [path section] == zv::entrySection ? zv::recordAt(_list, [path row]) : nil;
    NSDictionary *info = kind == ListKind::callTime ? zv::callTimeEditInfo([self getCallLifetime], bundle)
                                                    : zv::editInfo(kind, entry, bundle);
    presentEditor(self, info, zv::editorTitle(kind, path, bundle));
}

// The styles are meant so: plain while the button reads Done, emphasised once editing has ended.
- (void)editButtonPressed:(id)sender {
    const BOOL editing = ![_tableView isEditing];
    [_tableView setEditing:editing animated:YES];
    UIBarButtonItem *button = [[self navigationItem] rightBarButtonItem];
    [button setTitle:zv::localized(editing ? @"Done" : @"Edit", [self bundle])];
    [button setStyle:editing ? UIBarButtonItemStylePlain : UIBarButtonItemStyleDone];
}

- (void)settingsSelectContactsViewControllerAdd:(NSDictionary *)record {
    NSString *number = zv::recordText(record, zv::key::number);
    if (!number)
        return;
    NSString *name = zv::recordText(record, zv::key::name);
    const zv::ListDocument document(_saveplist, _defaultplist);
    [self reloadPlistDictionary:document.put(number, name ? name : @"")];
}

- (void)settingsSelectContactsViewControllerRemove:(NSDictionary *)record {
    NSString *number = zv::recordText(record, zv::key::number);
    if (!number)
        return;
    const zv::ListDocument document(_saveplist, _defaultplist);
    [self reloadPlistDictionary:document.remove(number)];
}

- (void)settingsSelectContactsViewControllerDone:(ZVSettingsSelectContactsViewController *)picker {
    [self reloadPlistDictionary:[self getPlistDictionary]];
    [_tableView reloadData];
    [self settingsChanged];
}

// A new entry goes to the top and an edited one stays in its place until the list is built anew, so that a
// person sees where it went.
- (void)settingsEditNumberViewControllerSaved:(ZVSettingsEditNumberViewController *)editor {
    NSString *number = zv::recordText([editor texts], zv::key::number);
    if ([number length] == 0)
        return;
    if (kindOf(_customId) == ListKind::callTime) {
        [self setCallLifetime:zv::secondsInMinutes([number intValue])];
        [_tableView reloadRowsAtIndexPaths:onlyRow(zv::addRow, zv::actionSection)
                          withRowAnimation:UITableViewRowAnimationAutomatic];
        return;
    }
    NSString *name = zv::recordText([editor texts], zv::key::name);
    number = zv::cutEntryText(number);
    name = name ? zv::cutEntryText(name) : @"";
    NSDictionary *row = [zv::newRowRecord(number, name) autorelease];
    const zv::ListDocument document(_saveplist, _defaultplist);
    if (NSString *oldNumber = [editor getNumberKey]) {
        document.replace(oldNumber, number, name);
        replaceRow(_list, _tableView, _selectedRow, row);
    } else {
        document.put(number, name);
        insertRowAtTop(_list, _tableView, row);
    }
    [self settingsChanged];
}

- (void)settingsChanged {
    if (const char *notification = zv::listKindEntry(kindOf(_customId)).notification)
        zv::postNotification(notification);
    else
        [[ZelvoraSettingsController sharedInstance] settingsChanged];
}

- (int)getCallLifetime {
    return zv::systemCallHistory().lifetime();
}

- (void)setCallLifetime:(int)seconds {
    if (zv::systemCallHistorySchema() == zv::CallHistorySchema::coreData)
        zv::systemCallHistory().setLifetime(seconds);
    else
        zv::runCommand([NSString stringWithFormat:@"%@ -l %d", zv::path::helperTool, seconds]);
}

- (void)reloadPlistDictionary:(NSDictionary *)document {
    zv::rebuildRows(_list, document);
}

- (NSMutableDictionary *)getPlistDictionary {
    return zv::ListDocument(_saveplist, _defaultplist).read();
}

@end
