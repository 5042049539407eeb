#include "LightingClient.h"

#include "SocketPath.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <random>

namespace {

constexpr std::size_t kMaxPending = 512;
// A service that stops reading loses the connection rather than growing the queue; the
// pending requests go out again after reconnecting.
constexpr std::size_t kMaxOutboxBytes = 1024 * 1024;
// Reconnection delays while no connection delivers state: doubling, capped, each one drawn
// from its upper half so that many clients do not retry in step.
constexpr int kFirstRetryMs = 50;
constexpr int kMaxRetryMs = 2000;
constexpr int kIdlePollMs = 1000;

// True when `later` leaves nothing of `earlier` in effect, so that the earlier one need not be
// kept once the later one is queued.
bool supersedes(const nxproto::Request& later, const nxproto::Request& earlier)
{
    using nxproto::MessageType;
    if (later.type != earlier.type)
        return false;
    switch (later.type) {
    case MessageType::SetLighting:
        return later.profile == earlier.profile && later.slot == earlier.slot;
    case MessageType::SetColors:
        return later.profile == earlier.profile && later.slot == earlier.slot &&
               later.count >= earlier.count;
    case MessageType::SetSlotOrder:
        return later.count >= earlier.count;
    case MessageType::SetProfile:
    case MessageType::SetNotification:
    case MessageType::SetSetting:
        return true;
    default:
        return false;
    }
}

bool validSlot(int slot)
{
    return slot >= 0 && slot < nxproto::kSlotCount;
}

// The state shown before the service ever answered: the lighting fields of the default
// hardware record, whose brightness is 1.0 on the module-index diagonal only.
nxproto::ControlState initialState()
{
    nxproto::ControlState state = nxproto::defaultControlState();
    for (auto& profile : state.profiles) {
        for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
            std::fill(std::begin(profile[slot].bright), std::end(profile[slot].bright), 0.0f);
            profile[slot].bright[slot] = 1.0f;
        }
    }
    return state;
}

uint64_t newClientId()
{
    std::random_device device;
    uint64_t id = (uint64_t(device()) << 32) ^ device() ^
                  uint64_t(std::chrono::steady_clock::now().time_since_epoch().count()) ^
                  (uint64_t(getpid()) << 16);
    return id != 0 ? id : 1;
}

} // namespace

LightingClient& LightingClient::instance()
{
    static LightingClient client;
    return client;
}

LightingClient::LightingClient()
    : state_(initialState()), confirmed_(state_), clientId_(newClientId())
{
    record_ = nxproto::defaultHWData();
    int fds[2];
    if (pipe2(fds, O_NONBLOCK | O_CLOEXEC) == 0) {
        wakeRead_ = fds[0];
        wakeWrite_ = fds[1];
    }
}

LightingClient::~LightingClient()
{
    stop();
    disconnect();
    if (wakeRead_ >= 0)
        close(wakeRead_);
    if (wakeWrite_ >= 0)
        close(wakeWrite_);
}

void LightingClient::start()
{
    std::lock_guard<std::mutex> lock(threadMutex_);
    if (thread_.joinable() || wakeRead_ < 0)
        return;
    stopping_ = false;
    thread_ = std::thread([this] { run(); });
}

void LightingClient::stop()
{
    std::lock_guard<std::mutex> lock(threadMutex_);
    if (!thread_.joinable())
        return;
    stopping_ = true;
    wake();
    // A callback that ends the process would run this on the connection thread itself.
    if (thread_.get_id() == std::this_thread::get_id())
        thread_.detach();
    else
        thread_.join();
}

void LightingClient::setLightModeCallback(UIEventLightModeFunc callback)
{
    lightModeCallback_ = callback;
}

void LightingClient::setPreviewCallback(UIPreviewEventFunc callback)
{
    const bool changed = (previewCallback_.exchange(callback) != nullptr) != (callback != nullptr);
    if (!changed)
        return;
    nxproto::Request request;
    request.type = nxproto::MessageType::SetPreview;
    request.preview = callback != nullptr;
    std::lock_guard<std::mutex> lock(mutex_);
    request.seq = nextSeq_++;
    if (socket_ >= 0)
        queueLocked(nxproto::encodeRequest(request));
}

