#include "ControlService.h"

#include "AutostartEntry.h"
#include "DesktopLanguage.h"
#include "DesktopNotifier.h"
#include "OpenRgbLink.h"
#include "ResumeWatch.h"
#include "SimulatedModules.h"
#include "SleepWatcher.h"
#include "SystemModules.h"

#include <QLoggingCategory>
#include <QRandomGenerator>

#include <algorithm>

Q_LOGGING_CATEGORY(lcService, "norvalex.control")

ControlService::ControlService(const ServiceOptions& options, const QString& statePath,
                               const QString& socketPath, QObject* parent)
    : ControlService(options, statePath, socketPath, QDBusConnection::sessionBus(),
                     QDBusConnection::systemBus(), parent)
{
}

ControlService::ControlService(const ServiceOptions& options, const QString& statePath,
                               const QString& socketPath, const QDBusConnection& sessionBus,
                               const QDBusConnection& systemBus, QObject* parent)
    : QObject(parent), options_(options), socketPath_(socketPath), stateFile_(statePath),
      server_([this](ClientConnection& client, const nxproto::Request& request) {
          handleRequest(client, request);
      }),
      notifier_(new DesktopNotifier(sessionBus, systemBus, this)),
      rules_(new RuleActions(notifier_, this)), sleepWatcher_(new SleepWatcher(systemBus, this)),
      openRgb_(new OpenRgbLink(this))
{
    connect(sleepWatcher_, &SleepWatcher::resumed, this, [this] {
        qCInfo(lcService) << "resumed from suspend: re-applying the lighting";
        reapplyLighting();
    });

    // Changes made in one pass of the event loop go out as one push.
    broadcastTimer_.setSingleShot(true);
    broadcastTimer_.setInterval(0);
    connect(&broadcastTimer_, &QTimer::timeout, this, &ControlService::broadcastState);

    retryTimer_.setSingleShot(true);
    connect(&retryTimer_, &QTimer::timeout, this, &ControlService::retrySave);

    seed_ = QRandomGenerator::global()->generate64();
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
        // A first start speaks the desktop's language; the stored choice holds afterwards.
        state_.setting.languageIndex = DesktopLanguage::systemIndex();
        dirty_ = true;
        commit();
    }

    monitor_ = std::make_unique<HardwareMonitor>(makeModuleSource(), options_.root);
    connect(monitor_.get(), &HardwareMonitor::updated, this, &ControlService::broadcastHardware);
    connect(monitor_.get(), &HardwareMonitor::updated, this, &ControlService::checkRules);
    // Temperatures and the rules feed the picture.
    connect(monitor_.get(), &HardwareMonitor::updated, this, &ControlService::updateRendering);
    qCInfo(lcService).noquote() << "modules:" << monitor_->source().description();
    if (!notifier_->hasSessionBus())
        qCInfo(lcService) << "no session bus: temperature warnings go to the log only";
    if (!sleepWatcher_->isWatching()) {
        // Without logind a jump of the wall clock past the monotonic one tells of a resume.
        qCInfo(lcService) << "logind not reachable: resume noticed by the clocks";
        resumeWatch_ = new ResumeWatch(this);
        connect(resumeWatch_, &ResumeWatch::resumed, this, [this] {
            qCInfo(lcService) << "resumed: re-applying the lighting";
            reapplyLighting();
        });
    }
    syncAutostart();

    connect(openRgb_, &OpenRgbLink::modulesChanged, this, &ControlService::openRgbModulesChanged);
    connect(openRgb_, &OpenRgbLink::pictureChanged, this, &ControlService::updateRendering);
    connect(openRgb_, &OpenRgbLink::lightModeRequested, this, &ControlService::applySdkLightMode);
    connect(this, &ControlService::lightingReapplied, openRgb_, &OpenRgbLink::reapply);
    if (!openRgb_->start(simulation_.output, options_.sdkServerHost, options_.sdkServerPort, error))
        return false;
    openRgb_->setModules(hardwareInfo(), state_);
    if (!server_.listen(socketPath_, error))
        return false;
    clock_.start();
    updateRendering();
    return true;
}

