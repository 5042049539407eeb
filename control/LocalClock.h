#pragma once

#include <QtGlobal>

// The wall clock's time of day, for effects that show it, cheap enough to read at every
// frame. Local time through the C library looks at the time-zone file on every call; here the
// offset from UTC is read once per minute of UTC instead. Offsets change only on whole
// minutes, so the time of day is never stale; a new time zone is seen within a minute.
class LocalClock
{
public:
    struct TimeOfDay {
        int hour = 0;
        int minute = 0;
        double second = 0; // with the milliseconds
    };

    TimeOfDay now();

    // The time of day at `utcMs` (since the epoch) for a zone `offsetSeconds` east of UTC.
    static TimeOfDay at(qint64 utcMs, int offsetSeconds);

private:
    qint64 minuteStartMs_ = 0;
    qint64 minuteEndMs_ = 0; // the offset below holds in [minuteStartMs_, minuteEndMs_)
    int offsetSeconds_ = 0;
};
