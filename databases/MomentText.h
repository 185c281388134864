// Moments of time as text, for lists in which many moments share one text.
#pragma once

#import <Foundation/Foundation.h>

namespace zv {

/// Writes moments with one formatter in the default time zone. Formatting is slow and a list is ordered by
/// time, so the last text is kept for as long as the moments fall into the same period on the local clock.
class MomentText {
public:
    /// Takes over the reference to `formatter`. `period`, in seconds, is a time on the local clock within
    /// which the formatter's text does not change: a minute for "HH:mm", a day for a date.
    MomentText(NSDateFormatter *formatter, NSTimeInterval period);
    ~MomentText();
    MomentText(const MomentText &) = delete;
    MomentText &operator=(const MomentText &) = delete;

    /// The text for a moment in seconds since 2001-01-01 00:00 UTC, valid until the next call; nil where the
    /// formatter has none.
    [[nodiscard]] NSString *text(NSTimeInterval moment);

private:
    NSDateFormatter *m_formatter;
    NSTimeZone *m_timeZone;
    NSTimeInterval m_period;
    double m_lastPeriod = 0;
    NSString *m_lastText = nil;
};

} // namespace zv
