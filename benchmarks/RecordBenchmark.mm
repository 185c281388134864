// Loading the pickers' records beside the bare queries: the same statements stepped with every column read
// and no object made; and the memory that a record takes at the peak of a load.
#include "Child.h"
#include "Databases.h"

#include "databases/ContactSource.h"
#include "databases/RecentCallSource.h"

#include <stdexcept>

namespace {

using bench::Work;
using bench::Works;
using zv::CallHistorySchema;

constexpr bench::Limits contactLimits{.aim = 2.0, .bar = 3.0};
constexpr bench::Limits callLimits{.aim = 2.5, .bar = 4.0};
constexpr bench::Limits memoryLimits{.aim = 600, .bar = 800};
constexpr std::size_t few = 240; // the demo phone's

// The query of the contact source, which keeps its text to itself.
constexpr const char *phoneNumbers =
    "SELECT ABMultiValue.Value,ABPerson.First,ABPerson.Last,ABMultiValueLabel.value "
    "FROM ABPerson,ABMultiValue,ABMultiValueLabel WHERE ABPerson.ROWID=ABMultiValue.record_id "
    "AND ABMultiValue.label=ABMultiValueLabel.ROWID AND property=3 ORDER BY ABMultiValue.record_id DESC";

NSString *copyLabel(NSString *label) {
    return [label copy];
}

/// Fills a list as a picker does.
using Load = std::function<void(NSMutableArray *records)>;

Load contacts(std::size_t count) {
    return [book = bench::addressBook(count)](NSMutableArray *records) {
        zv::appendContacts(book.c_str(), {zv::NameOrder::firstNameFirst, copyLabel}, records);
    };
}

// The contacts come first, as in the picker.
Load recentCalls(std::size_t count, CallHistorySchema schema) {
    return [loadContacts = contacts(count), history = bench::callHistory(count, schema),
            schema](NSMutableArray *records) {
        loadContacts(records);
        zv::replaceWithRecentCalls(records, history.c_str(), schema, bench::now);
    };
}

std::size_t recordsOf(const Load &load) {
    NSMutableArray *records = [NSMutableArray array];
    load(records);
    return [records count];
}

Work asWork(const Load &load) {
    return [load] { bench::use((const void *)recordsOf(load)); };
}

Works contactWorks(std::size_t count) {
    return {asWork(contacts(count)),
            [book = bench::addressBook(count)] { bench::stepAll(book, phoneNumbers); }};
}

Works callWorks(std::size_t count, CallHistorySchema schema) {
    return {asWork(recentCalls(count, schema)),
            [bareContacts = contactWorks(count).bare, history = bench::callHistory(count, schema), schema] {
                bareContacts();
                bench::stepAll(history, zv::callHistoryQueries(schema).recentCalls);
            }};
}

double peakOf(const Work &before, const Work &work) {
    const auto bytes = bench::peakBytes(before, work);
    if (!bytes)
        throw std::runtime_error("a load came to a bad end");
    return *bytes;
}

// The memory of SQLite's own pages and sorting is the bare query's, and not counted.
double bytesARecord(const Load &small, const Load &load, const Work &bare) {
    const double bytes = peakOf(asWork(small), asWork(load)) - peakOf(bare, bare);
    return bytes / static_cast<double>(recordsOf(load));
}

double bytesAContact(std::size_t count) {
    return bytesARecord(contacts(few), contacts(count), contactWorks(count).bare);
}

double bytesACall(std::size_t count, CallHistorySchema schema) {
    return bytesARecord(recentCalls(few, schema), recentCalls(count, schema), callWorks(count, schema).bare);
}

const bench::Ratio thousandContacts("Contacts: load 1,000", contactLimits, [] { return contactWorks(1000); });
const bench::Ratio tenThousandContacts("Contacts: load 10,000", contactLimits,
                                       [] { return contactWorks(10'000); });
const bench::Ratio manyContacts("Contacts: load 100,000", contactLimits,
                                [] { return contactWorks(100'000); });
const bench::Amount contactMemory("Contacts: memory for each of 10,000", "bytes", memoryLimits,
                                  [] { return bytesAContact(10'000); });
const bench::Amount manyContactsMemory("Contacts: memory for each of 100,000", "bytes", memoryLimits,
                                       [] { return bytesAContact(100'000); });

const bench::Ratio calls("Recent calls: load 10,000", callLimits,
                         [] { return callWorks(10'000, CallHistorySchema::coreData); });
const bench::Ratio manyCalls("Recent calls: load 100,000", callLimits,
                             [] { return callWorks(100'000, CallHistorySchema::coreData); });
const bench::Ratio olderCalls("Recent calls: load 10,000, older system", callLimits,
                              [] { return callWorks(10'000, CallHistorySchema::keyValue); });
const bench::Ratio manyOlderCalls("Recent calls: load 100,000, older system", callLimits,
                                  [] { return callWorks(100'000, CallHistorySchema::keyValue); });
const bench::Amount callMemory("Recent calls: memory for each of 10,000", "bytes", memoryLimits,
                               [] { return bytesACall(10'000, CallHistorySchema::coreData); });
const bench::Amount manyCallsMemory("Recent calls: memory for each of 100,000", "bytes", memoryLimits,
                                    [] { return bytesACall(100'000, CallHistorySchema::coreData); });

} // namespace
