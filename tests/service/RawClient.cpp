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

uint32_t RawClient::send(nxproto::Request request)
{
    request.seq = nextSeq_++;
    const std::vector<uint8_t> frame = nxproto::encodeRequest(request);
    sendBytes(QByteArray(reinterpret_cast<const char*>(frame.data()), int(frame.size())));
    return request.seq;
}

bool RawClient::nextFrame(nxproto::Frame* frame, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        const auto status = decoder_.next(*frame);
        if (status != nxproto::FrameDecoder::Status::NeedMore)
            return status == nxproto::FrameDecoder::Status::Frame;
        const qint64 left = timeoutMs - clock.elapsed();
        if (left <= 0 || (socket_.bytesAvailable() == 0 && !socket_.waitForReadyRead(int(left))))
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
    while (nextFrame(frame, int(timeoutMs - clock.elapsed()))) {
        if (frame->type == static_cast<uint16_t>(type))
            return true;
    }
    return false;
}

bool RawClient::waitForState(nxproto::StateMessage* state, uint32_t ackSeq, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    nxproto::Frame frame;
    while (waitFor(nxproto::MessageType::State, &frame, int(timeoutMs - clock.elapsed()))) {
        if (nxproto::decodeState(frame, *state, nullptr) && state->ackSeq >= ackSeq)
            return true;
    }
    return false;
}

bool RawClient::isConnected() const
{
    return socket_.state() == QLocalSocket::ConnectedState;
}

int RawClient::countFor(nxproto::MessageType type, int ms)
{
    QElapsedTimer clock;
    clock.start();
    int count = 0;
    nxproto::Frame frame;
    while (nextFrame(&frame, int(ms - clock.elapsed())))
        count += frame.type == static_cast<uint16_t>(type);
    return count;
}