void LightingClient::submit(nxproto::Request request)
{
    if (!nxproto::validateRequest(request).empty())
        return;
    std::lock_guard<std::mutex> lock(mutex_);
    request.seq = nextSeq_++;
    // An edit is for the profile shown now, even when it reaches the service after a switch.
    if (request.type == nxproto::MessageType::SetLighting ||
        request.type == nxproto::MessageType::SetColors)
        request.profile = state_.profile;
    nxproto::applyRequest(state_, request);
    recordDirty_ = true;
    // Until the service has it on disk, a request is kept; one that a later request overrides
    // whole goes, which bounds the queue by the number of things a user can set.
    pending_.erase(std::remove_if(pending_.begin(), pending_.end(),
                                  [&](const nxproto::Request& earlier) {
                                      return supersedes(request, earlier);
                                  }),
                   pending_.end());
    pending_.push_back(request);
    if (pending_.size() > kMaxPending)
        pending_.pop_front();
    if (socket_ >= 0)
        queueLocked(nxproto::encodeRequest(request));
}

COLORREF* LightingClient::colors(int slot)
{
    const int row = validSlot(slot) ? slot : nxproto::kSlotCount;
    std::lock_guard<std::mutex> lock(mutex_);
    if (validSlot(slot))
        std::copy_n(state_.module(slot).rgb, nxproto::kLedCount, colorsOut_[row]);
    return colorsOut_[row];
}

float* LightingClient::brightness(int slot)
{
    const int row = validSlot(slot) ? slot : nxproto::kSlotCount;
    std::lock_guard<std::mutex> lock(mutex_);
    if (validSlot(slot))
        std::copy_n(state_.module(slot).bright, nxproto::kLedCount, brightOut_[row]);
    return brightOut_[row];
}

COLORREF* LightingClient::softwareColors(int slot)
{
    const int row = validSlot(slot) ? slot : nxproto::kSlotCount;
    std::lock_guard<std::mutex> lock(mutex_);
    if (validSlot(slot))
        std::copy_n(software_[slot], nxproto::kLedCount, softwareOut_[row]);
    return softwareOut_[row];
}

HWData LightingClient::hardwareRecord()
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (recordDirty_) {
        record_ = nxproto::buildHWData(hardware_, state_);
        recordDirty_ = false;
    }
    return record_;
}

void LightingClient::run()
{
    std::minstd_rand random(static_cast<uint32_t>(clientId_));
    int retryMs = kFirstRetryMs;
    const auto backOff = [&] {
        std::uniform_int_distribution<int> delay(retryMs / 2, retryMs);
        waitForWake(delay(random));
        retryMs = std::min(retryMs * 2, kMaxRetryMs);
    };
    while (!stopping_) {
        if (socket_ < 0) {
            if (!connectToService()) {
                backOff();
                continue;
            }
        }
        // However a connection ends, the next attempt waits unless it delivered state.
        if (deliveredState_)
            retryMs = kFirstRetryMs;
        pollfd fds[2] = {};
        fds[0].fd = socket_;
        fds[0].events = POLLIN;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (!outbox_.empty())
                fds[0].events |= POLLOUT;
        }
        fds[1].fd = wakeRead_;
        fds[1].events = POLLIN;
        if (poll(fds, 2, kIdlePollMs) < 0 && errno != EINTR) {
            disconnect();
            continue;
        }
        if (fds[1].revents & POLLIN) {
            char drain[64];
            while (::read(wakeRead_, drain, sizeof drain) > 0) {
            }
        }
        if (fds[0].revents & (POLLIN | POLLHUP | POLLERR)) {
            if (!readAvailable()) {
                disconnect();
                if (!deliveredState_)
                    backOff();
                continue;
            }
        }
        std::lock_guard<std::mutex> lock(mutex_);
        flushLocked();
    }
}

bool LightingClient::connectToService()
{
    const std::string path = nxproto::socketPath();
    sockaddr_un address{};
    if (path.empty() || path.size() >= sizeof address.sun_path)
        return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    // Only a service of this user is trusted with the user's lighting.
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        !nxproto::peerIsSameUser(fd)) {
        close(fd);
        return false;
    }
    decoder_.reset();
    deliveredState_ = false;
    std::lock_guard<std::mutex> lock(mutex_);
    socket_ = fd;
    outbox_.clear();
    // The identity first (with no seq of its own), so that the service skips what it has
    // already applied of the requests that follow: whatever it has not acknowledged is sent
    // again.
    nxproto::Request hello;
    hello.type = nxproto::MessageType::Hello;
    hello.clientId = clientId_;
    queueLocked(nxproto::encodeRequest(hello));
    for (const nxproto::Request& request : pending_)
        queueLocked(nxproto::encodeRequest(request));
    if (previewCallback_.load()) {
        nxproto::Request preview;
        preview.type = nxproto::MessageType::SetPreview;
        preview.preview = true;
        preview.seq = nextSeq_++;
        queueLocked(nxproto::encodeRequest(preview));
    }
    return true;
}

void LightingClient::disconnect()
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (socket_ >= 0)
        close(socket_);
    socket_ = -1;
    outbox_.clear();
}

