// Control of the system's call history: how many calls it keeps and how long.
#pragma once

#include "databases/CallHistorySchema.h"

namespace zv {

/// One call-history database. Each operation opens it, runs its statements one by one (no transaction, no
/// busy time-out) and closes it; errors show only in the results. A database that is missing is created empty
/// by the open.
///
/// Extending the history means a trigger, `ZVSAVEZCALLRECORD`, that copies each call into the table
/// `ZVZCALLRECORD` before the system deletes it, and the chosen limit in the table `ZVZCALLDBPROPERTIES`.
class CallHistory {
public:
    /// `path` is kept, not copied.
    CallHistory(const char *path, CallHistorySchema schema) : m_path(path), m_schema(schema) {}

    /// Extends the history to `limit` calls. True only if the trigger was created, so a second install, which
    /// renews the limit, gives false: read `limit()` back to learn whether it is in force. Core Data stores
    /// only.
    [[nodiscard]] bool install(int limit) const;

    /// Ends the extension and discards the kept calls. True only if the trigger was dropped. Core Data stores
    /// only.
    [[nodiscard]] bool uninstall() const;

    /// The limit in force, in calls; the default of 100 where none is stored or the stored one is not
    /// allowed.
    [[nodiscard]] int limit() const;

    /// The timer lifetime, in seconds; 0 where it is unknown.
    [[nodiscard]] int lifetime() const;

    /// Sets the timer lifetime, in seconds. Core Data stores only.
    void setLifetime(int seconds) const;

private:
    const char *m_path;
    CallHistorySchema m_schema;
};

} // namespace zv
