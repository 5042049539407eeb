#pragma once

// Stand-ins for the desktop's notification server and for logind, served by the test on its
// private session bus; they record what the service asks of them.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

class NotificationServer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Shown {
        uint id;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
    };

    QList<Shown> shown;
    QList<uint> closed;

    // As the desktop does when the user clicks an action button.
    void invoke(uint id, const QString& action)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/Notifications"),
            QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("ActionInvoked"));
        signal << id << action;
        QDBusConnection::sessionBus().send(signal);
    }

public slots:
    uint Notify(const QString&, uint replacesId, const QString&, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int)
    {
        const uint id = replacesId ? replacesId : ++lastId_;
        shown.append({id, summary, body, actions, hints});
        return id;
    }
    void CloseNotification(uint id) { closed.append(id); }

private:
    uint lastId_ = 100;
};

class LoginManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    QList<bool> powerOffs; // the interactive flag of each request

    void prepareForSleep(bool sleeping)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/login1"),
            QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"));
        signal << sleeping;
        QDBusConnection::sessionBus().send(signal);
    }

public slots:
    void PowerOff(bool interactive) { powerOffs.append(interactive); }
};
