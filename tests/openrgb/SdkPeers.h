#pragma once

// Both ends of an OpenRGB SDK conversation for tests: a scripted server and a blocking client.

#include "OrgbPacket.h"
#include "PacketSplitter.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

#include <algorithm>
#include <functional>
#include <vector>

// A scripted OpenRGB SDK server: answers the version, count and controller data requests
// with recorded bytes, and keeps every packet the client sent.
class FakeOrgbServer : public QObject
{
public:
    // Controller data for (index, requested version).
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
                QObject::connect(socket, &QTcpSocket::readyRead, this, [this] { read(); });
            }
        });
    }

    quint16 port() const { return server_.serverPort(); }
    int connections() const { return connections_; }
    const std::vector<orgb::Packet>& received() const { return received_; }
    void clearReceived() { received_.clear(); }
    int count(uint32_t id) const
    {
        return int(std::count_if(received_.begin(), received_.end(),
                                 [id](const orgb::Packet& p) { return p.id == id; }));
    }
    const orgb::Packet* last(uint32_t id, uint32_t device) const
    {
        for (auto it = received_.rbegin(); it != received_.rend(); ++it) {
            if (it->id == id && it->device == device)
                return &*it;
        }
        return nullptr;
    }
    void setCount(uint32_t count) { count_ = count; }
    void push(uint32_t id)
    {
        const std::vector<uint8_t> bytes = orgb::encodePacket(0, id);
        client_->write(reinterpret_cast<const char*>(bytes.data()), qint64(bytes.size()));
    }
    void dropClient()
    {
        if (client_)
            client_->abort();
    }
    void stopListening() { server_.close(); }
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
            answer(packet);
        }
    }
    void answer(const orgb::Packet& packet)
    {
        std::vector<uint8_t> reply;
        if (packet.id == orgb::RequestProtocolVersion)
            reply = orgb::encodePacket(0, packet.id, orgb::encodeU32(version_));
        else if (packet.id == orgb::RequestControllerCount)
            reply = orgb::encodePacket(0, packet.id, orgb::encodeU32(count_));
        else if (packet.id == orgb::RequestControllerData) {
            uint32_t version = 0;
            orgb::decodeU32(packet.body, &version);
            reply = orgb::encodePacket(packet.device, packet.id, describe_(packet.device, version));
        }
        if (!reply.empty())
            client_->write(reinterpret_cast<const char*>(reply.data()), qint64(reply.size()));
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
        const std::vector<uint8_t> bytes = orgb::encodePacket(device, id, body);
        sendBytes(QByteArray(reinterpret_cast<const char*>(bytes.data()), int(bytes.size())));
    }
    // The next packet of that id, dropping others; false on timeout or disconnection.
    bool waitFor(uint32_t id, orgb::Packet* packet, int timeoutMs = 5000)
    {
        QElapsedTimer clock;
        clock.start();
        for (;;) {
            const auto status = splitter_.next(*packet);
            if (status == orgb::PacketSplitter::Status::Error)
                return false;
            if (status == orgb::PacketSplitter::Status::Packet) {
                if (packet->id == id)
                    return true;
                continue;
            }
            const qint64 left = timeoutMs - clock.elapsed();
            if (left <= 0 || (!socket_.bytesAvailable() && !socket_.waitForReadyRead(int(left))))
                return false;
            const QByteArray bytes = socket_.readAll();
            splitter_.feed(reinterpret_cast<const uint8_t*>(bytes.constData()),
                           std::size_t(bytes.size()));
        }
    }
    // True when the peer closed the connection within the time.
    bool waitForClose(int timeoutMs = 5000)
    {
        if (socket_.state() == QAbstractSocket::UnconnectedState)
            return true;
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < timeoutMs) {
            socket_.waitForReadyRead(100);
            socket_.readAll();
            if (socket_.state() == QAbstractSocket::UnconnectedState)
                return true;
        }
        return false;
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
