#include "databases/MomentText.h"

#include <math.h>

namespace zv {

MomentText::MomentText(NSDateFormatter *formatter, NSTimeInterval period)
    : m_formatter(formatter), m_timeZone([[NSTimeZone defaultTimeZone] retain]), m_period(period) {
}

MomentText::~MomentText() {
    [m_lastText release];
    [m_timeZone release];
    [m_formatter release];
}

NSString *MomentText::text(NSTimeInterval moment) {
    NSDate *date = [[NSDate alloc] initWithTimeIntervalSinceReferenceDate:moment];
    const auto offset = static_cast<double>([m_timeZone secondsFromGMTForDate:date]);
    double periodNumber = floor((moment + offset) / m_period);
    if (!m_lastText || periodNumber != m_lastPeriod) {
        [m_lastText release];
        m_lastText = [[m_formatter stringFromDate:date] retain];
        m_lastPeriod = periodNumber;
    }
    [date release];
    return m_lastText;
}

} // namespace zv
