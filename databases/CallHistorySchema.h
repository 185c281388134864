// The two forms that the system's call history has had, and what is asked of each.
#pragma once

namespace zv {

/// Which form the call-history database has.
enum class CallHistorySchema {
    keyValue, ///< before 8.0: tables `call` and `_SqliteDatabaseProperties`; only the privileged tool may
              ///< change it
    coreData, ///< 8.0 and later: a Core Data store with `ZCALLRECORD` and `ZCALLDBPROPERTIES`
};

/// The form that a system uses; `systemVersion` is the float value of its version text (8.1 for "8.1.2").
constexpr CallHistorySchema callHistorySchema(float systemVersion) {
    return systemVersion >= 8.0F ? CallHistorySchema::coreData : CallHistorySchema::keyValue;
}

/// The queries of one form.
struct CallHistoryQueries {
    const char *limit;       ///< the stored limit, in calls: one column, the first row counts
    const char *lifetime;    ///< the timer lifetime, in seconds: one column, the first row counts
    const char *recentCalls; ///< number and date of every call to show, newest first
};

/// The lifetime of a Core Data store is read without an order, though it is set in the row with the lowest
/// `Z_PK`: the table holds one row. The bit of value 16 in `flags` marks calls that the older history does
/// not show.
constexpr CallHistoryQueries callHistoryQueries(CallHistorySchema schema) {
    if (schema == CallHistorySchema::coreData)
        return {"SELECT Z_VALUE FROM ZVZCALLDBPROPERTIES WHERE Z_KEY='call_history_limit'",
                "SELECT ZTIMER_LIFETIME FROM ZCALLDBPROPERTIES",
                "SELECT ZADDRESS,ZDATE FROM ZCALLRECORD ORDER BY ZDATE DESC"};
    return {"SELECT value FROM _SqliteDatabaseProperties WHERE key='call_history_limit'",
            "SELECT value FROM _SqliteDatabaseProperties WHERE key='timer_lifetime'",
            "SELECT address,date FROM call WHERE (flags & (1 << 4) == 0) ORDER BY date DESC"};
}

} // namespace zv
