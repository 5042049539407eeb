#include "ControlService.h"

#include "ModuleControllers.h"
#include "OpenRgbOutput.h"
#include "OutputChoice.h"
#include "SdkServer.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QLoggingCategory>

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

    // Not restarted by later changes, so a steady stream of changes is still saved.
    saveTimer_.setSingleShot(true);
    saveTimer_.setInterval(kSaveDelayMs);
    connect(&saveTimer_, &QTimer::timeout, this, &ControlService::saveNow);

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
    if (loaded != StateFile::LoadResult::Loaded)
        saveNow();

    monitor_ = std::make_unique<HardwareMonitor>(simulation_);
    connect(monitor_.get(), &HardwareMonitor::updated, this, &ControlService::broadcastHardware);
    qCInfo(lcService) << "simulating" << simulation_.modules << "modules with" << simulation_.leds
                      << "LEDs";

    if (!startOpenRgb(error))
        return false;
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
    if (sdkServer_)
        sdkServer_->close();
    output_.reset();
    broadcastTimer_.stop();
    if (monitor_)
        monitor_->disconnect(this);
    if (dirty_ || saveTimer_.isActive())
        saveNow();
    server_.close();
}

void ControlService::handleRequest(ClientConnection& client, const nxproto::Request& request)
{
    switch (request.type) {
    case nxproto::MessageType::Hello:
        if (appliedSeqs_.size() >= kMaxKnownClients)
            appliedSeqs_.clear();
        client.setClientId(request.clientId);
        client.raiseLastSeq(appliedSeqs_[request.clientId]);
        client.setNeedsAck(true);
        scheduleBroadcast();
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
    // The user's own change to a module ends an SDK client's direct control of it.
    if (request.type == nxproto::MessageType::SetLighting ||
        request.type == nxproto::MessageType::SetColors)
        direct_.leave(request.slot);
    else if (request.type == nxproto::MessageType::SetProfile)
        direct_.leaveAll();
    const uint32_t changes = nxproto::applyRequest(state_, request);
    pendingChanges_ |= changes;
    client.setNeedsAck(true);
    scheduleBroadcast();
    scheduleSave();
}

void ControlService::welcome(ClientConnection* client)
{
    nxproto::StateMessage message;
    message.ackSeq = client->lastSeq();
    message.changes = nxproto::ChangeAll;
    message.state = state_;
    client->send(nxproto::encodeState(message));
    client->send(nxproto::encodeHardware(hardwareInfo()));
}

void ControlService::scheduleBroadcast()
{
    if (!broadcastTimer_.isActive())
        broadcastTimer_.start();
}

void ControlService::broadcastState()
{
    nxproto::StateMessage message;
    message.changes = pendingChanges_;
    message.state = state_;
    pendingChanges_ = 0;
    if (sdkServer_ && (message.changes & (nxproto::ChangeLighting | nxproto::ChangeProfile)))
        sdkServer_->setModules(ModuleControllers::fromHardware(hardwareInfo(), state_));
    const auto clients = server_.clients();
    for (ClientConnection* client : clients) {
        // A change goes to everyone; a bare acknowledgement only to whom it is owed.
        if (message.changes == 0 && !client->needsAck())
            continue;
        client->setNeedsAck(false);
        message.ackSeq = client->lastSeq();
        client->send(nxproto::encodeState(message));
    }
}

void ControlService::broadcastHardware()
{
    const nxproto::HardwareInfo hardware = hardwareInfo();
    if (sdkServer_)
        sdkServer_->setModules(ModuleControllers::fromHardware(hardware, state_));
    const std::vector<uint8_t> frame = nxproto::encodeHardware(hardware);
    const auto clients = server_.clients();
    for (ClientConnection* client : clients)
        client->send(frame);
}

void ControlService::renderFrame()
{
    nxproto::PreviewMessage message;
    message.frame = ++frameNumber_;
    EffectRenderer::render(state_, hardwareInfo(), double(clock_.elapsed()) / 1000.0,
                           message.colors);
    direct_.apply(message.colors);
    if (sdkServer_)
        sdkServer_->setFrame(message.colors);
    if (output_)
        output_->showFrame(message.colors);
    std::vector<uint8_t> frame;
    const auto clients = server_.clients();
    for (ClientConnection* client : clients) {
        if (!client->wantsPreview())
            continue;
        if (frame.empty())
            frame = nxproto::encodePreview(message);
        client->send(frame);
    }
}

void ControlService::scheduleSave()
{
    dirty_ = true;
    if (!saveTimer_.isActive())
        saveTimer_.start();
}

void ControlService::saveNow()
{
    saveTimer_.stop();
    if (stateFile_.save(state_, storedSimulation_))
        dirty_ = false;
}

nxproto::HardwareInfo ControlService::hardwareInfo() const
{
    nxproto::HardwareInfo info = monitor_->info();
    if (output_)
        output_->report(info);
    return info;
}

bool ControlService::startOpenRgb(QString* error)
{
    OutputChoice choice;
    std::string reason;
    if (OutputChoice::parse(simulation_.output, &choice, &reason) && choice.openrgb) {
        output_ = std::make_unique<OpenRgbOutput>(QString::fromStdString(choice.host), choice.port);
        connect(output_.get(), &OpenRgbOutput::modulesChanged, this,
                &ControlService::broadcastHardware);
        output_->start();
    }
    if (options_.sdkServerHost.isEmpty())
        return true;
    const QHostAddress address(options_.sdkServerHost);
    if (address.isNull()) {
        *error = QStringLiteral("--sdk-server needs an IP address, not ") + options_.sdkServerHost;
        return false;
    }
    sdkServer_ =
        std::make_unique<SdkServer>(direct_, QCoreApplication::applicationVersion().toStdString());
    sdkServer_->setModules(ModuleControllers::fromHardware(hardwareInfo(), state_));
    connect(sdkServer_.get(), &SdkServer::lightModeRequested, this,
            &ControlService::applySdkLightMode);
    return sdkServer_->listen(address, options_.sdkServerPort, error);
}

void ControlService::applySdkLightMode(int slot, int lightMode, int lightSpeed)
{
    nxproto::Request request;
    request.type = nxproto::MessageType::SetLighting;
    request.slot = slot;
    request.lightMode = lightMode;
    request.colorMode = state_.module(slot).colorMode;
    request.lightSpeed = lightSpeed;
    request.turnOff = state_.module(slot).turnOff;
    if (!nxproto::validateRequest(request).empty())
        return;
    pendingChanges_ |= nxproto::applyRequest(state_, request);
    sdkServer_->setModules(ModuleControllers::fromHardware(hardwareInfo(), state_));
    scheduleBroadcast();
    scheduleSave();
}
