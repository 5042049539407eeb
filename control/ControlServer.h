#pragma once

#include "ClientConnection.h"

#include <QLocalServer>
#include <QObject>
#include <QString>

#include <vector>

// The service's Unix socket and its clients.
class ControlServer : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxClients = 64;
    // A connection that has not introduced itself by then is closed, so that idle ones cannot
    // take every place.
    static constexpr int kHelloTimeoutMs = 2000;

    explicit ControlServer(ClientConnection::RequestHandler handler, QObject* parent = nullptr);
    ~ControlServer() override;

    // <runtime directory>/norvalex-control.sock, by the rule the library follows too; empty,
    // with the reason in `problem`, when there is no private runtime directory.
    static QString defaultSocketPath(QString* problem = nullptr);

    // Takes over a file left behind by a killed instance: the caller holds the single-instance
    // lock, so no live service owns it. The socket is for this user alone (0600), and a peer
    // running as another user is refused.
    bool listen(const QString& path, QString* error);
    void close();

    const std::vector<ClientConnection*>& clients() const { return clients_; }

signals:
    void clientConnected(ClientConnection* client);

private:
    void acceptClients();
    void forget(ClientConnection* client);

    QLocalServer server_;
    ClientConnection::RequestHandler handler_;
    std::vector<ClientConnection*> clients_;
    int nextId_ = 1;
    int refusedInARow_ = 0; // logged once per run of refusals
};
