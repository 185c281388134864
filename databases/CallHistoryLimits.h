// How many calls the call history can be told to keep.
#pragma once

namespace zv {

/// The system's own limit, in calls. Choosing it, or less, ends the extension of the history.
constexpr int defaultCallHistoryLimit = 100;

/// The limits that a person can choose, in calls.
constexpr int callHistoryLimits[] = {
    defaultCallHistoryLimit, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 2000, 3000, 4000, 5000, 10000};

/// Whether `limit` asks for more calls than the system keeps by itself.
constexpr bool extendsCallHistory(int limit) {
    return limit > defaultCallHistoryLimit;
}

/// `limit` where it can be chosen, else the default: a database may hold anything.
constexpr int allowedCallHistoryLimit(int limit) {
    for (int allowed : callHistoryLimits) {
        if (limit == allowed)
            return limit;
    }
    return defaultCallHistoryLimit;
}

} // namespace zv
