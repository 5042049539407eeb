#include "ControlServer.h"

#include "SocketPath.h"

#include <QDir>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

Q_LOGGING_CATEGORY(lcServer, "norvalex.control.server")

ControlServer::ControlServer(ClientConnection::RequestHandler handler, QObject* parent)
    : QObject(parent), handler_(std::move(handler))
{
    connect(&server_, &QLocalServer::newConnection, this, &ControlServer::acceptClients);
}

ControlServer::~ControlServer()
{
    close();
}

QString ControlServer::defaultSocketPath()
{
    QString dir = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir.isEmpty())
        dir = QDir::tempPath();
    QDir().mkpath(dir);
    return dir + QLatin1Char('/') + QLatin1String(nxproto::kSocketFileName);
}

bool ControlServer::listen(const QString& path, QString* error)
{
    QLocalServer::removeServer(path);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    if (!server_.listen(path)) {
        *error = server_.errorString();
        return false;
    }
    qCInfo(lcServer).noquote() << "listening on" << path;
    return true;
}

void ControlServer::close()
{
    for (ClientConnection* client : clients_) {
        client->disconnect(this);
        client->close();
        delete client;
    }
    clients_.clear();
    server_.close();
}

void ControlServer::acceptClients()
{
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        if (int(clients_.size()) >= kMaxClients) {
            qCWarning(lcServer) << "too many clients; refusing one";
            socket->abort();
            socket->deleteLater();
            continue;
        }
        auto* client = new ClientConnection(socket, nextId_++, handler_, this);
        connect(client, &ClientConnection::closed, this, &ControlServer::forget);
        clients_.push_back(client);
        qCDebug(lcServer) << "client" << client->id() << "connected";
        emit clientConnected(client);
    }
}

void ControlServer::forget(ClientConnection* client)
{
    const auto it = std::find(clients_.begin(), clients_.end(), client);
    if (it == clients_.end())
        return;
    clients_.erase(it);
    qCDebug(lcServer) << "client" << client->id() << "gone";
    client->deleteLater();
}
