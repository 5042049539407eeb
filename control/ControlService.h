#pragma once

#include "ControlServer.h"
#include "ControlState.h"
#include "EffectRenderer.h"
#include "HardwareMonitor.h"
#include "LocalClock.h"
#include "MusicCapture.h"
#include "RuleActions.h"
#include "ServiceOptions.h"
#include "StateFile.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <QDBusConnection>

#include <functional>
#include <map>
#include <memory>
#include <unordered_map>

class DesktopNotifier;
class OpenRgbLink;
class ResumeWatch;
class SleepWatcher;

// The control service: owns the lighting state, applies the clients' requests, pushes every
// change to all clients, renders the LEDs at the frame rate and keeps the state on disk. A
// request is acknowledged only once its effect is on disk: the changes read in one pass of the
// event loop are saved together, then pushed. A save that fails is retried with back-off, and
// acknowledgements wait for it.
class ControlService : public QObject
{
    Q_OBJECT

public:
    static constexpr int kFrameIntervalMs = 33;
    static constexpr int kFirstRetryMs = 100;
    static constexpr int kMaxRetryMs = 10000;
    static constexpr std::size_t kMaxKnownClients = 1024;

    ControlService(const ServiceOptions& options, const QString& statePath,
                   const QString& socketPath, QObject* parent = nullptr);
    // As above, with the buses for desktop warnings and logind (power-off, resume).
    ControlService(const ServiceOptions& options, const QString& statePath,
                   const QString& socketPath, const QDBusConnection& sessionBus,
                   const QDBusConnection& systemBus, QObject* parent = nullptr);
    ~ControlService() override;

    bool start(QString* error);
    // Saves what is unsaved and closes every connection.
    void stop();

    const nxproto::ControlState& state() const { return state_; }
    const SimulationConfig& simulation() const { return simulation_; }
    // What the service reports: the monitor's facts, with the modules of the output when one
    // drives real LEDs.
    nxproto::HardwareInfo hardwareInfo() const;

    // Outputs that want every rendered frame (the LED drivers). The service renders only while
    // a preview subscriber or a sink wants frames, and sends a picture again only when it changed.
    using FrameSink = std::function<void(const nxproto::PreviewMessage&)>;
    int addFrameSink(FrameSink sink);
    void removeFrameSink(int id);
    // Sends the whole lighting out again (after a resume from suspend, when the modules may
    // have lost it): every client gets a full state and lightingReapplied() is emitted for the
    // outputs.
    void reapplyLighting();

signals:
    void lightingReapplied();

private:
    std::unique_ptr<ModuleSource> makeModuleSource() const;
    void handleRequest(ClientConnection& client, const nxproto::Request& request);
    void welcome(ClientConnection* client);
    void scheduleBroadcast();
    void broadcastState();
    void broadcastHardware();
    void renderFrame();
    // Starts or stops the frame clock after anything that may change the picture or the
    // demand for it, and renders at once when frames are wanted.
    void updateRendering();
    bool framesWanted() const;
    // Reads the hardware only while something uses the readings (a client, a rule, the
    // picture) and watches for resumes only while something shows the lighting.
    void updatePolling();
    void checkRules();
    void syncAutostart();
    // Writes the state if it has unsaved changes; true when everything is on disk.
    bool commit();
    void retrySave();
    void openRgbModulesChanged();
    // Ends an SDK client's direct control of the slot (of all slots when -1).
    void leaveDirect(int slot);
    void applySdkLightMode(int slot, int lightMode, int lightSpeed);

    ServiceOptions options_;
    QString socketPath_;
    StateFile stateFile_;
    nxproto::ControlState state_;
    SimulationConfig storedSimulation_; // as kept in the state file
    SimulationConfig simulation_;       // in effect, with this run's options
    std::unique_ptr<HardwareMonitor> monitor_;
    ControlServer server_;
    DesktopNotifier* notifier_ = nullptr;
    RuleActions* rules_ = nullptr;
    SleepWatcher* sleepWatcher_ = nullptr;
    ResumeWatch* resumeWatch_ = nullptr; // without logind

    uint32_t pendingChanges_ = 0;
    // Per identified client, the highest seq applied: a request at or below it is a repeat
    // after a reconnection, or a late one from a connection already replaced.
    std::unordered_map<uint64_t, uint32_t> appliedSeqs_;
    QTimer broadcastTimer_;
    QTimer retryTimer_;
    bool dirty_ = false;
    int failedSaves_ = 0; // in the current episode of failures
    QTimer frameTimer_;
    QElapsedTimer clock_;
    LocalClock localClock_;
    uint32_t frameNumber_ = 0;
    uint64_t seed_ = 0;
    std::map<int, FrameSink> sinks_;
    int nextSinkId_ = 1;
    MusicCapture music_; // open only while a Party mode is rendered
    std::vector<ClientConnection*> recipients_;
    std::vector<uint8_t> previewBytes_;
    nxproto::PreviewMessage lastFrame_;
    bool haveFrame_ = false;
    OpenRgbLink* openRgb_;
};
