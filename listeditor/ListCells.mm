#include "listeditor/ListCells.h"

#include "listeditor/CallTime.h"
#include "listeditor/ListTexts.h"
#include "settings/Localization.h"
#include "settings/RecordKeys.h"

namespace zv {

namespace {

UITableViewCell *newCell(UITableViewCellStyle style, NSString *identifier) {
    UITableViewCell *cell = [[UITableViewCell alloc] initWithStyle:style reuseIdentifier:identifier];
    [cell setAccessoryType:UITableViewCellAccessoryDisclosureIndicator];
    return cell;
}

UITableViewCell *newEntryCell(NSString *identifier) {
    UITableViewCell *cell = newCell(UITableViewCellStyleSubtitle, identifier);
    [[cell detailTextLabel] setTextColor:[UIColor grayColor]];
    return cell;
}

// A single space stands for no name, too: other editors of these documents write one.
bool isName(NSString *text) {
    return [text length] > 0 && ![text isEqualToString:@" "];
}

NSString *actionText(ListKind kind, NSInteger row) {
    switch (row) {
    case addRow: return kind == ListKind::callTime ? nil : listTexts(kind).addTitle;
    case contactsRow: return @"Select Contacts";
    case recentCallsRow: return @"Select Call History";
    default: return nil;
    }
}

} // namespace

UITableViewCell *actionCell(UITableView *table, NSString *text) {
    NSString *const identifier = @"NameCell";
    UITableViewCell *cell = [table dequeueReusableCellWithIdentifier:identifier];
    if (!cell)
        cell = [newCell(UITableViewCellStyleDefault, identifier) autorelease];
    [[cell textLabel] setText:text];
    return cell;
}

UITableViewCell *entryCell(UITableView *table, NSDictionary *rowRecord) {
    NSString *const identifier = @"ListCell";
    UITableViewCell *cell = [table dequeueReusableCellWithIdentifier:identifier];
    if (!cell)
        cell = [newEntryCell(identifier) autorelease];
    NSString *name = [rowRecord objectForKey:key::name];
    NSString *number = [rowRecord objectForKey:key::number];
    const bool named = isName(name);
    [[cell textLabel] setText:named ? name : number];
    [[cell detailTextLabel] setText:named ? number : nil];
    return cell;
}

NSString *actionRowText(ListKind kind, NSInteger row, NSBundle *bundle) {
    NSString *text = actionText(kind, row);
    return text ? localized(text, bundle) : nil;
}

NSString *callTimeText(int seconds, NSBundle *bundle) {
    const CallTime time = callTime(seconds);
    NSString *hours = localized(@"hours", bundle), *minutes = localized(@"minutes", bundle);
    if (time.days == 0)
        return [NSString stringWithFormat:@"%d %@ %d %@", time.hours, hours, time.minutes, minutes];
    return [NSString stringWithFormat:@"%d %@ %d %@ %d %@", time.days, localized(@"days", bundle), time.hours,
                                      hours, time.minutes, minutes];
}

} // namespace zv
