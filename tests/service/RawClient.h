#pragma once

#include "FrameDecoder.h"
#include "Messages.h"
#include "ReadUntil.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QRandomGenerator>

inline QByteArray bytesOf(const std::vector<uint8_t>& frame)
{
    return QByteArray(reinterpret_cast<const char*>(frame.data()), int(frame.size()));
}

inline nxproto::Request lightingRequest(int slot, int mode)
{
    nxproto::Request request;
    request.type = nxproto::MessageType::SetLighting;
    request.slot = slot;
    request.lightMode = mode;
    return request;
}

// A protocol client without the lighting library: sends hand-made bytes and requests, reads
// the service's frames with blocking waits.
class RawClient
{
public:
    // Connects and introduces itself with a fresh identity, as the service drops connections
    // that stay silent.
    bool connectTo(const QString& path)
    {
        socket_.connectToServer(path);
        if (!socket_.waitForConnected(2000))
            return false;
        nxproto::Request hello;
        hello.type = nxproto::MessageType::Hello;
        hello.clientId = QRandomGenerator::global()->generate64() | 1;
        sendBytes(bytesOf(nxproto::encodeRequest(hello)));
        return true;
    }
    // Connects and returns the first state the service sends.
    nxproto::StateMessage connectForState(const QString& path)
    {
        nxproto::StateMessage state;
        if (!connectTo(path) || !waitForState(&state, 0, 5000))
            qWarning("no state from the service");
        return state;
    }
    bool isConnected() const { return socket_.state() == QLocalSocket::ConnectedState; }
    void sendBytes(const QByteArray& bytes)
    {
        socket_.write(bytes);
        socket_.flush();
    }
    // Sends the request with the next seq of this client and returns that seq.
    uint32_t send(nxproto::Request request)
    {
        request.seq = nextSeq_++;
        sendBytes(bytesOf(nxproto::encodeRequest(request)));
        return request.seq;
    }

    // Waits for the next frame of `type`, dropping others. False on timeout, disconnection or
    // broken framing.
    bool waitFor(nxproto::MessageType type, nxproto::Frame* frame, int timeoutMs = 2000)
    {
        return readUntil(
            socket_, decoder_, frame, nxproto::FrameDecoder::Status::Frame,
            [type](const nxproto::Frame& f) { return f.type == uint16_t(type); }, timeoutMs);
    }
    // Waits for a state that acknowledges at least `ackSeq`.
    bool waitForState(nxproto::StateMessage* state, uint32_t ackSeq = 0, int timeoutMs = 2000)
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
    // Counts frames of `type` arriving during `ms`.
    int countFor(nxproto::MessageType type, int ms)
    {
        QElapsedTimer clock;
        clock.start();
        nxproto::Frame frame;
        int count = 0;
        while (waitFor(type, &frame, int(ms - clock.elapsed())))
            ++count;
        return count;
    }

private:
    QLocalSocket socket_;
    nxproto::FrameDecoder decoder_;
    uint32_t nextSeq_ = 1;
};
