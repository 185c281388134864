#include "databases/RecentCallSource.h"

#include "databases/DialableForm.h"
#include "databases/KnownNumbers.h"
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

// Digits with or without a point, as the databases store dates, of so few digits that the division is exact;
// false for any other text.
bool readPlainNumber(const char *text, double *number) {
    constexpr int mostDigits = 15;
    double digits = 0, scale = 1;
    int count = 0;
    bool afterPoint = false;
    for (; *text != '\0'; ++text) {
        if (*text == '.' && !afterPoint) {
            afterPoint = true;
            continue;
        }
        if (*text < '0' || *text > '9' || ++count > mostDigits)
            return false;
        digits = digits * 10 + (*text - '0');
        scale *= afterPoint ? 10 : 1;
    }
    *number = digits / scale;
    return count > 0;
}

double numberOf(const char *text) {
    double number = 0;
    if (readPlainNumber(text, &number))
        return number;
    NSString *characters = [[NSString alloc] initWithUTF8String:text];
    number = [characters doubleValue];
    [characters release];
    return number;
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
        const double raw = numberOf(stored);
        return (m_now - raw < day ? m_times : m_dates).text(raw + m_toReferenceDate);
    }

private:
    NSTimeInterval m_toReferenceDate;
    NSTimeInterval m_now;
    MomentText m_dates{makeShortDateFormatter(), day};
    MomentText m_times{makeTimeFormatter(), minute};
};

// The record for a number's newest call, owned by the caller; nil where the number has had it already.
NSMutableDictionary *newRecord(KnownNumbers &numbers, const DialableForm &number) {
    NSMutableDictionary *record = nil;
    if (numbers.take(number.bytes(), number.length(), &record) != KnownNumbers::Answer::stranger)
        return record;
    NSString *text = [[NSString alloc] initWithUTF8String:number.bytes()];
    record = [[ZVPickerRecord alloc] initWithNumber:text name:nil type:nil];
    [text release];
    return record;
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
        NSMutableDictionary *record = newRecord(numbers, DialableForm(row.text(numberColumn)));
        if (!record)
            continue;
        if (NSString *moment = dates.text(row.text(dateColumn)))
            [record setObject:moment forKey:key::type];
        [records addObject:record];
        [record release];
    }
}

} // namespace zv