std::unique_ptr<ModuleSource> ControlService::makeModuleSource() const
{
    if (options_.moduleMode == ServiceOptions::ModuleMode::Auto) {
        MemoryProbe probe(options_.root);
        if (probe.probe())
            return std::make_unique<SystemModules>(std::move(probe));
        qCInfo(lcService) << "no memory modules found in SMBIOS; falling back to the simulation";
    }
    return std::make_unique<SimulatedModules>(simulation_);
}

void ControlService::stop()
{
    frameTimer_.stop();
    music_.stop();
    openRgb_->stop();
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
        // A new subscriber gets the current picture at once, even a static one.
        if (request.preview)
            haveFrame_ = false;
        updateRendering();
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
        leaveDirect(request.slot);
    else if (request.type == nxproto::MessageType::SetProfile)
        leaveDirect(-1);
    // A request that leaves the state as it was is acknowledged, but is no change: no push to
    // the others, no light-mode event, no save.
    const uint32_t changes = nxproto::applyRequest(state_, request);
    client.setNeedsAck(true);
    scheduleBroadcast();
    if (changes == 0)
        return;
    pendingChanges_ |= changes;
    dirty_ = true;
    if (changes & nxproto::ChangeSetting)
        syncAutostart();
}

void ControlService::welcome(ClientConnection* client)
{
    // The first client after a pause gets fresh readings.
    updatePolling();
    connect(client, &ClientConnection::closed, this, &ControlService::updatePolling);
    nxproto::StateMessage message;
    message.ackSeq = client->durableSeq();
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
    // During a failing episode only the retry timer writes; changes still go out, their
    // acknowledgements wait.
    const bool durable = retryTimer_.isActive() ? !dirty_ : commit();
    nxproto::StateMessage message;
    message.changes = pendingChanges_;
    message.state = state_;
    pendingChanges_ = 0;
    if (message.changes & (nxproto::ChangeLighting | nxproto::ChangeProfile))
        openRgb_->setModules(hardwareInfo(), state_);
    if (message.changes & nxproto::ChangeNotification)
        checkRules(); // a rule switched on or off takes effect now, not at the next reading
    if (message.changes != 0)
        updateRendering();
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
    const nxproto::HardwareInfo hardware = hardwareInfo();
    openRgb_->setModules(hardware, state_);
    const std::vector<uint8_t> frame = nxproto::encodeHardware(hardware);
    const auto clients = server_.clients();
    for (ClientConnection* client : clients)
        client->send(frame);
}

int ControlService::addFrameSink(FrameSink sink)
{
    const int id = nextSinkId_++;
    sinks_.emplace(id, std::move(sink));
    haveFrame_ = false;
    updateRendering();
    return id;
}

void ControlService::removeFrameSink(int id)
{
    sinks_.erase(id);
    updatePolling();
}

bool ControlService::framesWanted() const
{
    if (!sinks_.empty() || openRgb_->wantsFrames())
        return true;
    const auto& clients = server_.clients();
    return std::any_of(clients.begin(), clients.end(),
                       [](const ClientConnection* client) { return client->wantsPreview(); });
}

void ControlService::updatePolling()
{
    if (!monitor_)
        return;
    const NotiEventData& rules = state_.noti;
    const bool clients = !server_.clients().empty();
    const bool rendering = framesWanted();
    monitor_->setActive(clients || rendering || rules.loadingSwitch || rules.shutdownMemorySwitch ||
                        rules.shutdownCPUSwitch);
    if (resumeWatch_)
        resumeWatch_->setActive(clients || rendering || openRgb_->hasOutput());
}

void ControlService::updateRendering()
{
    updatePolling();
    if (!monitor_ || !framesWanted()) {
        frameTimer_.stop();
        music_.stop();
        return;
    }
    // A running frame clock picks the change up at its next tick.
    if (!frameTimer_.isActive())
        renderFrame();
}

