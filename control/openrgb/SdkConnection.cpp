#include "SdkConnection.h"

#include "OrgbLog.h"

#include <QPointer>
#include <QTcpSocket>

namespace {

constexpr qint64 kReadChunk = 64 * 1024;

} // namespace

SdkConnection::SdkConnection(QTcpSocket* socket, const QString& peerName, QObject* parent)
    : QObject(parent), socket_(socket), peerName_(peerName)
{
    socket_->setParent(this);
    connect(socket_, &QTcpSocket::readyRead, this, &SdkConnection::readAvailable);
    connect(socket_, &QTcpSocket::disconnected, this, &SdkConnection::close);
    connect(socket_, &QAbstractSocket::errorOccurred, this, [this](QAbstractSocket::SocketError) {
        if (socket_->state() != QAbstractSocket::ConnectedState)
            close();
    });
}

SdkConnection::~SdkConnection()
{
    if (socket_)
        socket_->disconnect(this);
}

void SdkConnection::send(const std::vector<uint8_t>& bytes)
{
    if (!open_)
        return;
    if (socket_->bytesToWrite() > kMaxBacklog) {
        fail(QStringLiteral("peer does not read what is sent"));
        return;
    }
    socket_->write(reinterpret_cast<const char*>(bytes.data()), qint64(bytes.size()));
}

void SdkConnection::send(uint32_t device, uint32_t id, const std::vector<uint8_t>& body)
{
    send(orgb::encodePacket(device, id, body));
}

void SdkConnection::fail(const QString& reason)
{
    if (!open_)
        return;
    qCWarning(lcOpenRgb).noquote() << "closing connection with" << peerName_ << "-" << reason;
    close();
}

void SdkConnection::close()
{
    if (!open_)
        return;
    open_ = false;
    socket_->disconnect(this);
    socket_->abort();
    emit closed();
}

void SdkConnection::readAvailable()
{
    // The handler may close this connection, or its owner may delete it later on: stop then.
    QPointer<SdkConnection> guard(this);
    char chunk[kReadChunk];
    while (open_ && socket_->bytesAvailable() > 0) {
        const qint64 got = socket_->read(chunk, sizeof chunk);
        if (got <= 0)
            break;
        splitter_.feed(reinterpret_cast<const uint8_t*>(chunk), std::size_t(got));
        orgb::Packet packet;
        std::string error;
        for (;;) {
            const orgb::PacketSplitter::Status status = splitter_.next(packet, &error);
            if (status == orgb::PacketSplitter::Status::NeedMore)
                break;
            if (status == orgb::PacketSplitter::Status::Error) {
                fail(QString::fromStdString(error));
                return;
            }
            if (handler_)
                handler_(packet);
            if (!guard || !open_)
                return;
        }
    }
}
