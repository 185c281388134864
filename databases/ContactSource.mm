#include "databases/ContactSource.h"

#include "databases/DialableForm.h"
#include "databases/Statement.h"
#import "databases/ZVPickerRecord.h"

namespace zv {

namespace {

// Property 3 is the phone number. The inner join leaves out numbers without a label.
constexpr const char *phoneNumbers =
    "SELECT ABMultiValue.Value,ABPerson.First,ABPerson.Last,ABMultiValueLabel.value "
    "FROM ABPerson,ABMultiValue,ABMultiValueLabel WHERE ABPerson.ROWID=ABMultiValue.record_id "
    "AND ABMultiValue.label=ABMultiValueLabel.ROWID AND property=3 ORDER BY ABMultiValue.record_id DESC";

enum Column { numberColumn, firstColumn, lastColumn, labelColumn };

} // namespace

void appendContacts(const char *path, const ContactRules &rules, NSMutableArray *records) {
    Database database(path);
    if (!database.isOpen())
        return;
    Statement row(database, phoneNumbers);
    DisplayNames names(rules.order);
    LabelTexts labels(rules.copyLabel);
    while (row.nextRow()) {
        DialableForm dialable(row.text(numberColumn));
        if (dialable.isEmpty())
            continue;
        NSString *number = [[NSString alloc] initWithUTF8String:dialable.bytes()];
        NSString *name = names.copyName(row.text(firstColumn), row.text(lastColumn));
        NSString *label = labels.text(row.text(labelColumn));
        ZVPickerRecord *record = [[ZVPickerRecord alloc] initWithNumber:number name:name type:label];
        [records addObject:record];
        [record release];
        [name release];
        [number release];
    }
}

} // namespace zv
