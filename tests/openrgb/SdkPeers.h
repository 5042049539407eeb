#pragma once

// Both ends of an OpenRGB SDK conversation for tests: a scripted server and a blocking client.

#include "OrgbPacket.h"
#include "PacketSplitter.h"
#include "ReadUntil.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <functional>
#include <vector>

inline void writeTo(QIODevice* device, const std::vector<uint8_t>& bytes)
{
    device->write(reinterpret_cast<const char*>(bytes.data()), qint64(bytes.size()));
}

// A scripted OpenRGB SDK server: answers the version, count and controller data requests
// with recorded bytes, and keeps every packet the client sent.
class FakeOrgbServer : public QObject
{
public:
    using Describe = std::function<std::vector<uint8_t>(uint32_t index, uint32_t version)>;

    FakeOrgbServer(uint32_t version, uint32_t count, Describe describe)
        : version_(version), count_(count), describe_(std::move(describe))
    {
        server_.listen(QHostAddress::LocalHost, 0);
        QObject::connect(&server_, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = server_.nextPendingConnection()) {
                delete client_;
                client_ = socket;
                splitter_.reset();
                ++connections_;
                QObject::connect(socket, &QTcpSocket::readyRead, this, &FakeOrgbServer::read);
            }
        });
    }

    quint16 port() const { return server_.serverPort(); }
    int connections() const { return connections_; }
    void clearReceived() { received_.clear(); }
    int count(uint32_t id) const
    {
        return int(std::count_if(received_.begin(), received_.end(),
                                 [id](const orgb::Packet& p) { return p.id == id; }));
    }
    const orgb::Packet* last(uint32_t id, uint32_t device) const
    {
        const auto it = std::find_if(received_.rbegin(), received_.rend(), [&](const auto& p) {
            return p.id == id && p.device == device;
        });
        return it == received_.rend() ? nullptr : &*it;
    }
    void setCount(uint32_t count) { count_ = count; }
    void push(uint32_t id) { writeTo(client_, orgb::encodePacket(0, id)); }
    // Closes the connection and stops listening, until listenAgain().
    void goAway()
    {
        server_.close();
        client_->abort();
    }
    void listenAgain(quint16 port) { server_.listen(QHostAddress::LocalHost, port); }

private:
    void read()
    {
        const QByteArray bytes = client_->readAll();
        splitter_.feed(reinterpret_cast<const uint8_t*>(bytes.constData()),
                       std::size_t(bytes.size()));
        orgb::Packet packet;
        while (splitter_.next(packet) == orgb::PacketSplitter::Status::Packet) {
            received_.push_back(packet);
            uint32_t version = 0;
            if (packet.id == orgb::RequestProtocolVersion)
                writeTo(client_, orgb::encodePacket(0, packet.id, orgb::encodeU32(version_)));
            else if (packet.id == orgb::RequestControllerCount)
                writeTo(client_, orgb::encodePacket(0, packet.id, orgb::encodeU32(count_)));
            else if (packet.id == orgb::RequestControllerData &&
                     orgb::decodeU32(packet.body, &version))
                writeTo(client_, orgb::encodePacket(packet.device, packet.id,
                                                    describe_(packet.device, version)));
        }
    }

    QTcpServer server_;
    QTcpSocket* client_ = nullptr;
    orgb::PacketSplitter splitter_;
    uint32_t version_;
    uint32_t count_;
    Describe describe_;
    std::vector<orgb::Packet> received_;
    int connections_ = 0;
};

// A blocking OpenRGB SDK client for tests: sends packets or raw bytes, waits for answers.
class SdkProbe
{
public:
    bool connectTo(quint16 port)
    {
        socket_.connectToHost(QStringLiteral("127.0.0.1"), port);
        return socket_.waitForConnected(5000);
    }
    void sendBytes(const QByteArray& bytes)
    {
        socket_.write(bytes);
        socket_.flush();
    }
    void send(uint32_t device, uint32_t id, const std::vector<uint8_t>& body = {})
    {
        writeTo(&socket_, orgb::encodePacket(device, id, body));
        socket_.flush();
    }
    // The next packet of that id, dropping others; false on timeout or disconnection.
    bool waitFor(uint32_t id, orgb::Packet* packet, int timeoutMs = 5000)
    {
        return readUntil(
            socket_, splitter_, packet, orgb::PacketSplitter::Status::Packet,
            [id](const orgb::Packet& p) { return p.id == id; }, timeoutMs);
    }
    // True when the peer closed the connection within five seconds.
    bool waitForClose()
    {
        QElapsedTimer clock;
        clock.start();
        while (socket_.state() != QAbstractSocket::UnconnectedState && clock.elapsed() < 5000) {
            socket_.waitForReadyRead(100);
            socket_.readAll();
        }
        return socket_.state() == QAbstractSocket::UnconnectedState;
    }

private:
    QTcpSocket socket_;
    orgb::PacketSplitter splitter_;
};

inline quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    return server.serverPort();
}
