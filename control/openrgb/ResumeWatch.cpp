#include "ResumeWatch.h"

#include <QDateTime>

#include <cstdlib>

ResumeWatch::ResumeWatch(QObject* parent) : QObject(parent)
{
    monotonic_.start();
    timer_.setInterval(kTickMs);
    connect(&timer_, &QTimer::timeout, this, &ResumeWatch::tick);
    timer_.start();
    tick();
}

void ResumeWatch::setActive(bool active)
{
    if (active == timer_.isActive())
        return;
    if (!active) {
        timer_.stop();
        return;
    }
    lastWall_ = -1;
    tick();
    timer_.start();
}

bool ResumeWatch::check(qint64 wallMs, qint64 monotonicMs)
{
    const bool jumped = lastWall_ >= 0 &&
                        std::llabs((wallMs - lastWall_) - (monotonicMs - lastMonotonic_)) > kGapMs;
    lastWall_ = wallMs;
    lastMonotonic_ = monotonicMs;
    return jumped;
}

void ResumeWatch::tick()
{
    if (check(QDateTime::currentMSecsSinceEpoch(), monotonic_.elapsed()))
        emit resumed();
}
