// A person's card in the people picker: the name, then a row for each number or address that the picker
// displays.
#import "AddressBookUI/ABPeoplePicker+Host.h"
#import <UIKit/UIBarButtonItem.h>
#import <UIKit/UIFont.h>
#import <UIKit/UILabel.h>
#import <UIKit/UINavigationItem.h>

#include "AddressBook/Labels.h"
#include "AddressBookUI/PeopleIndex.h"
#include "AddressBookUI/Words.h"
#include "host/Device.h"
#include "host/Text.h"

#include <algorithm>
#include <iterator>

struct HostPersonCardState {
    host::Retained<HostABPerson *> person;
    struct Row {
        ABPropertyID property;
        host::LabelledValue value;
    };
    std::vector<Row> rows;
};

namespace {

constexpr CGFloat kNameHeight = 60, kNameLeft = 15, kNameSize = 24;

/// In the order of a card.
const ABPropertyID kShownProperties[] = {kABPersonPhoneProperty, kABPersonEmailProperty,
                                         kABPersonURLProperty};

bool isDisplayed(ABPropertyID property, NSArray *displayed) {
    return !displayed || [displayed containsObject:[NSNumber numberWithInt:property]];
}

std::vector<HostPersonCardState::Row> rowsOf(const host::Person &person, NSArray *displayed) {
    std::vector<HostPersonCardState::Row> rows;
    for (const ABPropertyID property : kShownProperties) {
        const auto values = person.values.find(property);
        if (values == person.values.end() || !isDisplayed(property, displayed))
            continue;
        for (const host::LabelledValue &value : values->second)
            rows.push_back({property, value});
    }
    return rows;
}

NSString *labelOf(const host::LabelledValue &value) {
    if (!value.label)
        return nil;
    const std::string stored = host::utf8(host::string(*value.label));
    return host::string(host::localizedLabel(stored, host::device().language));
}

} // namespace

@implementation HostPersonCardController

- (id)initWithPerson:(HostABPerson *)person displayedProperties:(NSArray *)properties {
    if ((self = [super initWithStyle:UITableViewStylePlain])) {
        _card = new HostPersonCardState{person, rowsOf(*person->person, properties)};
        self.title = host::pickerWord("Info");
        self.navigationItem.rightBarButtonItem = host::pickerCancelButton(self);
    }
    return self;
}

- (void)dealloc {
    delete _card;
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    UIView *header = [[UIView alloc] initWithFrame:CGRectMake(0, 0, 320, kNameHeight)];
    UILabel *name =
        [[UILabel alloc] initWithFrame:CGRectMake(kNameLeft, 0, 320 - 2 * kNameLeft, kNameHeight)];
    name.autoresizingMask = UIViewAutoresizingFlexibleWidth;
    name.font = [UIFont systemFontOfSize:kNameSize];
    const std::u16string shown = host::shownName(*_card->person.get()->person, host::nameSettings());
    name.text = shown.empty() ? host::pickerWord("No Name") : host::string(shown);
    [header addSubview:name];
    self.tableView.tableHeaderView = header;
    [name release];
    [header release];
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>(_card->rows.size());
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)path {
    UITableViewCell *cell = [tableView dequeueReusableCellWithIdentifier:@"Value"];
    if (!cell)
        cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleValue2
                                       reuseIdentifier:@"Value"] autorelease];
    const host::LabelledValue &value = _card->rows[static_cast<std::size_t>(path.row)].value;
    cell.textLabel.text = labelOf(value);
    cell.detailTextLabel.text = host::string(value.value);
    return cell;
}

- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)path {
    [tableView deselectRowAtIndexPath:path animated:YES];
    const HostPersonCardState::Row row = _card->rows[static_cast<std::size_t>(path.row)];
    auto *picker = static_cast<ABPeoplePickerNavigationController *>(self.navigationController);
    [picker _hostChoose:_card->person property:row.property value:row.value];
}

- (void)_hostCancelTapped {
    [static_cast<ABPeoplePickerNavigationController *>(self.navigationController) _hostCancel];
}

@end
