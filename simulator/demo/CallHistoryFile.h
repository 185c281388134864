// Makes call-history databases with the phone's schemas and adds calls to them.
#pragma once

#include "simulator/demo/SqlFile.h"

#include <random>

namespace sim {

enum class CallDirection { incoming, outgoing };
enum class CallService { phone, faceTime };

struct Call {
    SqlValue address;    ///< the number as dialled or shown; a phone writes text
    double moment = 0;   ///< seconds since 1970
    double duration = 0; ///< seconds; 0 for a call that nobody took
    CallDirection direction = CallDirection::incoming;
    CallService service = CallService::phone;
};

enum class CallHistoryForm {
    keyValue, ///< iOS 7: call_history.db
    coreData, ///< iOS 8: CallHistory.storedata
};

/// A new call history without calls.
class CallHistoryFile {
public:
    /// Replaces nothing: the file must not exist yet.
    CallHistoryFile(const std::string &path, CallHistoryForm form);

    /// Adds a call; returns its row id (ROWID or Z_PK). The call timers follow.
    std::int64_t add(const Call &call);

    [[nodiscard]] SqlFile &sql() { return m_file; }

private:
    void addOlder(const Call &call);
    void addCoreData(const Call &call);

    SqlFile m_file;
    CallHistoryForm m_form;
    std::mt19937_64 m_random{8};
};

} // namespace sim
