#pragma once

#include "PacketSplitter.h"

#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>

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
