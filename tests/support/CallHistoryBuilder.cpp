#include "support/CallHistoryBuilder.h"

#include "support/TemporaryFolder.h"

namespace support {

namespace {

constexpr double minute = 60;

sim::CallHistoryForm formOf(zv::CallHistorySchema schema) {
    return schema == zv::CallHistorySchema::coreData ? sim::CallHistoryForm::coreData
                                                     : sim::CallHistoryForm::keyValue;
}

} // namespace

CallHistoryBuilder::CallHistoryBuilder(const std::string &path, zv::CallHistorySchema schema)
    : m_file(inNewFolders(path), formOf(schema)) {
}

CallHistoryBuilder &CallHistoryBuilder::call(const sim::SqlValue &number, double moment) {
    m_file.add({.address = number, .moment = moment, .duration = minute});
    return *this;
}

CallHistoryBuilder &CallHistoryBuilder::faceTimeCall(const std::string &number, double moment) {
    m_file.add(
        {.address = number, .moment = moment, .duration = minute, .service = sim::CallService::faceTime});
    return *this;
}

} // namespace support
