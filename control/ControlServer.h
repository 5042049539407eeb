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

    explicit ControlServer(ClientConnection::RequestHandler handler, QObject* parent = nullptr);
    ~ControlServer() override;

    // <runtime location>/norvalex-control.sock
    static QString defaultSocketPath();

    // Takes over a file left behind by a killed instance: the caller holds the single-instance
    // lock, so no live service owns it.
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
};