void ControlService::renderFrame()
{
    if (!framesWanted()) {
        frameTimer_.stop();
        music_.stop();
        return;
    }
    nxfx::SceneInput scene;
    scene.seconds = double(clock_.elapsed()) / 1000.0;
    scene.seed = seed_;
    const LocalClock::TimeOfDay now = localClock_.now();
    scene.hour = now.hour;
    scene.minute = now.minute;
    scene.second = now.second;
    // Read in place unless an output adds its modules.
    nxproto::HardwareInfo withOutput;
    if (openRgb_->hasOutput())
        withOutput = hardwareInfo();
    const nxproto::HardwareInfo& hardware = openRgb_->hasOutput() ? withOutput : monitor_->info();
    if (EffectRenderer::wantsMusic(state_, hardware)) {
        if (!music_.started())
            qCInfo(lcService) << "Party: listening for the desktop's music";
        music_.start();
        const MusicCapture::Reading music = music_.reading();
        scene.beat = music.beat;
        scene.loudness = music.loudness;
    } else {
        music_.stop();
    }

    nxproto::PreviewMessage message;
    const bool animated = EffectRenderer::render(state_, hardware, scene, message.colors);
    // An SDK client's colours replace the rendered ones of the modules it drives.
    openRgb_->applyDirect(message.colors);
    // The load rule overrides every LED of every module while it holds.
    if (const std::optional<COLORREF> color = rules_->loadOverride()) {
        for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
            const int leds = qBound(0, hardware.modules[slot].ledNum, nxproto::kLedCount);
            std::fill(message.colors[slot], message.colors[slot] + leds, *color);
        }
    }
    if (!animated)
        frameTimer_.stop();
    else if (!frameTimer_.isActive())
        frameTimer_.start();
    if (haveFrame_ && std::equal(&message.colors[0][0],
                                 &message.colors[0][0] + nxproto::kSlotCount * nxproto::kLedCount,
                                 &lastFrame_.colors[0][0]))
        return;
    message.frame = ++frameNumber_;
    lastFrame_ = message;
    haveFrame_ = true;
    openRgb_->showFrame(message.colors);
    // A copy of the list: a client that does not read is dropped while it is sent to. Both
    // buffers keep their storage from frame to frame.
    recipients_ = server_.clients();
    bool encoded = false;
    for (ClientConnection* client : recipients_) {
        if (!client->wantsPreview())
            continue;
        if (!encoded)
            nxproto::encodePreview(message, previewBytes_);
        encoded = true;
        client->send(previewBytes_, true);
    }
    recipients_.clear();
    // A sink may remove itself or another while it runs.
    const auto sinks = sinks_;
    for (const auto& entry : sinks)
        entry.second(message);
}

void ControlService::reapplyLighting()
{
    pendingChanges_ |= nxproto::ChangeAll;
    scheduleBroadcast();
    // Sinks and subscribers get the picture again even when it has not changed.
    haveFrame_ = false;
    updateRendering();
    emit lightingReapplied();
}

void ControlService::checkRules()
{
    RuleEngine::Readings readings;
    readings.memoryLoad = monitor_->info().memoryLoad;
    readings.memoryTemperature = monitor_->memoryTemperature();
    readings.cpuTemperature = monitor_->cpuTemperature();
    rules_->check(state_.noti, readings);
}

void ControlService::syncAutostart()
{
    const bool enabled = state_.setting.autoRun;
    QString error;
    if (!AutostartEntry::apply(enabled, AutostartEntry::panelExecutable(), &error))
        qCWarning(lcService).noquote() << "autostart entry not updated:" << error;
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

nxproto::HardwareInfo ControlService::hardwareInfo() const
{
    nxproto::HardwareInfo info = monitor_->info();
    openRgb_->report(info);
    return info;
}

void ControlService::openRgbModulesChanged()
{
    broadcastHardware();
    // The output streams while connected; a new listing gets the whole picture.
    haveFrame_ = false;
    updateRendering();
}

void ControlService::leaveDirect(int slot)
{
    if (openRgb_->leaveDirect(slot))
        updateRendering();
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
    // The session has ended the slot's direct control already.
    updateRendering();
    if (!nxproto::validateRequest(request).empty())
        return;
    const uint32_t changes = nxproto::applyRequest(state_, request);
    if (changes == 0)
        return;
    // Saved and pushed like a panel's change.
    pendingChanges_ |= changes;
    dirty_ = true;
    scheduleBroadcast();
}
