#pragma once

#include "OrgbPacket.h"

#include <QObject>

class QTcpSocket;
class SdkConnection;
class SdkServer;

// One client of the SDK server: answers its requests and applies its updates. A packet that
// breaks the protocol closes the connection with a log line.
class SdkSession : public QObject
{
    Q_OBJECT

public:
    SdkSession(QTcpSocket* socket, SdkServer& server, QObject* parent = nullptr);

    void notifyDeviceListUpdated();
    uint32_t protocolVersion() const { return version_; }
    const QString& clientName() const { return name_; }

signals:
    void finished(SdkSession* session);

private:
    void handle(const orgb::Packet& packet);
    // The module that a device index names, or -1 after closing the connection.
    int moduleIndex(const orgb::Packet& packet);
    void sendControllerData(const orgb::Packet& packet);
    void updateMode(const orgb::Packet& packet, int index);
    void enterDirect(int index);
    void setColors(int index, int first, const std::vector<uint32_t>& colors);
    void reject(const QString& reason);

    SdkServer& server_;
    SdkConnection* connection_;
    uint32_t version_ = 0;
    QString name_;
};
