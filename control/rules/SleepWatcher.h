#pragma once

#include <QDBusConnection>
#include <QObject>

// Tells when the machine wakes from suspend, from logind's PrepareForSleep(false).
class SleepWatcher : public QObject
{
    Q_OBJECT

public:
    explicit SleepWatcher(const QDBusConnection& system, QObject* parent = nullptr);

    bool isWatching() const { return watching_; }

signals:
    void resumed();

private slots:
    void onPrepareForSleep(bool sleeping);

private:
    bool watching_ = false;
};
