// Loading the pickers' records, beside the bare queries: the same statements stepped with every column read
// and no object made. The wishes: contacts at most 2.0 times the bare query, recent calls (contacts first) at
// most 2.5 times both; ten times the rows at most twelve times the time; 600 bytes a record at the peak.
#include "databases/CallHistorySchema.h"
#include "databases/ContactSource.h"
#include "databases/RecentCallSource.h"
#include "databases/Statement.h"
#include "simulator/demo/DemoCalls.h"
#include "simulator/demo/DemoPeople.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <map>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr double now = 1425643200;

// The query of the contact source, which keeps its text to itself.
constexpr const char *phoneNumbers =
    "SELECT ABMultiValue.Value,ABPerson.First,ABPerson.Last,ABMultiValueLabel.value "
    "FROM ABPerson,ABMultiValue,ABMultiValueLabel WHERE ABPerson.ROWID=ABMultiValue.record_id "
    "AND ABMultiValue.label=ABMultiValueLabel.ROWID AND property=3 ORDER BY ABMultiValue.record_id DESC";

// A folder with an address book and both histories of so many people and calls, kept for the whole program.
class Databases {
public:
    explicit Databases(std::size_t count)
        : m_folder("/tmp/zv-benchmark-" + std::to_string(getpid()) + "-" + std::to_string(count)) {
        std::filesystem::create_directories(m_folder);
        std::vector<sim::Person> people = sim::makePeople(count, 1);
        fill(sim::AddressBookFile(addressBook()), people);
        std::vector<sim::Call> calls = sim::makeCalls(count, people, now, 1);
        fill(sim::CallHistoryFile(history(zv::CallHistorySchema::coreData), sim::CallHistoryForm::coreData),
             calls);
        fill(sim::CallHistoryFile(history(zv::CallHistorySchema::keyValue), sim::CallHistoryForm::keyValue),
             calls);
    }
    ~Databases() { std::filesystem::remove_all(m_folder); }

    [[nodiscard]] std::string addressBook() const { return m_folder / "AddressBook"; }
    [[nodiscard]] std::string history(zv::CallHistorySchema schema) const {
        return m_folder / (schema == zv::CallHistorySchema::coreData ? "CoreData" : "KeyValue");
    }

    static const Databases &of(std::size_t count) {
        static std::map<std::size_t, Databases> all;
        return all.try_emplace(count, count).first->second;
    }

private:
    template<typename File, typename Row>
    static void fill(File &&file, const std::vector<Row> &rows) {
        sim::SqlTransaction transaction(file.sql());
        for (const Row &row : rows)
            file.add(row);
        transaction.commit();
    }
    std::filesystem::path m_folder;
};

void stepAll(const std::string &path, const char *query, int columns) {
    zv::Database database(path.c_str());
    zv::Statement row(database, query);
    while (row.nextRow()) {
        for (int column = 0; column < columns; ++column)
            benchmark::DoNotOptimize(row.text(column));
    }
}

NSString *copyLabel(NSString *label) {
    return [label copy];
}

void loadContacts(const Databases &databases, NSMutableArray *records) {
    zv::appendContacts(databases.addressBook().c_str(), {zv::NameOrder::firstNameFirst, copyLabel}, records);
}

template<typename Work>
double secondsOf(Work work) {
    auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// A line of /proc/self/status in bytes: "VmRSS:" what the process holds in memory, "VmHWM:" the most that it
// held.
double memory(const std::string &line) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == line && status >> kilobytes)
            return kilobytes * 1024;
    }
    return 0;
}

// How far memory rises during a load, in a process of its own that has given back what it does not need.
template<typename Load>
double peakBytes(Load load) {
    int ends[2];
    if (pipe(ends) != 0)
        return 0;
    double peak = 0;
    if (pid_t child = fork(); child == 0) {
        malloc_trim(0);
        double before = memory("VmRSS:");
        std::ofstream("/proc/self/clear_refs") << 5; // the peak starts over: proc(5)
        load([[NSMutableArray alloc] init]);
        peak = memory("VmHWM:") - before;
        _exit(write(ends[1], &peak, sizeof peak) == sizeof peak ? 0 : 1);
    } else {
        waitpid(child, nullptr, 0);
    }
    if (read(ends[0], &peak, sizeof peak) != sizeof peak)
        peak = 0;
    close(ends[0]);
    close(ends[1]);
    return peak;
}

// Runs the bare queries and the load in turn, so that both meet the same machine; the time reported is the
// load's.
template<typename Bare, typename Load>
void compare(benchmark::State &state, Bare bare, Load load) {
    // SQLite itself takes some megabytes for pages and for sorting.
    double peak = peakBytes(load) - peakBytes([&](NSMutableArray *) { bare(); });
    double bareTime = 0, loadTime = 0;
    NSUInteger count = 1;
    for (auto _ : state) {
        @autoreleasepool {
            bareTime += secondsOf(bare);
            NSMutableArray *records = [[NSMutableArray alloc] init];
            double seconds = secondsOf([&] { load(records); });
            count = [records count];
            [records release];
            loadTime += seconds;
            state.SetIterationTime(seconds);
        }
    }
    state.counters["ratio"] = loadTime / bareTime;
    state.counters["records"] = double(count);
    state.counters["peak/loaded"] = peak / double(count);
}

void contacts(benchmark::State &state) {
    const Databases &databases = Databases::of(size_t(state.range(0)));
    compare(
        state, [&] { stepAll(databases.addressBook(), phoneNumbers, 4); },
        [&](NSMutableArray *records) { loadContacts(databases, records); });
}

void recentCalls(benchmark::State &state, zv::CallHistorySchema schema) {
    const Databases &databases = Databases::of(size_t(state.range(0)));
    std::string history = databases.history(schema);
    compare(
        state,
        [&] {
            stepAll(databases.addressBook(), phoneNumbers, 4);
            stepAll(history, zv::callHistoryQueries(schema).recentCalls, 2);
        },
        [&](NSMutableArray *records) {
            loadContacts(databases, records);
            zv::replaceWithRecentCalls(records, history.c_str(), schema, now);
        });
}

BENCHMARK(contacts)->RangeMultiplier(10)->Range(1000, 100000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(recentCalls, coreData, zv::CallHistorySchema::coreData)
    ->RangeMultiplier(10)
    ->Range(10000, 100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(recentCalls, keyValue, zv::CallHistorySchema::keyValue)
    ->RangeMultiplier(10)
    ->Range(10000, 100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
