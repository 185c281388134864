#import "pickers/ZVSettingsSelectContactsViewController.h"

#import <AddressBook/AddressBook.h>

#include "databases/ContactSource.h"
#include "databases/DialableForm.h"
#include "settings/Paths.h"
#include "settings/RecordKeys.h"

namespace {

constexpr CGFloat titleSize = 16.0, detailSize = 15.0, typeSize = 14.0; // points

NSString *copyLocalizedLabel(NSString *label) {
    return (NSString *)ABAddressBookCopyLocalizedLabel((CFStringRef)label);
}

UILabel *newTypeLabel() {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    [label setFont:[UIFont systemFontOfSize:typeSize]];
    [label setTextColor:[UIColor grayColor]];
    [label setTextAlignment:NSTextAlignmentRight];
    return label;
}

UITableViewCell *newRecordCell(NSString *identifier) {
    UITableViewCell *cell = [[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                                   reuseIdentifier:identifier];
    [[cell textLabel] setFont:[UIFont boldSystemFontOfSize:titleSize]];
    [[cell detailTextLabel] setFont:[UIFont systemFontOfSize:detailSize]];
    [[cell detailTextLabel] setTextColor:[UIColor grayColor]];
    UILabel *type = newTypeLabel();
    [cell setAccessoryView:type];
    [type release];
    return cell;
}

void showRecord(UITableViewCell *cell, NSDictionary *record) {
    NSString *number = [record objectForKey:zv::key::number];
    NSString *name = [record objectForKey:zv::key::name];
    [[cell textLabel] setText:name ? name : number];
    [[cell detailTextLabel] setText:name ? number : nil];
    UILabel *type = (UILabel *)[cell accessoryView];
    [type setText:[record objectForKey:zv::key::type]];
    [type sizeToFit];
}

NSMutableDictionary *newNumberSet(NSArray *entries) {
    NSMutableDictionary *numbers = [[NSMutableDictionary alloc] init];
    for (NSDictionary *entry in entries) {
        if (NSString *number = [entry objectForKey:zv::key::number])
            [numbers setObject:[NSNull null] forKey:number];
    }
    return numbers;
}

UIImage *newImage(NSString *path) {
    return [[UIImage imageWithContentsOfFile:zv::located(path)] retain];
}

} // namespace

@implementation ZVSettingsSelectContactsViewController

@synthesize delegate = _delegate;

- (instancetype)initWithList:(NSArray *)list {
    self = [super initWithStyle:UITableViewStylePlain];
    if (!self)
        return nil;
    UIBarButtonItem *done =
        [[UIBarButtonItem alloc] initWithBarButtonSystemItem:UIBarButtonSystemItemDone
                                                      target:self
                                                      action:@selector(doneButtonPressed:)];
    [[self navigationItem] setRightBarButtonItem:done];
    [done release];
    _checkedImage = newImage(zv::path::checkedImage);
    _notcheckedImage = newImage(zv::path::notCheckedImage);
    _selects = newNumberSet(list);
    _list = [[NSMutableArray alloc] init];
    [self loadList];
    return self;
}

- (void)dealloc {
    [self setDelegate:nil];
    [_selects release];
    [_list release];
    [_checkedImage release];
    [_notcheckedImage release];
    [super dealloc];
}

- (NSString *)keypadString:(NSString *)text {
    return [NSString stringWithUTF8String:zv::DialableForm([text UTF8String]).bytes()];
}

- (void)loadList {
    NSString *path = zv::located(zv::path::addressBook);
    const zv::ContactRules rules = {zv::nameOrder(ABPersonGetSortOrdering()), copyLocalizedLabel};
    zv::appendContacts([path fileSystemRepresentation], rules, _list);
}

- (NSInteger)tableView:(UITableView *)table numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>([_list count]);
}

- (UITableViewCell *)tableView:(UITableView *)table cellForRowAtIndexPath:(NSIndexPath *)path {
    NSString *const identifier = @"Cell";
    UITableViewCell *cell = [table dequeueReusableCellWithIdentifier:identifier];
    if (!cell)
        cell = [newRecordCell(identifier) autorelease];
    NSDictionary *record = zv::recordAt(_list, [path row]);
    showRecord(cell, record);
    NSString *number = [record objectForKey:zv::key::number];
    const bool chosen = number && [_selects objectForKey:number];
    [[cell imageView] setImage:chosen ? _checkedImage : _notcheckedImage];
    return cell;
}

- (void)tableView:(UITableView *)table didSelectRowAtIndexPath:(NSIndexPath *)path {
    [table deselectRowAtIndexPath:path animated:NO];
    NSDictionary *record = zv::recordAt(_list, [path row]);
    NSString *number = [record objectForKey:zv::key::number];
    if (!number)
        return;
    UIImageView *mark = [[table cellForRowAtIndexPath:path] imageView];
    if ([_selects objectForKey:number]) {
        [mark setImage:_notcheckedImage];
        [_selects removeObjectForKey:number];
        [_delegate settingsSelectContactsViewControllerRemove:record];
    } else {
        [mark setImage:_checkedImage];
        [_selects setObject:[NSNull null] forKey:number];
        [_delegate settingsSelectContactsViewControllerAdd:record];
    }
}

- (void)doneButtonPressed:(id)sender {
    [_delegate settingsSelectContactsViewControllerDone:self];
    [self dismissViewControllerAnimated:YES
                             completion:^{
                             }];
}

@end
