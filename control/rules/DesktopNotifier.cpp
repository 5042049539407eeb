#include "DesktopNotifier.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QLoggingCategory>
#include <QVariantMap>

Q_LOGGING_CATEGORY(lcNotify, "norvalex.rules")

namespace {

const QString kNotifyService = QStringLiteral("org.freedesktop.Notifications");
const QString kNotifyPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kNotifyInterface = QStringLiteral("org.freedesktop.Notifications");
const QString kLogindService = QStringLiteral("org.freedesktop.login1");
const QString kLogindPath = QStringLiteral("/org/freedesktop/login1");
const QString kLogindManager = QStringLiteral("org.freedesktop.login1.Manager");

constexpr uchar kUrgencyCritical = 2;
constexpr int kNeverExpires = 0;

} // namespace

DesktopNotifier::DesktopNotifier(const QDBusConnection& session, const QDBusConnection& system,
                                 QObject* parent)
    : QObject(parent), session_(session), system_(system)
{
    if (!session_.isConnected())
        return;
    // QtDBus connects signals by signature only.
    session_.connect(kNotifyService, kNotifyPath, kNotifyInterface, QStringLiteral("ActionInvoked"),
                     this, SLOT(onActionInvoked(uint, QString)));
    session_.connect(kNotifyService, kNotifyPath, kNotifyInterface,
                     QStringLiteral("NotificationClosed"), this, SLOT(onClosed(uint, uint)));
}

void DesktopNotifier::raise(int key, const QString& summary, const QString& body)
{
    if (!session_.isConnected()) {
        qCWarning(lcNotify).noquote() << "no session bus for the warning:" << summary << body;
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(kNotifyService, kNotifyPath,
                                                       kNotifyInterface, QStringLiteral("Notify"));
    const QVariantMap hints{{QStringLiteral("urgency"), QVariant::fromValue(kUrgencyCritical)},
                            {QStringLiteral("desktop-entry"), QStringLiteral("norvalex-rgb")}};
    call << QStringLiteral("NORVALEX RGB") << shown_.value(key, 0u)
         << QStringLiteral("dialog-warning") << summary << body
         << QStringList{QLatin1String(kShutdownAction), QStringLiteral("Shut down")} << hints
         << kNeverExpires;
    auto* watcher = new QDBusPendingCallWatcher(session_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, key](QDBusPendingCallWatcher* w) {
                w->deleteLater();
                const QDBusPendingReply<uint> reply = *w;
                if (reply.isError()) {
                    qCWarning(lcNotify).noquote()
                        << "cannot show the warning:" << reply.error().message();
                    return;
                }
                shown_.insert(key, reply.value());
            });
}

void DesktopNotifier::clear(int key)
{
    const uint id = shown_.take(key);
    if (id == 0 || !session_.isConnected())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(
        kNotifyService, kNotifyPath, kNotifyInterface, QStringLiteral("CloseNotification"));
    call << id;
    session_.asyncCall(call);
}

void DesktopNotifier::onActionInvoked(uint id, const QString& action)
{
    const QList<uint> ids = shown_.values();
    if (!ids.contains(id) || action != QLatin1String(kShutdownAction))
        return;
    qCInfo(lcNotify) << "the user chose to shut down; asking logind";
    requestPowerOff();
}

void DesktopNotifier::onClosed(uint id, uint)
{
    for (auto it = shown_.begin(); it != shown_.end(); ++it) {
        if (it.value() == id) {
            shown_.erase(it);
            return;
        }
    }
}

void DesktopNotifier::requestPowerOff()
{
    QDBusMessage call = QDBusMessage::createMethodCall(kLogindService, kLogindPath, kLogindManager,
                                                       QStringLiteral("PowerOff"));
    call << true; // interactive: the desktop may ask for confirmation or authentication
    auto* watcher = new QDBusPendingCallWatcher(system_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* w) {
        w->deleteLater();
        const QDBusPendingReply<> reply = *w;
        if (reply.isError())
            qCWarning(lcNotify).noquote() << "power-off refused:" << reply.error().message();
        emit powerOffRequested(!reply.isError(),
                               reply.isError() ? reply.error().message() : QString());
    });
}
