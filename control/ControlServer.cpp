#include "ControlServer.h"

#include "SocketPath.h"

#include <QLocalSocket>
#include <QLoggingCategory>
#include <QTimer>

#include <sys/stat.h>

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

QString ControlServer::defaultSocketPath(QString* problem)
{
    std::string why;
    const std::string path = nxproto::socketPath(&why);
    if (problem)
        *problem = QString::fromStdString(why);
    return QString::fromStdString(path);
}

bool ControlServer::listen(const QString& path, QString* error)
{
    if (path.isEmpty()) {
        *error = QStringLiteral("no socket path");
        return false;
    }
    QLocalServer::removeServer(path);
    // Created 0600 by bind() itself, so that it is never open to others, not even briefly.
    server_.setSocketOptions(QLocalServer::NoOptions);
    const mode_t previous = ::umask(0177);
    const bool listening = server_.listen(path);
    ::umask(previous);
    if (!listening) {
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
        const char* refusal = nullptr;
        if (!nxproto::peerIsSameUser(int(socket->socketDescriptor())))
            refusal = "a peer of another user";
        else if (int(clients_.size()) >= kMaxClients)
            refusal = "a client beyond the limit";
        if (refusal) {
            // A peer that reconnects at once must not flood the log.
            if (refusedInARow_++ == 0)
                qCWarning(lcServer) << "refusing" << refusal;
            socket->abort();
            socket->deleteLater();
            continue;
        }
        if (refusedInARow_ > 1)
            qCWarning(lcServer) << "refused" << refusedInARow_ << "connections in a row";
        refusedInARow_ = 0;
        auto* client = new ClientConnection(socket, nextId_++, handler_, this);
        connect(client, &ClientConnection::closed, this, &ControlServer::forget);
        clients_.push_back(client);
        QTimer::singleShot(kHelloTimeoutMs, client, [client]() {
            if (client->clientId() == 0) {
                qCDebug(lcServer) << "client" << client->id() << "silent; closing it";
                client->abort();
            }
        });
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
