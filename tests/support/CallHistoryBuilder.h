// A call history for a test, a line a call.
#pragma once

#include "databases/CallHistorySchema.h"
#include "simulator/demo/CallHistoryFile.h"

namespace support {

/// Makes the file and the folders above it.
class CallHistoryBuilder {
public:
    CallHistoryBuilder(const std::string &path, zv::CallHistorySchema schema);

    /// A minute's incoming call; `moment` in seconds since 1970.
    CallHistoryBuilder &call(const sim::SqlValue &number, double moment);

    CallHistoryBuilder &faceTimeCall(const std::string &number, double moment);

    [[nodiscard]] sim::SqlFile &sql() { return m_file.sql(); }

private:
    sim::CallHistoryFile m_file;
};

} // namespace support
