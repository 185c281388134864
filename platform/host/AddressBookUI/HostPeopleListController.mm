// The list of the people picker, looking as on iOS 7 and 8.
#import "AddressBookUI/ABPeoplePicker+Host.h"
#import <UIKit/UIBarButtonItem.h>
#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>
#import <UIKit/UILabel.h>
#import <UIKit/UINavigationItem.h>
#import <UIKit/UISearchBar.h>

#include "AddressBookUI/PeopleIndex.h"
#include "AddressBookUI/Words.h"
#include "host/SystemText.h"
#include "host/Text.h"

using host::PeopleSection;
using host::PersonRecord;

struct HostPeopleListState {
    host::NameSettings settings;
    host::AddressBookState book = host::AddressBookState::missing;
    std::vector<PeopleSection> all;
    std::vector<PeopleSection> shown; ///< all, or one section of those found
    bool searching = false;
    host::Retained<UILabel *> emptyLine;
};

namespace {

constexpr CGFloat kSearchBarHeight = 44;
constexpr CGFloat kEmptyLineHeight = 88;

NSString *nameOf(const host::Person &person, const host::NameSettings &settings) {
    const std::u16string name = host::shownName(person, settings);
    return name.empty() ? host::pickerWord("No Name") : host::string(name);
}

/// The letters at the right edge: A to Z always, others where there are people under them.
NSArray *indexLetters(const std::vector<PeopleSection> &sections) {
    NSMutableArray *letters = [NSMutableArray arrayWithObject:UITableViewIndexSearch];
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter)
        [letters addObject:host::string(std::u16string{letter})];
    for (const PeopleSection &section : sections) {
        if (section.letter.front() > u'Z')
            [letters addObject:host::string(section.letter)];
    }
    [letters addObject:@"#"];
    return letters;
}

} // namespace

@interface HostPeopleListController () <UISearchBarDelegate>
@end

@implementation HostPeopleListController

- (id)initWithStyle:(UITableViewStyle)style {
    if ((self = [super initWithStyle:style])) {
        _list = new HostPeopleListState;
        self.title = host::pickerWord("All Contacts");
        self.navigationItem.rightBarButtonItem = host::pickerCancelButton(self);
    }
    return self;
}

- (void)dealloc {
    delete _list;
    [super dealloc];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    UISearchBar *search = [[UISearchBar alloc] initWithFrame:CGRectMake(0, 0, 320, kSearchBarHeight)];
    search.placeholder = host::string(host::systemText("Search"));
    search.delegate = self;
    self.tableView.tableHeaderView = search;
    [search release];
    [self _hostReadPeople];
}

- (void)_hostReadPeople {
    HostABAddressBook *book = [[HostABAddressBook new] autorelease];
    _list->settings = host::nameSettings();
    _list->book = book->book->state;
    _list->all = _list->shown = host::peopleByLetter(book->people, _list->settings);
    [self _hostShowEmptyLine];
}

/// Says why there is nobody to choose.
- (void)_hostShowEmptyLine {
    const bool unreadable =
        _list->book == host::AddressBookState::damaged || _list->book == host::AddressBookState::locked;
    if (!_list->shown.empty()) {
        self.tableView.tableFooterView = nil;
        return;
    }
    if (!_list->emptyLine) {
        UILabel *line = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 320, kEmptyLineHeight)] autorelease];
        line.textAlignment = NSTextAlignmentCenter;
        line.textColor = [UIColor grayColor];
        _list->emptyLine = line;
    }
    _list->emptyLine.get().text = host::pickerWord(_list->searching ? "No Results"
                                                   : unreadable     ? "Contacts Cannot Be Read"
                                                                    : "No Contacts");
    self.tableView.tableFooterView = _list->emptyLine;
}

- (HostABPerson *)_hostPersonAt:(NSIndexPath *)path {
    return _list->shown[static_cast<std::size_t>(path.section)].people[static_cast<std::size_t>(path.row)];
}

- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView {
    return static_cast<NSInteger>(_list->shown.size());
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return static_cast<NSInteger>(_list->shown[static_cast<std::size_t>(section)].people.size());
}

- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section {
    return _list->searching ? nil : host::string(_list->shown[static_cast<std::size_t>(section)].letter);
}

- (NSArray *)sectionIndexTitlesForTableView:(UITableView *)tableView {
    return _list->searching || _list->shown.empty() ? nil : indexLetters(_list->shown);
}

/// The section of the letter, or of the last letter before it that anybody is under.
- (NSInteger)tableView:(UITableView *)tableView
    sectionForSectionIndexTitle:(NSString *)title
                        atIndex:(NSInteger)index {
    const std::u16string letter = host::utf16(title);
    NSInteger found = -1;
    for (const PeopleSection &section : _list->shown) {
        const bool isBefore = section.letter != u"#" && (letter == u"#" || section.letter <= letter);
        if (isBefore || section.letter == letter)
            ++found;
    }
    return std::max(NSInteger(0), found);
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)path {
    UITableViewCell *cell = [tableView dequeueReusableCellWithIdentifier:@"Person"];
    if (!cell)
        cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                       reuseIdentifier:@"Person"] autorelease];
    cell.textLabel.text = nameOf(*[self _hostPersonAt:path]->person, _list -> settings);
    return cell;
}

- (void)tableView:(UITableView *)tableView didSelectRowAtIndexPath:(NSIndexPath *)path {
    [tableView deselectRowAtIndexPath:path animated:YES];
    auto *picker = static_cast<ABPeoplePickerNavigationController *>(self.navigationController);
    [picker _hostChoose:[[[self _hostPersonAt:path] retain] autorelease]];
}

- (void)searchBar:(UISearchBar *)searchBar textDidChange:(NSString *)text {
    _list->searching = text.length > 0;
    _list->shown = _list->all;
    if (_list->searching) {
        auto found = host::peopleNamed(text, _list->all, _list->settings);
        _list->shown.clear();
        if (!found.empty())
            _list->shown.push_back({u"", std::move(found)});
    }
    [self _hostShowEmptyLine];
    [self.tableView reloadData];
}

- (void)_hostCancelTapped {
    [static_cast<ABPeoplePickerNavigationController *>(self.navigationController) _hostCancel];
}

@end
