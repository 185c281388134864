// The call-history control on a history of 100,000 calls, beside bare SQLite statements of the same texts.
// The wish: at most 1.1 times their time. For the record: what the trigger adds to the deletion of 10,000
// calls.
#include "databases/CallHistory.h"
#include "simulator/demo/CallHistoryFile.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <filesystem>
#include <unistd.h>

namespace {

constexpr int calls = 100000;
constexpr int deleted = 10000;

class History {
public:
    History() : m_path("/tmp/zv-benchmark-" + std::to_string(getpid()) + ".storedata") {
        sim::CallHistoryFile file(m_path, sim::CallHistoryForm::coreData);
        sim::SqlTransaction transaction(file.sql());
        for (int index = 0; index < calls; ++index)
            file.add({.address = std::string("555-0100"), .moment = 1425600000.0 + index, .duration = 60});
        transaction.commit();
    }
    ~History() { std::filesystem::remove(m_path); }

    [[nodiscard]] const char *path() const { return m_path.c_str(); }
    [[nodiscard]] zv::CallHistory control() const { return {path(), zv::CallHistorySchema::coreData}; }

    // The texts of the statements with which SQLite itself keeps what an install made.
    static std::string textOf(const char *path, const char *name) {
        return sim::SqlFile(path).value(std::string("SELECT sql FROM sqlite_master WHERE name = '") + name +
                                        "'");
    }

private:
    std::string m_path;
};

void runBare(const char *path, std::initializer_list<std::string> statements) {
    sqlite3 *database = nullptr;
    sqlite3_open(path, &database);
    for (const std::string &text : statements) {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(database, text.c_str(), -1, &statement, nullptr);
        sqlite3_step(statement);
        sqlite3_finalize(statement);
    }
    sqlite3_close(database);
}

template<typename Work>
double secondsOf(Work work) {
    auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Runs both in turn; the time reported is the control's.
template<typename Bare, typename Control>
void compare(benchmark::State &state, Bare bare, Control control) {
    double bareTime = 0, controlTime = 0;
    for (auto _ : state) {
        bareTime += secondsOf(bare);
        double seconds = secondsOf(control);
        controlTime += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["ratio"] = controlTime / bareTime;
}

void installAndUninstall(benchmark::State &state) {
    History history;
    (void)history.control().install(2000);
    const std::string properties = History::textOf(history.path(), "ZVZCALLDBPROPERTIES");
    const std::string records = History::textOf(history.path(), "ZVZCALLRECORD");
    const std::string trigger = History::textOf(history.path(), "ZVSAVEZCALLRECORD");
    (void)history.control().uninstall();
    compare(
        state,
        [&] {
            runBare(history.path(),
                    {properties, "DELETE FROM ZVZCALLDBPROPERTIES WHERE Z_KEY = 'call_history_limit'",
                     "INSERT INTO ZVZCALLDBPROPERTIES (Z_KEY, Z_VALUE) VALUES ('call_history_limit', 2000)",
                     records, trigger});
            runBare(history.path(), {"DROP TRIGGER ZVSAVEZCALLRECORD", "DROP TABLE ZVZCALLRECORD",
                                     "DROP TABLE ZVZCALLDBPROPERTIES"});
        },
        [&] {
            (void)history.control().install(2000);
            (void)history.control().uninstall();
        });
}

void readLimit(benchmark::State &state) {
    History history;
    (void)history.control().install(2000);
    const char *query = zv::callHistoryQueries(zv::CallHistorySchema::coreData).limit;
    compare(
        state, [&] { runBare(history.path(), {query}); },
        [&] { benchmark::DoNotOptimize(history.control().limit()); });
}

void readLifetime(benchmark::State &state) {
    History history;
    const char *query = zv::callHistoryQueries(zv::CallHistorySchema::coreData).lifetime;
    compare(
        state, [&] { runBare(history.path(), {query}); },
        [&] { benchmark::DoNotOptimize(history.control().lifetime()); });
}

void deleteCalls(benchmark::State &state, bool extended) {
    for (auto _ : state) {
        History history;
        if (extended)
            (void)history.control().install(2000);
        sim::SqlFile system(history.path());
        state.SetIterationTime(secondsOf(
            [&] { system.script("DELETE FROM ZCALLRECORD WHERE Z_PK <= " + std::to_string(deleted)); }));
    }
}

BENCHMARK(installAndUninstall)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readLimit)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(readLifetime)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(deleteCalls, withoutTrigger, false)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(deleteCalls, withTrigger, true)
    ->UseManualTime()
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

} // namespace
