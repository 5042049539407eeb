#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

// Notices that the machine slept: the wall clock moves on during a suspend, the monotonic
// clock does not, so a tick that finds the two apart by more than a few seconds follows a
// resume.
class ResumeWatch : public QObject
{
    Q_OBJECT

public:
    static constexpr int kTickMs = 2000;
    static constexpr qint64 kGapMs = 5000;

    explicit ResumeWatch(QObject* parent = nullptr);

    // Watching starts afresh: a sleep while stopped goes unreported.
    void setActive(bool active);
    bool isActive() const { return timer_.isActive(); }

    // For tests: one check with the given clock readings.
    bool check(qint64 wallMs, qint64 monotonicMs);

signals:
    void resumed();

private:
    void tick();

    QTimer timer_;
    QElapsedTimer monotonic_;
    qint64 lastWall_ = -1;
    qint64 lastMonotonic_ = -1;
};
