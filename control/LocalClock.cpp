#include "LocalClock.h"

#include <QDateTime>

namespace {

constexpr qint64 kMinuteMs = 60 * 1000;
constexpr qint64 kHourMs = 60 * kMinuteMs;
constexpr qint64 kDayMs = 24 * kHourMs;

qint64 floorMod(qint64 value, qint64 divisor)
{
    const qint64 rest = value % divisor;
    return rest < 0 ? rest + divisor : rest;
}

} // namespace

LocalClock::TimeOfDay LocalClock::now()
{
    const qint64 utcMs = QDateTime::currentMSecsSinceEpoch();
    // A clock set back lands before the minute as well as after it.
    if (utcMs < minuteStartMs_ || utcMs >= minuteEndMs_) {
        minuteStartMs_ = utcMs - floorMod(utcMs, kMinuteMs);
        minuteEndMs_ = minuteStartMs_ + kMinuteMs;
        offsetSeconds_ = QDateTime::fromMSecsSinceEpoch(utcMs, Qt::LocalTime).offsetFromUtc();
    }
    return at(utcMs, offsetSeconds_);
}

LocalClock::TimeOfDay LocalClock::at(qint64 utcMs, int offsetSeconds)
{
    const qint64 msOfDay = floorMod(utcMs + qint64(offsetSeconds) * 1000, kDayMs);
    TimeOfDay time;
    time.hour = int(msOfDay / kHourMs);
    time.minute = int(msOfDay % kHourMs / kMinuteMs);
    time.second = double(msOfDay % kMinuteMs) / 1000.0;
    return time;
}
