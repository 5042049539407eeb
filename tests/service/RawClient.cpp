#include "RawClient.h"

#include <QElapsedTimer>

bool RawClient::connectTo(const QString& path, int timeoutMs)
{
    socket_.connectToServer(path);
    return socket_.waitForConnected(timeoutMs);
}

void RawClient::sendBytes(const QByteArray& bytes)
{
    socket_.write(bytes);
    socket_.flush();
}

void RawClient::sendBytes(const std::vector<uint8_t>& bytes)
{
    sendBytes(QByteArray(reinterpret_cast<const char*>(bytes.data()), int(bytes.size())));
}

uint32_t RawClient::send(nxproto::Request request, uint32_t seq)
{
    request.seq = seq != 0 ? seq : nextSeq_++;
    sendBytes(nxproto::encodeRequest(request));
    return request.seq;
}

bool RawClient::nextFrame(nxproto::Frame* frame, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        const auto status = decoder_.next(*frame);
        if (status == nxproto::FrameDecoder::Status::Frame)
            return true;
        if (status == nxproto::FrameDecoder::Status::Error)
            return false;
        const qint64 left = timeoutMs - clock.elapsed();
        if (left <= 0)
            return false;
        if (socket_.bytesAvailable() == 0 && !socket_.waitForReadyRead(int(left)))
            return false;
        const QByteArray bytes = socket_.readAll();
        decoder_.feed(reinterpret_cast<const uint8_t*>(bytes.constData()),
                      std::size_t(bytes.size()));
    }
}

bool RawClient::waitFor(nxproto::MessageType type, nxproto::Frame* frame, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    nxproto::Frame next;
    while (clock.elapsed() < timeoutMs) {
        if (!nextFrame(&next, int(timeoutMs - clock.elapsed())))
            return false;
        if (next.type == static_cast<uint16_t>(type)) {
            *frame = next;
            return true;
        }
    }
    return false;
}

bool RawClient::waitForState(nxproto::StateMessage* state, uint32_t ackSeq, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    nxproto::Frame frame;
    while (clock.elapsed() < timeoutMs) {
        if (!waitFor(nxproto::MessageType::State, &frame, int(timeoutMs - clock.elapsed())))
            return false;
        if (nxproto::decodeState(frame, *state, nullptr) && state->ackSeq >= ackSeq)
            return true;
    }
    return false;
}

bool RawClient::waitForDisconnected(int timeoutMs)
{
    if (socket_.state() == QLocalSocket::UnconnectedState)
        return true;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < timeoutMs) {
        socket_.waitForReadyRead(50);
        socket_.readAll();
        if (socket_.state() == QLocalSocket::UnconnectedState)
            return true;
    }
    return false;
}

bool RawClient::isConnected() const
{
    return socket_.state() == QLocalSocket::ConnectedState;
}

int RawClient::countFor(nxproto::MessageType type, int ms, nxproto::Frame* last)
{
    QElapsedTimer clock;
    clock.start();
    int count = 0;
    nxproto::Frame frame;
    while (clock.elapsed() < ms) {
        if (!nextFrame(&frame, int(ms - clock.elapsed())))
            break;
        if (frame.type == static_cast<uint16_t>(type)) {
            ++count;
            if (last)
                *last = frame;
        }
    }
    return count;
}
