#include "databases/CallHistory.h"

#include "databases/CallHistoryLimits.h"
#include "databases/Statement.h"

namespace zv {

namespace {

constexpr const char *limitKey = "call_history_limit";

constexpr const char *createProperties =
    "CREATE TABLE ZVZCALLDBPROPERTIES ( Z_PK INTEGER PRIMARY KEY, Z_KEY INTEGER, Z_VALUE )";
constexpr const char *deleteLimit = "DELETE FROM ZVZCALLDBPROPERTIES WHERE Z_KEY = 'call_history_limit'";
constexpr const char *insertLimit = "INSERT INTO ZVZCALLDBPROPERTIES (Z_KEY, Z_VALUE) VALUES (?, ?)";

// The kept calls have the columns of the system's ZCALLRECORD of 8.0, in its order; the trigger names them
// one by one, because later systems add columns.
constexpr const char *createRecords =
    "CREATE TABLE ZVZCALLRECORD ( Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, Z_OPT INTEGER, ZANSWERED INTEGER, "
    "ZCALLTYPE INTEGER, ZDISCONNECTED_CAUSE INTEGER, ZFACE_TIME_DATA INTEGER, ZNUMBER_AVAILABILITY INTEGER, "
    "ZORIGINATED INTEGER, ZREAD INTEGER, ZDATE TIMESTAMP, ZDURATION FLOAT, ZADDRESS VARCHAR, "
    "ZDEVICE_ID VARCHAR, ZISO_COUNTRY_CODE VARCHAR, ZNAME VARCHAR, ZUNIQUE_ID VARCHAR )";
constexpr const char *createTrigger =
    "CREATE TRIGGER ZVSAVEZCALLRECORD BEFORE DELETE ON ZCALLRECORD FOR EACH ROW BEGIN "
    "INSERT INTO ZVZCALLRECORD "
    "SELECT Z_PK,Z_ENT,Z_OPT,ZANSWERED,ZCALLTYPE,ZDISCONNECTED_CAUSE,ZFACE_TIME_DATA,ZNUMBER_AVAILABILITY,"
    "ZORIGINATED,ZREAD,ZDATE,ZDURATION,ZADDRESS,ZDEVICE_ID,ZISO_COUNTRY_CODE,ZNAME,ZUNIQUE_ID "
    "FROM ZCALLRECORD WHERE ZCALLRECORD.Z_PK=OLD.Z_PK; END";

constexpr const char *dropTrigger = "DROP TRIGGER ZVSAVEZCALLRECORD";
constexpr const char *dropRecords = "DROP TABLE ZVZCALLRECORD";
constexpr const char *dropProperties = "DROP TABLE ZVZCALLDBPROPERTIES";

constexpr const char *updateLifetime = "UPDATE ZCALLDBPROPERTIES SET ZTIMER_LIFETIME = ? WHERE Z_PK = "
                                       "(SELECT Z_PK FROM ZCALLDBPROPERTIES ORDER BY Z_PK ASC LIMIT 1)";

void storeLimit(const Database &database, int limit) {
    Statement insert(database, insertLimit);
    insert.bind(1, limitKey);
    insert.bind(2, limit);
    (void)insert.finish();
}

// Column 0 of the first row, or `otherwise` where there is none.
int firstInteger(const char *path, const char *query, int otherwise) {
    Database database(path);
    if (!database.isOpen())
        return otherwise;
    Statement select(database, query);
    return select.nextRow() ? select.integer(0) : otherwise;
}

} // namespace

bool CallHistory::install(int limit) const {
    Database database(m_path);
    if (!database.isOpen())
        return false;
    (void)database.run(createProperties);
    (void)database.run(deleteLimit);
    storeLimit(database, limit);
    (void)database.run(createRecords);
    return database.run(createTrigger);
}

bool CallHistory::uninstall() const {
    Database database(m_path);
    if (!database.isOpen())
        return false;
    bool dropped = database.run(dropTrigger);
    (void)database.run(dropRecords);
    (void)database.run(dropProperties);
    return dropped;
}

int CallHistory::limit() const {
    return allowedCallHistoryLimit(
        firstInteger(m_path, callHistoryQueries(m_schema).limit, defaultCallHistoryLimit));
}

int CallHistory::lifetime() const {
    return firstInteger(m_path, callHistoryQueries(m_schema).lifetime, 0);
}

void CallHistory::setLifetime(int seconds) const {
    Database database(m_path);
    if (!database.isOpen())
        return;
    Statement update(database, updateLifetime);
    update.bind(1, seconds);
    (void)update.finish();
}

} // namespace zv
