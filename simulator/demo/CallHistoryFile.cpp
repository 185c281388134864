#include "simulator/demo/CallHistoryFile.h"

#include "simulator/demo/Guid.h"
#include "simulator/demo/Schemas.h"

#include <cmath>

namespace sim {

namespace {

constexpr double secondsFrom1970To2001 = 978307200;

// Bits of `flags` in the older table.
constexpr std::int64_t outgoingFlag = 1;
constexpr std::int64_t faceTimeFlag = 16;

// Values of ZCALLTYPE.
constexpr std::int64_t phoneCallType = 1;
constexpr std::int64_t faceTimeCallType = 8;

bool isOutgoing(const Call &call) {
    return call.direction == CallDirection::outgoing;
}

bool isFaceTime(const Call &call) {
    return call.service == CallService::faceTime;
}

// Timers count whole minutes, rounded up.
double chargedSeconds(const Call &call) {
    return std::ceil(call.duration / 60) * 60;
}

} // namespace

CallHistoryFile::CallHistoryFile(const std::string &path, CallHistoryForm form) : m_file(path), m_form(form) {
    SqlTransaction transaction(m_file);
    m_file.script(form == CallHistoryForm::coreData ? callHistory8Schema : callHistory7Schema);
    transaction.commit();
}

std::int64_t CallHistoryFile::add(const Call &call) {
    m_form == CallHistoryForm::coreData ? addCoreData(call) : addOlder(call);
    return m_file.lastRow();
}

void CallHistoryFile::addOlder(const Call &call) {
    std::int64_t flags = (isOutgoing(call) ? outgoingFlag : 0) | (isFaceTime(call) ? faceTimeFlag : 0);
    SqlValue faceTimeData = isFaceTime(call) ? SqlValue(Blob{std::string(8, '\0')}) : SqlValue(nullptr);
    m_file.run(
        "INSERT INTO call (address, date, duration, flags, id, name, country_code, network_code, read, "
        "assisted, face_time_data, originalAddress, answered) "
        "VALUES (?, ?, ?, ?, -1, '', '310', '01', 1, 0, ?, '', ?)",
        {call.address, std::int64_t(call.moment), std::int64_t(call.duration), flags, faceTimeData,
         std::int64_t(call.duration > 0)});
}

void CallHistoryFile::addCoreData(const Call &call) {
    m_file.run("UPDATE ZCALLDBPROPERTIES SET ZTIMER_LAST = ?1, ZTIMER_ALL = ZTIMER_ALL + ?1, "
               "ZTIMER_LIFETIME = ZTIMER_LIFETIME + ?1, ZTIMER_INCOMING = ZTIMER_INCOMING + ?2, "
               "ZTIMER_OUTGOING = ZTIMER_OUTGOING + ?3",
               {chargedSeconds(call), isOutgoing(call) ? 0.0 : chargedSeconds(call),
                isOutgoing(call) ? chargedSeconds(call) : 0.0});
    m_file.run("UPDATE Z_PRIMARYKEY SET Z_MAX = Z_MAX + 1 WHERE Z_NAME = 'CallRecord'");
    m_file.run("INSERT INTO ZCALLRECORD (Z_ENT, Z_OPT, ZANSWERED, ZCALLTYPE, ZDISCONNECTED_CAUSE, "
               "ZNUMBER_AVAILABILITY, ZORIGINATED, ZREAD, ZDATE, ZDURATION, ZADDRESS, ZISO_COUNTRY_CODE, "
               "ZUNIQUE_ID) "
               "VALUES (2, 1, ?, ?, 0, 0, ?, 1, ?, ?, ?, 'us', ?)",
               {std::int64_t(!isOutgoing(call) && call.duration > 0),
                isFaceTime(call) ? faceTimeCallType : phoneCallType, std::int64_t(isOutgoing(call)),
                call.moment - secondsFrom1970To2001, call.duration, call.address, makeGuid(m_random)});
}

} // namespace sim
