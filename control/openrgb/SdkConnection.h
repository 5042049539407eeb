#pragma once

#include "PacketSplitter.h"

#include <QObject>
#include <QString>

#include <functional>

class QTcpSocket;

// One TCP conversation in the OpenRGB SDK protocol, either side: splits what arrives into
// packets, hands each to the handler, and closes the connection with a log line when the
// stream breaks the framing or the peer stops reading what we send.
class SdkConnection : public QObject
{
    Q_OBJECT

public:
    // Unsent bytes past this mean the peer does not read; the connection is closed.
    static constexpr qint64 kMaxBacklog = 4 * 1024 * 1024;

    using Handler = std::function<void(const orgb::Packet&)>;

    // Takes ownership of the socket.
    SdkConnection(QTcpSocket* socket, const QString& peerName, QObject* parent = nullptr);
    ~SdkConnection() override;

    void setHandler(Handler handler) { handler_ = std::move(handler); }
    void send(const std::vector<uint8_t>& bytes);
    void send(uint32_t device, uint32_t id, const std::vector<uint8_t>& body = {});
    // Closes with a log line naming the reason; closed() follows.
    void fail(const QString& reason);
    void close();

    bool isOpen() const { return open_; }
    const QString& peerName() const { return peerName_; }
    QTcpSocket* socket() const { return socket_; }

signals:
    void closed();

private:
    void readAvailable();

    QTcpSocket* socket_;
    QString peerName_;
    orgb::PacketSplitter splitter_;
    Handler handler_;
    bool open_ = true;
};
