#pragma once

#include <QDBusConnection>
#include <QHash>
#include <QObject>
#include <QString>

// Desktop warnings over the freedesktop Notifications interface, each with a "Shut down"
// action that asks logind to power off interactively, so the desktop asks the user first.
// Nothing here ever powers off by itself.
class DesktopNotifier : public QObject
{
    Q_OBJECT

public:
    static constexpr char kShutdownAction[] = "shutdown";

    DesktopNotifier(const QDBusConnection& session, const QDBusConnection& system,
                    QObject* parent = nullptr);

    bool hasSessionBus() const { return session_.isConnected(); }
    // Shows the warning of `key`, replacing its earlier one if still shown.
    void raise(int key, const QString& summary, const QString& body);
    // Withdraws the warning of `key` if shown.
    void clear(int key);

signals:
    // After the "Shut down" action: whether logind accepted the request.
    void powerOffRequested(bool accepted, const QString& error);

private slots:
    void onActionInvoked(uint id, const QString& action);
    void onClosed(uint id, uint reason);

private:
    void requestPowerOff();

    QDBusConnection session_;
    QDBusConnection system_;
    QHash<int, uint> shown_; // key -> notification id
};
