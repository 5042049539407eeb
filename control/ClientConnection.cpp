#include "ClientConnection.h"

#include <QLocalSocket>
#include <QLoggingCategory>

#include <utility>

#include <sys/socket.h>

Q_LOGGING_CATEGORY(lcClient, "norvalex.control.client")

namespace {

// What a client that does not read may hold up: previews stop first, then the client goes.
// Kept small, so that the most clients the server takes fit in a few tens of megabytes.
constexpr qint64 kMaxPreviewBacklogBytes = 32 * 1024;
constexpr qint64 kMaxQueuedBytes = 256 * 1024;
// Faults logged per connection; a flood of bad frames is summed up instead.
constexpr int kMaxLoggedFaults = 20;

} // namespace

ClientConnection::ClientConnection(QLocalSocket* socket, int id, RequestHandler handler,
                                   QObject* parent)
    : QObject(parent), socket_(socket), id_(id), handler_(std::move(handler))
{
    socket_->setParent(this);
    connect(socket_, &QLocalSocket::readyRead, this, &ClientConnection::readFrames);
    connect(socket_, &QLocalSocket::disconnected, this, [this]() {
        closing_ = true;
        emit closed(this);
    });
}

ClientConnection::~ClientConnection()
{
    if (loggedFaults_ > kMaxLoggedFaults)
        qCWarning(lcClient) << "client" << id_ << "sent" << loggedFaults_ << "faulty frames in all";
}

void ClientConnection::send(const std::vector<uint8_t>& frame, bool droppable)
{
    if (closing_ || socket_->state() != QLocalSocket::ConnectedState)
        return;
    const qint64 queued = socket_->bytesToWrite();
    if (droppable && queued > kMaxPreviewBacklogBytes)
        return;
    if (queued + qint64(frame.size()) > kMaxQueuedBytes) {
        qCWarning(lcClient) << "client" << id_ << "does not read; dropping it";
        abort();
        return;
    }
    const char* bytes = reinterpret_cast<const char*>(frame.data());
    qint64 sent = 0;
    // With nothing queued the frame goes straight to the socket: Qt's buffered write would
    // wake the event loop twice and poll once more for every frame.
    if (queued == 0) {
        const ssize_t written = ::send(int(socket_->socketDescriptor()), bytes, frame.size(),
                                       MSG_DONTWAIT | MSG_NOSIGNAL);
        if (written > 0)
            sent = written;
    }
    // The rest, or a failure for the socket to notice, goes the buffered way.
    if (sent < qint64(frame.size()))
        socket_->write(bytes + sent, qint64(frame.size()) - sent);
}

void ClientConnection::close()
{
    if (closing_)
        return;
    closing_ = true;
    socket_->disconnectFromServer();
}

void ClientConnection::abort()
{
    if (closing_)
        return;
    // Closing politely would wait for the queue to drain, which it may never do.
    closing_ = true;
    socket_->abort();
    emit closed(this);
}

void ClientConnection::readFrames()
{
    while (!closing_ && socket_->bytesAvailable() > 0) {
        const QByteArray bytes = socket_->read(64 * 1024);
        decoder_.feed(reinterpret_cast<const uint8_t*>(bytes.constData()),
                      std::size_t(bytes.size()));
        nxproto::Frame frame;
        std::string error;
        for (;;) {
            const auto status = decoder_.next(frame, &error);
            if (status == nxproto::FrameDecoder::Status::NeedMore)
                break;
            if (status == nxproto::FrameDecoder::Status::Error) {
                refuse(0, nxproto::ErrorCode::Malformed, error);
                close();
                return;
            }
            handleFrame(frame);
            if (closing_)
                return;
        }
    }
}

void ClientConnection::handleFrame(const nxproto::Frame& frame)
{
    if (!nxproto::isRequestType(frame.type)) {
        refuse(nxproto::requestSeq(frame), nxproto::ErrorCode::UnknownType,
               "unknown message type " + std::to_string(frame.type));
        return;
    }
    nxproto::Request request;
    std::string error;
    if (!nxproto::decodeRequest(frame, request, &error)) {
        refuse(nxproto::requestSeq(frame), nxproto::ErrorCode::BadPayload, error);
        return;
    }
    raiseLastSeq(request.seq);
    handler_(*this, request);
}

void ClientConnection::refuse(uint32_t seq, nxproto::ErrorCode code, const std::string& reason)
{
    if (++loggedFaults_ <= kMaxLoggedFaults)
        qCWarning(lcClient).noquote()
            << "client" << id_ << "refused frame:" << QString::fromStdString(reason);
    nxproto::ErrorMessage message;
    message.seq = seq;
    message.code = code;
    message.text = reason;
    send(nxproto::encodeError(message));
}
