#pragma once

#include "FrameDecoder.h"
#include "Messages.h"

#include <QByteArray>
#include <QLocalSocket>
#include <QString>

// A protocol client without the lighting library: sends hand-made bytes and requests, reads
// the service's frames with blocking waits.
class RawClient
{
public:
    bool connectTo(const QString& path, int timeoutMs = 2000);
    void sendBytes(const QByteArray& bytes);
    // Sends the request with the next seq of this client and returns that seq.
    uint32_t send(nxproto::Request request);

    // Waits for the next frame of `type`, dropping others. False on timeout or disconnection.
    bool waitFor(nxproto::MessageType type, nxproto::Frame* frame, int timeoutMs = 2000);
    // Waits for a state that acknowledges at least `ackSeq`.
    bool waitForState(nxproto::StateMessage* state, uint32_t ackSeq = 0, int timeoutMs = 2000);
    bool isConnected() const;
    // Counts frames of `type` arriving during `ms`.
    int countFor(nxproto::MessageType type, int ms);

private:
    bool nextFrame(nxproto::Frame* frame, int timeoutMs);

    QLocalSocket socket_;
    nxproto::FrameDecoder decoder_;
    uint32_t nextSeq_ = 1;
};
