#include "ControlService.h"

#include <QLoggingCategory>

#include <algorithm>

Q_LOGGING_CATEGORY(lcService, "norvalex.control")

ControlService::ControlService(const ServiceOptions& options, const QString& statePath,
                               const QString& socketPath, QObject* parent)
    : QObject(parent), options_(options), socketPath_(socketPath), stateFile_(statePath),
      server_([this](ClientConnection& client, const nxproto::Request& request) {
          handleRequest(client, request);
      })
{
    // Changes made in one pass of the event loop go out as one push.
    broadcastTimer_.setSingleShot(true);
    broadcastTimer_.setInterval(0);
    connect(&broadcastTimer_, &QTimer::timeout, this, &ControlService::broadcastState);

    retryTimer_.setSingleShot(true);
    connect(&retryTimer_, &QTimer::timeout, this, &ControlService::retrySave);

    frameTimer_.setTimerType(Qt::PreciseTimer);
    frameTimer_.setInterval(kFrameIntervalMs);
    connect(&frameTimer_, &QTimer::timeout, this, &ControlService::renderFrame);

    connect(&server_, &ControlServer::clientConnected, this, &ControlService::welcome);
}

ControlService::~ControlService()
{
    stop();
}

bool ControlService::start(QString* error)
{
    const StateFile::LoadResult loaded = stateFile_.load(&state_, &storedSimulation_);
    simulation_ = options_.apply(storedSimulation_);
    qCInfo(lcService).noquote() << (loaded == StateFile::LoadResult::Loaded
                                        ? "state loaded from"
                                        : "starting with defaults; state file")
                                << stateFile_.path();
    if (loaded != StateFile::LoadResult::Loaded) {
        dirty_ = true;
        commit();
    }

    monitor_ = std::make_unique<HardwareMonitor>(simulation_);
    connect(monitor_.get(), &HardwareMonitor::updated, this, &ControlService::broadcastHardware);
    qCInfo(lcService) << "simulating" << simulation_.modules << "modules with" << simulation_.leds
                      << "LEDs";

    if (!server_.listen(socketPath_, error))
        return false;
    monitor_->start();
    clock_.start();
    frameTimer_.start();
    return true;
}

void ControlService::stop()
{
    frameTimer_.stop();
    broadcastTimer_.stop();
    if (monitor_)
        monitor_->disconnect(this);
    retryTimer_.stop();
    if (dirty_ && !commit())
        qCCritical(lcService) << "exiting with unsaved changes";
    server_.close();
}

void ControlService::handleRequest(ClientConnection& client, const nxproto::Request& request)
{
    switch (request.type) {
    case nxproto::MessageType::Hello:
        if (appliedSeqs_.size() >= kMaxKnownClients)
            appliedSeqs_.clear();
        client.setClientId(request.clientId);
        // A returning client learns what it need not send again; a new one has its state.
        if (const uint32_t applied = appliedSeqs_[request.clientId]) {
            client.raiseLastSeq(applied);
            client.setNeedsAck(true);
            scheduleBroadcast();
        }
        return;
    case nxproto::MessageType::SetPreview:
        client.setWantsPreview(request.preview);
        return;
    default:
        break;
    }
    if (client.clientId() != 0) {
        uint32_t& applied = appliedSeqs_[client.clientId()];
        if (request.seq <= applied) {
            client.setNeedsAck(true);
            scheduleBroadcast();
            return;
        }
        applied = request.seq;
    }
    // A request that leaves the state as it was is acknowledged, but is no change: no push to
    // the others, no light-mode event, no save.
    const uint32_t changes = nxproto::applyRequest(state_, request);
    client.setNeedsAck(true);
    scheduleBroadcast();
    if (changes == 0)
        return;
    pendingChanges_ |= changes;
    dirty_ = true;
}

void ControlService::welcome(ClientConnection* client)
{
    nxproto::StateMessage message;
    message.ackSeq = client->durableSeq();
    message.changes = nxproto::ChangeAll;
    message.state = state_;
    client->send(nxproto::encodeState(message));
    client->send(nxproto::encodeHardware(monitor_->info()));
}

void ControlService::scheduleBroadcast()
{
    if (!broadcastTimer_.isActive())
        broadcastTimer_.start();
}

void ControlService::broadcastState()
{
    // During a failing episode only the retry timer writes; changes still go out, their
    // acknowledgements wait.
    const bool durable = retryTimer_.isActive() ? !dirty_ : commit();
    nxproto::StateMessage message;
    message.changes = pendingChanges_;
    message.state = state_;
    pendingChanges_ = 0;
    const auto clients = server_.clients();
    for (ClientConnection* client : clients) {
        if (durable)
            client->markDurable();
        const bool owed = durable && client->needsAck();
        // A change goes to everyone; a bare acknowledgement only to whom it is owed.
        if (message.changes == 0 && !owed)
            continue;
        if (durable)
            client->setNeedsAck(false);
        message.ackSeq = client->durableSeq();
        client->send(nxproto::encodeState(message));
    }
}

void ControlService::broadcastHardware()
{
    const std::vector<uint8_t> frame = nxproto::encodeHardware(monitor_->info());
    const auto clients = server_.clients();
    for (ClientConnection* client : clients)
        client->send(frame);
}

void ControlService::renderFrame()
{
    nxproto::PreviewMessage message;
    message.frame = ++frameNumber_;
    EffectRenderer::render(state_, monitor_->info(), double(clock_.elapsed()) / 1000.0,
                           message.colors);
    std::vector<uint8_t> frame;
    const auto clients = server_.clients();
    for (ClientConnection* client : clients) {
        if (!client->wantsPreview())
            continue;
        if (frame.empty())
            frame = nxproto::encodePreview(message);
        client->send(frame, true);
    }
}

bool ControlService::commit()
{
    if (!dirty_)
        return true;
    QString error;
    if (!stateFile_.save(state_, storedSimulation_, &error)) {
        if (failedSaves_++ == 0)
            qCWarning(lcService).noquote()
                << "cannot save the state to" << stateFile_.path() << "(" + error + ");"
                << "keeping the changes and retrying";
        const int delay = std::min(kMaxRetryMs, kFirstRetryMs << std::min(failedSaves_ - 1, 7));
        retryTimer_.start(delay);
        return false;
    }
    if (failedSaves_ > 0)
        qCInfo(lcService).noquote()
            << "state saved again after" << failedSaves_ << "failed attempts";
    failedSaves_ = 0;
    dirty_ = false;
    return true;
}

void ControlService::retrySave()
{
    if (commit())
        scheduleBroadcast(); // the acknowledgements that waited
}
