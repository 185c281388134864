#import "pickers/ZVSettingsEditNumberViewController.h"

#include "pickers/EditInfo.h"
#include "settings/RecordKeys.h"

namespace {

constexpr CGFloat fieldLeft = 15.0, fieldHeight = 44.0, fieldsMargins = 20.0, fontSize = 17.0; // points

UIBarButtonItem *newBarButton(UIBarButtonSystemItem kind, id target, SEL action) {
    return [[UIBarButtonItem alloc] initWithBarButtonSystemItem:kind target:target action:action];
}

// One of the two rows, and where the edit info says what it shows.
struct FieldRow {
    NSString *cell;
    NSString *text;
    NSString *placeholder;
    NSString *keyboardType; // nil: the keyboard stays
};

constexpr FieldRow nameRow = {@"NameCell", zv::key::name, zv::editinfo::namePlaceholder, nullptr};
constexpr FieldRow numberRow = {@"NumberCell", zv::key::number, zv::editinfo::numberPlaceholder,
                                zv::editinfo::numberKeyboardType};

void showEntry(UITextField *field, const FieldRow &row, NSDictionary *editInfo) {
    [field setText:[editInfo objectForKey:row.text]];
    [field setPlaceholder:[editInfo objectForKey:row.placeholder]];
    NSNumber *keyboardType = row.keyboardType ? [editInfo objectForKey:row.keyboardType] : nil;
    if (keyboardType)
        [field setKeyboardType:static_cast<UIKeyboardType>([keyboardType integerValue])];
}

UITableViewCell *newFieldCell(NSString *identifier) {
    UITableViewCell *cell = [[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                                   reuseIdentifier:identifier];
    [cell setSelectionStyle:UITableViewCellSelectionStyleNone];
    return cell;
}

// A text field inside `cell`, which owns it.
UITextField *addField(UITableViewCell *cell, UITableView *table) {
    const CGFloat width = [table frame].size.width - fieldsMargins;
    UITextField *field =
        [[[UITextField alloc] initWithFrame:CGRectMake(fieldLeft, 0, width, fieldHeight)] autorelease];
    [field setFont:[UIFont systemFontOfSize:fontSize]];
    [field setBackgroundColor:[UIColor clearColor]];
    [field setAdjustsFontSizeToFitWidth:YES];
    [field setClearButtonMode:UITextFieldViewModeWhileEditing];
    [[cell contentView] addSubview:field];
    return field;
}

} // namespace

@implementation ZVSettingsEditNumberViewController

@synthesize delegate = _delegate;
@synthesize texts = _texts;
@synthesize numberKey = _numberKey;

- (instancetype)initWithEditInfos:(NSDictionary *)editInfo {
    self = [super initWithStyle:UITableViewStyleGrouped];
    if (!self)
        return nil;
    _editInfo = [editInfo retain];
    UIBarButtonItem *cancel =
        newBarButton(UIBarButtonSystemItemCancel, self, @selector(cancelButtonPressed:));
    UIBarButtonItem *save = newBarButton(UIBarButtonSystemItemSave, self, @selector(saveButtonPressed:));
    [[self navigationItem] setLeftBarButtonItem:cancel];
    [[self navigationItem] setRightBarButtonItem:save];
    [cancel release];
    [save release];
    return self;
}

// `_numberKey` is not released, on purpose: nobody sets it.
- (void)dealloc {
    [self setDelegate:nil];
    [_editInfo release];
    [_texts release];
    [super dealloc];
}

- (NSInteger)tableView:(UITableView *)table numberOfRowsInSection:(NSInteger)section {
    return [_editInfo objectForKey:zv::editinfo::noName] ? 1 : 2;
}

// A cell that comes back from the table keeps what was typed in it: it is returned as it is, on purpose.
- (UITableViewCell *)tableView:(UITableView *)table cellForRowAtIndexPath:(NSIndexPath *)path {
    const bool hasName = ![_editInfo objectForKey:zv::editinfo::noName];
    const bool isName = hasName && [path row] == 0;
    const FieldRow &row = isName ? nameRow : numberRow;
    UITableViewCell *cell = [table dequeueReusableCellWithIdentifier:row.cell];
    if (cell)
        return cell;
    cell = [newFieldCell(row.cell) autorelease];
    UITextField **field = isName ? &_nameTextField : &_numberTextField;
    if (!*field) {
        *field = addField(cell, table);
        if (!isName)
            [*field setKeyboardType:UIKeyboardTypeNumberPad];
        if (isName || !hasName)
            [*field becomeFirstResponder];
    }
    showEntry(*field, row, _editInfo);
    return cell;
}

// The property's getter answers from the edit info, on purpose; what its setter stores is read by nobody.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wunused-property-ivar"
- (NSString *)getNumberKey {
    return [_editInfo objectForKey:zv::editinfo::isNew] ? nil : [_editInfo objectForKey:zv::key::number];
}
#pragma clang diagnostic pop

- (void)saveButtonPressed:(id)sender {
    if (_texts)
        [_texts removeAllObjects];
    else
        _texts = [[NSMutableDictionary alloc] init];
    if (NSString *name = [_nameTextField text])
        [_texts setObject:name forKey:zv::key::name];
    if (NSString *number = [_numberTextField text])
        [_texts setObject:number forKey:zv::key::number];
    [_delegate settingsEditNumberViewControllerSaved:self];
    [self dismissViewControllerAnimated:YES
                             completion:^{
                             }];
}

- (void)cancelButtonPressed:(id)sender {
    if ([_delegate respondsToSelector:@selector(settingsEditNumberViewControllerCancel)])
        [_delegate settingsEditNumberViewControllerCancel];
    [self dismissViewControllerAnimated:YES
                             completion:^{
                             }];
}

@end
