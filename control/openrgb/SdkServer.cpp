#include "SdkServer.h"

#include "OrgbLog.h"
#include "SdkSession.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>

SdkServer::SdkServer(DirectLighting& direct, std::string version, QObject* parent)
    : QObject(parent), direct_(direct), version_(std::move(version)),
      listener_(new QTcpServer(this))
{
    connect(listener_, &QTcpServer::newConnection, this, &SdkServer::acceptPending);
}

SdkServer::~SdkServer()
{
    close();
}

bool SdkServer::listen(const QHostAddress& address, quint16 port, QString* error)
{
    if (!listener_->listen(address, port)) {
        *error = QStringLiteral("cannot listen for SDK clients on %1:%2: %3")
                     .arg(address.toString())
                     .arg(port)
                     .arg(listener_->errorString());
        return false;
    }
    qCInfo(lcOpenRgb).noquote() << "SDK server listening on"
                                << QStringLiteral("%1:%2").arg(address.toString()).arg(port);
    return true;
}

void SdkServer::close()
{
    listener_->close();
    const std::vector<SdkSession*> sessions = std::move(sessions_);
    sessions_.clear();
    for (SdkSession* session : sessions)
        delete session;
}

quint16 SdkServer::port() const
{
    return listener_->serverPort();
}

void SdkServer::setModules(std::vector<SdkModule> modules)
{
    const bool changed =
        modules.size() != modules_.size() ||
        !std::equal(modules.begin(), modules.end(), modules_.begin(),
                    [](const SdkModule& a, const SdkModule& b) { return a.sameDevice(b); });
    modules_ = std::move(modules);
    if (!changed)
        return;
    for (SdkSession* session : sessions_)
        session->notifyDeviceListUpdated();
}

void SdkServer::setFrame(const DirectLighting::Colors& frame)
{
    std::copy(&frame[0][0], &frame[0][0] + nxproto::kSlotCount * nxproto::kLedCount, &frame_[0][0]);
}

void SdkServer::acceptPending()
{
    while (QTcpSocket* socket = listener_->nextPendingConnection()) {
        if (int(sessions_.size()) >= kMaxSessions) {
            qCWarning(lcOpenRgb) << "refusing SDK client" << socket->peerAddress().toString()
                                 << "- already" << kMaxSessions << "connected";
            socket->abort();
            socket->deleteLater();
            continue;
        }
        auto* session = new SdkSession(socket, *this, this);
        connect(session, &SdkSession::finished, this, &SdkServer::removeSession);
        sessions_.push_back(session);
        emit sessionsChanged();
    }
}

void SdkServer::removeSession(SdkSession* session)
{
    const auto found = std::find(sessions_.begin(), sessions_.end(), session);
    if (found == sessions_.end())
        return;
    sessions_.erase(found);
    session->deleteLater();
    emit sessionsChanged();
}
