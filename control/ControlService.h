#pragma once

#include "ControlServer.h"
#include "ControlState.h"
#include "EffectRenderer.h"
#include "HardwareMonitor.h"
#include "ServiceOptions.h"
#include "StateFile.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>
#include <unordered_map>

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
    ~ControlService() override;

    bool start(QString* error);
    // Saves what is unsaved and closes every connection.
    void stop();

    const nxproto::ControlState& state() const { return state_; }
    const SimulationConfig& simulation() const { return simulation_; }

private:
    void handleRequest(ClientConnection& client, const nxproto::Request& request);
    void welcome(ClientConnection* client);
    void scheduleBroadcast();
    void broadcastState();
    void broadcastHardware();
    void renderFrame();
    // Writes the state if it has unsaved changes; true when everything is on disk.
    bool commit();
    void retrySave();

    ServiceOptions options_;
    QString socketPath_;
    StateFile stateFile_;
    nxproto::ControlState state_;
    SimulationConfig storedSimulation_; // as kept in the state file
    SimulationConfig simulation_;       // in effect, with this run's options
    std::unique_ptr<HardwareMonitor> monitor_;
    ControlServer server_;

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
    uint32_t frameNumber_ = 0;
};
