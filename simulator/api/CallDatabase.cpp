#include "simulator/api/CallDatabase.h"

#include "databases/CallHistory.h"
#include "simulator/demo/SqlFile.h"

#include <cstdlib>
#include <filesystem>

namespace sim {

using Json = nlohmann::json;

namespace {

/// Core Data counts seconds from 2001-01-01 00:00 UTC.
constexpr double coreDataEpoch = 978'307'200;
constexpr int mostShown = 50;

/// What the two forms of the database name differently.
struct Form {
    const char *name;
    const char *table, *row, *number, *date;
    double epoch; ///< seconds from 1970 to the zero of its dates
    const char *kept;
};

constexpr Form coreData = {"coreData", "ZCALLRECORD", "Z_PK",         "ZADDRESS",
                           "ZDATE",    coreDataEpoch, "ZVZCALLRECORD"};
constexpr Form keyValue = {"keyValue", "call", "ROWID", "address", "date", 0, nullptr};

bool hasTable(SqlFile &file, const std::string &name) {
    return file.value("SELECT count(*) FROM sqlite_master WHERE name = '" + name + "'") == "1";
}

std::int64_t count(SqlFile &file, const char *table) {
    if (!table || !hasTable(file, table))
        return 0;
    return std::atoll(file.value("SELECT count(*) FROM " + std::string(table)).c_str());
}

/// The newest rows of a table of calls.
Json newest(SqlFile &file, const Form &form, const char *table) {
    Json calls = Json::array();
    if (!table || !hasTable(file, table))
        return calls;
    const std::string columns = std::string(form.row) + "," + form.number + "," + form.date;
    const std::string sql = "SELECT json_array(" + columns + ") FROM " + table + " ORDER BY " + form.date +
                            " DESC LIMIT " + std::to_string(mostShown);
    for (const std::string &row : file.rows(sql)) {
        const Json columnsOfRow = Json::parse(row, nullptr, false);
        const Json &date = columnsOfRow.at(2);
        calls.push_back({{"row", columnsOfRow.at(0)},
                         {"number", columnsOfRow.at(1)},
                         {"time", date.is_number() ? Json(date.get<double>() + form.epoch) : Json()}});
    }
    return calls;
}

Json storedLimit(SqlFile &file, bool isCoreData) {
    const char *table = isCoreData ? "ZVZCALLDBPROPERTIES" : "_SqliteDatabaseProperties";
    if (!hasTable(file, table))
        return {};
    const auto schema = isCoreData ? zv::CallHistorySchema::coreData : zv::CallHistorySchema::keyValue;
    const std::string text = file.value(zv::callHistoryQueries(schema).limit);
    return text.empty() ? Json() : Json(text);
}

bool hasTrigger(SqlFile &file) {
    return file.value(
               "SELECT count(*) FROM sqlite_master WHERE type = 'trigger' AND name = 'ZVSAVEZCALLRECORD'") ==
           "1";
}

/// Runs `work`; what SQLite has against it becomes the problem of the result.
template<typename Work>
DatabaseResult guarded(const Work &work) {
    DatabaseResult result;
    try {
        work(result);
    } catch (const SqlError &error) {
        result.problem = error.what();
    }
    return result;
}

} // namespace

CallDatabase::CallDatabase(std::string file, std::string phonePath, float version)
    : _file(std::move(file)), _phonePath(std::move(phonePath)), _version(version) {
}

bool CallDatabase::exists() const {
    return std::filesystem::is_regular_file(_file);
}

DatabaseResult CallDatabase::describe() const {
    return guarded([this](DatabaseResult &result) { result.state = state(); });
}

DatabaseResult CallDatabase::addCall(const NewCall &call, double now) const {
    return guarded([&](DatabaseResult &) { add(call, now); });
}

DatabaseResult CallDatabase::deleteCall(std::optional<std::int64_t> row) const {
    return guarded([&](DatabaseResult &result) { result.found = remove(row); });
}

Json CallDatabase::state() const {
    const Form &form = isCoreData() ? coreData : keyValue;
    Json described = {{"path", _phonePath}, {"form", form.name}, {"exists", exists()}};
    if (!exists())
        return described; // opening it would make it
    const zv::CallHistory history(_file.c_str(), zv::callHistorySchema(_version));
    SqlFile file(_file);
    described["limit"] = {{"stored", storedLimit(file, isCoreData())}, {"inForce", history.limit()}};
    described["lifetime"] = history.lifetime();
    described["trigger"] = hasTrigger(file);
    described["calls"] = count(file, form.table);
    described["kept"] = count(file, form.kept);
    described["recent"] = newest(file, form, form.table);
    described["keptRecords"] = newest(file, form, form.kept);
    return described;
}

void CallDatabase::add(const NewCall &call, double now) const {
    SqlFile file(_file);
    if (!isCoreData()) {
        file.run("INSERT INTO call (address, date, duration, flags) VALUES (?, ?, ?, ?)",
                 {call.number, static_cast<std::int64_t>(now), static_cast<std::int64_t>(call.seconds),
                  std::int64_t{call.outgoing ? 5 : 4}});
        return;
    }
    file.run(
        "INSERT INTO ZCALLRECORD (Z_ENT, Z_OPT, ZANSWERED, ZCALLTYPE, ZORIGINATED, ZREAD, ZDATE, ZDURATION, "
        "ZADDRESS) VALUES (2, 1, ?, 1, ?, 1, ?, ?, ?)",
        {std::int64_t{call.seconds > 0}, std::int64_t{call.outgoing}, now - coreDataEpoch, call.seconds,
         call.number});
}

bool CallDatabase::remove(std::optional<std::int64_t> row) const {
    const Form &form = isCoreData() ? coreData : keyValue;
    SqlFile file(_file);
    const std::string chosen = row ? std::to_string(*row)
                                   : file.value(std::string("SELECT ") + form.row + " FROM " + form.table +
                                                " ORDER BY " + form.date + " LIMIT 1");
    if (chosen.empty())
        return false;
    file.run(std::string("DELETE FROM ") + form.table + " WHERE " + form.row + " = " + chosen);
    return sqlite3_changes(file.handle()) > 0;
}

} // namespace sim
