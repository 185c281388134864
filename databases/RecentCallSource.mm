#include "databases/RecentCallSource.h"

#include "databases/DialableForm.h"
#include "databases/MomentText.h"
#include "databases/Statement.h"
#import "databases/ZVPickerRecord.h"
#include "settings/RecordKeys.h"

namespace zv {

namespace {

constexpr NSTimeInterval minute = 60;
constexpr NSTimeInterval day = 86400;

enum Column { numberColumn, dateColumn };

NSDateFormatter *makeShortDateFormatter() {
    NSDateFormatter *formatter = [[NSDateFormatter alloc] init];
    [formatter setDateStyle:NSDateFormatterShortStyle];
    [formatter setTimeStyle:NSDateFormatterNoStyle];
    return formatter;
}

NSDateFormatter *makeTimeFormatter() {
    NSDateFormatter *formatter = [[NSDateFormatter alloc] init];
    [formatter setDateFormat:@"HH:mm"];
    return formatter;
}

// Writes the dates of calls as the database stores them.
class CallDates {
public:
    CallDates(CallHistorySchema schema, NSTimeInterval now)
        : m_toReferenceDate(schema == CallHistorySchema::coreData ? 0 : -NSTimeIntervalSince1970),
          m_now(now) {}

    // nil for a call without a date; a date that is not a number counts as 0.
    NSString *text(const char *stored) {
        if (!stored)
            return nil;
        NSString *digits = [[NSString alloc] initWithUTF8String:stored];
        double raw = [digits doubleValue];
        [digits release];
        return (m_now - raw < day ? m_times : m_dates).text(raw + m_toReferenceDate);
    }

private:
    NSTimeInterval m_toReferenceDate;
    NSTimeInterval m_now;
    MomentText m_dates{makeShortDateFormatter(), day};
    MomentText m_times{makeTimeFormatter(), minute};
};

// Numbers and their contact records; a number that has had its newest call is mapped to NSNull.
class KnownNumbers {
public:
    explicit KnownNumbers(NSArray *contacts)
        : m_records([[NSMutableDictionary alloc] initWithCapacity:[contacts count]]) {
        for (NSDictionary *record in contacts) {
            NSString *number = [record objectForKey:key::number];
            if (number)
                [m_records setObject:record forKey:number];
        }
    }
    ~KnownNumbers() { [m_records release]; }
    KnownNumbers(const KnownNumbers &) = delete;
    KnownNumbers &operator=(const KnownNumbers &) = delete;

    // The record for a number's newest call, owned by the caller; nil where the number has had it already.
    NSMutableDictionary *takeRecord(NSString *number) {
        id known = [m_records objectForKey:number];
        if (known == m_taken)
            return nil;
        [known retain];
        [m_records setObject:m_taken forKey:number];
        return known ? known : [[ZVPickerRecord alloc] initWithNumber:number name:nil type:nil];
    }

private:
    NSMutableDictionary *m_records;
    id m_taken = [NSNull null];
};

void appendCall(NSMutableArray *records, NSMutableDictionary *record, NSString *moment) {
    if (moment)
        [record setObject:moment forKey:key::type];
    [records addObject:record];
}

} // namespace

void replaceWithRecentCalls(NSMutableArray *records, const char *path, CallHistorySchema schema,
                            NSTimeInterval now) {
    KnownNumbers numbers(records);
    [records removeAllObjects];
    Database database(path);
    if (!database.isOpen())
        return;
    CallDates dates(schema, now);
    Statement row(database, callHistoryQueries(schema).recentCalls);
    while (row.nextRow()) {
        DialableForm dialable(row.text(numberColumn));
        if (dialable.isEmpty())
            continue;
        NSString *number = [[NSString alloc] initWithUTF8String:dialable.bytes()];
        NSMutableDictionary *record = numbers.takeRecord(number);
        if (record)
            appendCall(records, record, dates.text(row.text(dateColumn)));
        [record release];
        [number release];
    }
}

} // namespace zv
