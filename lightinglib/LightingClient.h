#pragma once

#include "ControlState.h"
#include "FrameDecoder.h"
#include "HardwareInfo.h"
#include "Messages.h"

#include <atomic>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

// The library's side of the control service: a mirror of the service's state that the
// exported getters read from memory, and a thread that keeps a Unix socket connection to the
// service, applies the state it pushes and raises the panel's callbacks. Setters change the
// mirror at once and queue the request; a request stays pending (and is replayed over newer
// pushed state) until the service acknowledges it, and is sent again after a reconnection.
class LightingClient
{
public:
    static LightingClient& instance();

    LightingClient(const LightingClient&) = delete;
    LightingClient& operator=(const LightingClient&) = delete;
    ~LightingClient();

    // Starts the connection thread; later calls do nothing.
    void start();
    void stop();

    void setLightModeCallback(UIEventLightModeFunc callback);
    void setPreviewCallback(UIPreviewEventFunc callback);

    // Applies a request to the mirror and sends it; invalid requests are dropped.
    void submit(nxproto::Request request);

    // Runs `reader` on the mirrored state under the lock.
    template <typename Reader> auto read(Reader&& reader)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return reader(state_);
    }

    // Library-owned arrays, refreshed by the call, stable for the life of the process.
    COLORREF* colors(int slot);
    float* brightness(int slot);
    COLORREF* softwareColors(int slot);

    HWData hardwareRecord();

private:
    LightingClient();

    void run();
    bool connectToService();
    void disconnect();
    bool readAvailable();
    void handleFrame(const nxproto::Frame& frame);
    void queueLocked(const std::vector<uint8_t>& bytes);
    void flushLocked();
    void rebuildLocked();
    void wake();
    void waitForWake(int timeoutMs);

    std::mutex mutex_;
    nxproto::ControlState state_;     // confirmed state with the pending requests applied
    nxproto::ControlState confirmed_; // as last pushed by the service
    bool haveState_ = false;
    nxproto::HardwareInfo hardware_;
    HWData record_;
    bool recordDirty_ = true;
    COLORREF software_[nxproto::kSlotCount][nxproto::kLedCount] = {};
    std::deque<nxproto::Request> pending_;
    uint32_t nextSeq_ = 1;
    const uint64_t clientId_;
    std::vector<uint8_t> outbox_;
    int socket_ = -1;

    COLORREF colorsOut_[nxproto::kSlotCount + 1][nxproto::kLedCount] = {};
    float brightOut_[nxproto::kSlotCount + 1][nxproto::kLedCount] = {};
    COLORREF softwareOut_[nxproto::kSlotCount + 1][nxproto::kLedCount] = {};

    std::atomic<UIEventLightModeFunc> lightModeCallback_{nullptr};
    std::atomic<UIPreviewEventFunc> previewCallback_{nullptr};

    std::mutex threadMutex_;
    std::thread thread_;
    std::atomic<bool> stopping_{false};
    int wakeRead_ = -1;
    int wakeWrite_ = -1;
    nxproto::FrameDecoder decoder_; // connection thread only
    bool deliveredState_ = false;   // connection thread only: by the current connection
};
