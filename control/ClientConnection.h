#pragma once

#include "FrameDecoder.h"
#include "Messages.h"

#include <QObject>

#include <functional>
#include <vector>

class QLocalSocket;

// One client of the service: splits its stream into requests, refuses malformed ones with an
// error reply (closing the connection when the framing itself is broken) and hands the valid
// ones to the service.
class ClientConnection : public QObject
{
    Q_OBJECT

public:
    using RequestHandler = std::function<void(ClientConnection&, const nxproto::Request&)>;

    ClientConnection(QLocalSocket* socket, int id, RequestHandler handler,
                     QObject* parent = nullptr);
    ~ClientConnection() override;

    int id() const { return id_; }
    // The highest seq taken from this client.
    uint32_t lastSeq() const { return lastSeq_; }
    void raiseLastSeq(uint32_t seq) { lastSeq_ = seq > lastSeq_ ? seq : lastSeq_; }
    // The highest seq whose effect is on disk: what a state sent to it acknowledges.
    uint32_t durableSeq() const { return durableSeq_; }
    void markDurable() { durableSeq_ = lastSeq_; }
    // The identity announced by Hello, 0 for an anonymous client.
    uint64_t clientId() const { return clientId_; }
    void setClientId(uint64_t id) { clientId_ = id; }
    // Owed a state that acknowledges its latest requests.
    bool needsAck() const { return needsAck_; }
    void setNeedsAck(bool on) { needsAck_ = on; }
    bool wantsPreview() const { return wantsPreview_; }
    void setWantsPreview(bool on) { wantsPreview_ = on; }

    // Queues `frame`. A droppable one (a preview) is skipped while the client lags; a client
    // whose queue still grows past the limit is dropped.
    void send(const std::vector<uint8_t>& frame, bool droppable = false);
    void close();
    // Closes at once, without waiting for the queue.
    void abort();

signals:
    void closed(ClientConnection* connection);

private:
    void readFrames();
    void handleFrame(const nxproto::Frame& frame);
    void refuse(uint32_t seq, nxproto::ErrorCode code, const std::string& reason);

    QLocalSocket* socket_;
    int id_;
    RequestHandler handler_;
    nxproto::FrameDecoder decoder_;
    uint32_t lastSeq_ = 0;
    uint32_t durableSeq_ = 0;
    uint64_t clientId_ = 0;
    bool needsAck_ = false;
    bool wantsPreview_ = false;
    bool closing_ = false;
    int loggedFaults_ = 0;
};