bool LightingClient::readAvailable()
{
    uint8_t buffer[16384];
    for (;;) {
        const ssize_t got = ::recv(socket_, buffer, sizeof buffer, MSG_DONTWAIT);
        if (got == 0)
            return false;
        if (got < 0) {
            if (errno == EINTR)
                continue;
            if (errno == EAGAIN || errno == EWOULDBLOCK)
                break;
            return false;
        }
        decoder_.feed(buffer, static_cast<std::size_t>(got));
        if (static_cast<std::size_t>(got) < sizeof buffer)
            break;
    }
    nxproto::Frame frame;
    for (;;) {
        const auto status = decoder_.next(frame);
        if (status == nxproto::FrameDecoder::Status::Error)
            return false;
        if (status == nxproto::FrameDecoder::Status::NeedMore)
            return true;
        handleFrame(frame);
    }
}

void LightingClient::handleFrame(const nxproto::Frame& frame)
{
    switch (static_cast<nxproto::MessageType>(frame.type)) {
    case nxproto::MessageType::State: {
        nxproto::StateMessage message;
        if (!nxproto::decodeState(frame, message, nullptr))
            return;
        deliveredState_ = true;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            confirmed_ = message.state;
            haveState_ = true;
            while (!pending_.empty() && pending_.front().seq <= message.ackSeq)
                pending_.pop_front();
            rebuildLocked();
        }
        // A bare acknowledgement changed nothing.
        UIEventLightModeFunc callback = lightModeCallback_.load();
        if (callback && message.changes != 0)
            callback(static_cast<int32_t>(message.changes));
        return;
    }
    case nxproto::MessageType::Hardware: {
        nxproto::HardwareInfo hardware;
        if (!nxproto::decodeHardware(frame, hardware, nullptr))
            return;
        std::lock_guard<std::mutex> lock(mutex_);
        hardware_ = hardware;
        recordDirty_ = true;
        return;
    }
    case nxproto::MessageType::Preview: {
        nxproto::PreviewMessage message;
        if (!nxproto::decodePreview(frame, message, nullptr))
            return;
        {
            std::lock_guard<std::mutex> lock(mutex_);
            std::memcpy(software_, message.colors, sizeof software_);
        }
        if (UIPreviewEventFunc callback = previewCallback_.load())
            callback();
        return;
    }
    case nxproto::MessageType::Error: {
        // A refused request will never be acknowledged: forget it.
        nxproto::ErrorMessage message;
        if (!nxproto::decodeError(frame, message, nullptr) || message.seq == 0)
            return;
        std::lock_guard<std::mutex> lock(mutex_);
        pending_.erase(std::remove_if(pending_.begin(), pending_.end(),
                                      [&](const nxproto::Request& request) {
                                          return request.seq == message.seq;
                                      }),
                       pending_.end());
        rebuildLocked();
        return;
    }
    default:
        return;
    }
}

void LightingClient::rebuildLocked()
{
    state_ = confirmed_;
    for (const nxproto::Request& request : pending_)
        nxproto::applyRequest(state_, request);
    recordDirty_ = true;
}

void LightingClient::queueLocked(const std::vector<uint8_t>& bytes)
{
    if (outbox_.size() + bytes.size() > kMaxOutboxBytes) {
        outbox_.clear();
        ::shutdown(socket_, SHUT_RDWR);
        wake();
        return;
    }
    const bool wasEmpty = outbox_.empty();
    outbox_.insert(outbox_.end(), bytes.begin(), bytes.end());
    flushLocked();
    // The connection thread writes the rest when the socket drains.
    if (wasEmpty && !outbox_.empty())
        wake();
}

void LightingClient::flushLocked()
{
    std::size_t sent = 0;
    while (socket_ >= 0 && sent < outbox_.size()) {
        const ssize_t n = ::send(socket_, outbox_.data() + sent, outbox_.size() - sent,
                                 MSG_DONTWAIT | MSG_NOSIGNAL);
        if (n < 0) {
            if (errno == EINTR)
                continue;
            break; // full, or broken: the reader notices a broken connection
        }
        sent += static_cast<std::size_t>(n);
    }
    outbox_.erase(outbox_.begin(), outbox_.begin() + static_cast<std::ptrdiff_t>(sent));
}

void LightingClient::wake()
{
    if (wakeWrite_ < 0)
        return;
    const char byte = 1;
    [[maybe_unused]] const ssize_t n = ::write(wakeWrite_, &byte, 1);
}

void LightingClient::waitForWake(int timeoutMs)
{
    pollfd fd{wakeRead_, POLLIN, 0};
    if (poll(&fd, 1, timeoutMs) > 0) {
        char drain[64];
        while (::read(wakeRead_, drain, sizeof drain) > 0) {
        }
    }
}
