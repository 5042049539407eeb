#include "SleepWatcher.h"

SleepWatcher::SleepWatcher(const QDBusConnection& system, QObject* parent) : QObject(parent)
{
    QDBusConnection bus(system);
    watching_ = bus.isConnected() &&
                bus.connect(QStringLiteral("org.freedesktop.login1"),
                            QStringLiteral("/org/freedesktop/login1"),
                            QStringLiteral("org.freedesktop.login1.Manager"),
                            QStringLiteral("PrepareForSleep"), this, SLOT(onPrepareForSleep(bool)));
}

void SleepWatcher::onPrepareForSleep(bool sleeping)
{
    if (!sleeping)
        emit resumed();
}
