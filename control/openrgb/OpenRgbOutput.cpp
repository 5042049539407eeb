#include "OpenRgbOutput.h"

#include "OrgbLog.h"
#include "OrgbPacket.h"
#include "SdkConnection.h"

#include <QDateTime>
#include <QTcpSocket>

#include <algorithm>
#include <cmath>

namespace {

constexpr qint64 kMinFrameGapNs = 1000000000LL / OpenRgbOutput::kMaxFps;

} // namespace

constexpr char OpenRgbOutput::kClientName[];
constexpr char OpenRgbOutput::kModelCode[];

OpenRgbOutput::OpenRgbOutput(QString host, quint16 port, QObject* parent)
    : QObject(parent), host_(std::move(host)), port_(port),
      address_(QStringLiteral("%1:%2").arg(host_).arg(port_))
{
    sendTimer_.setSingleShot(true);
    sendTimer_.setTimerType(Qt::PreciseTimer);
    connect(&sendTimer_, &QTimer::timeout, this, [this] { flush(false); });
    answerTimer_.setSingleShot(true);
    connect(&answerTimer_, &QTimer::timeout, this, [this] {
        if (stage_ != Stage::Version) {
            fail(QStringLiteral("server did not answer"));
            return;
        }
        // A server of protocol 0 does not answer the version request.
        version_ = 0;
        connection_->send(0, orgb::SetClientName, orgb::encodeName(kClientName));
        requestCount();
    });
    retryTimer_.setSingleShot(true);
    connect(&retryTimer_, &QTimer::timeout, this, &OpenRgbOutput::connectNow);
}

OpenRgbOutput::~OpenRgbOutput()
{
    if (connection_) {
        connection_->disconnect(this);
        connection_->close();
    }
}

void OpenRgbOutput::start()
{
    qCInfo(lcOpenRgb).noquote() << "output openrgb: driving the DRAM controllers of" << address_;
    connectNow();
}

uint32_t OpenRgbOutput::lastContact() const
{
    const qint64 ms = connected() ? QDateTime::currentMSecsSinceEpoch() : lastContactMs_;
    return uint32_t(ms / 1000);
}

void OpenRgbOutput::report(nxproto::HardwareInfo& info) const
{
    const int count = int(modules_.size());
    info.memoryCount = count;
    info.slotCount = count <= 4 ? 4 : 8;
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
        nxproto::ModuleInfo& module = info.modules[slot];
        module = nxproto::ModuleInfo();
        if (slot >= count)
            continue;
        const DramModule& source = modules_[std::size_t(slot)];
        module.present = true;
        module.modelCode = kModelCode;
        module.type = source.name.substr(0, nxproto::kMaxTextLength);
        module.ledNum = std::min(source.leds, nxproto::kLedCount);
    }
    if (!connected())
        info.updateTime = lastContact();
}

void OpenRgbOutput::connectNow()
{
    if (stage_ != Stage::Idle)
        return;
    stage_ = Stage::Connecting;
    auto* socket = new QTcpSocket;
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connection_ = new SdkConnection(socket, QStringLiteral("OpenRGB server ") + address_, this);
    connection_->setHandler([this](const orgb::Packet& packet) { handle(packet); });
    connect(connection_, &SdkConnection::closed, this, &OpenRgbOutput::onClosed);
    connect(socket, &QTcpSocket::connected, this, &OpenRgbOutput::onConnected);
    socket->connectToHost(host_, port_);
}

void OpenRgbOutput::onConnected()
{
    qCInfo(lcOpenRgb).noquote() << "connected to OpenRGB server" << address_;
    connection_->send(0, orgb::RequestProtocolVersion, orgb::encodeU32(orgb::kProtocolVersion));
    expect(Stage::Version, kVersionWaitMs);
}

void OpenRgbOutput::onClosed()
{
    const bool wasStreaming = stage_ == Stage::Streaming;
    if (wasStreaming) {
        lastContactMs_ = QDateTime::currentMSecsSinceEpoch();
        qCWarning(lcOpenRgb).noquote() << "lost OpenRGB server" << address_;
    }
    stage_ = Stage::Idle;
    answerTimer_.stop();
    sendTimer_.stop();
    connection_->deleteLater();
    connection_ = nullptr;
    relistPending_ = false;
    if (wasStreaming)
        emit modulesChanged();
    qCInfo(lcOpenRgb).noquote() << "connecting to" << address_ << "again in" << retryMs_ << "ms";
    retryTimer_.start(retryMs_);
    retryMs_ = std::min(retryMs_ * 2, kMaxRetryMs);
}

void OpenRgbOutput::fail(const QString& reason)
{
    if (connection_)
        connection_->fail(reason);
}

void OpenRgbOutput::expect(Stage stage, int waitMs)
{
    stage_ = stage;
    answerTimer_.start(waitMs);
}

void OpenRgbOutput::handle(const orgb::Packet& packet)
{
    switch (packet.id) {
    case orgb::DeviceListUpdated:
        if (stage_ == Stage::Streaming) {
            qCInfo(lcOpenRgb) << "the server's device list changed";
            requestCount();
        } else {
            relistPending_ = true;
        }
        return;
    case orgb::RequestProtocolVersion: {
        if (stage_ != Stage::Version)
            return;
        uint32_t theirs = 0;
        if (!orgb::decodeU32(packet.body, &theirs))
            return fail(QStringLiteral("protocol version answer is not 4 bytes"));
        version_ = std::min(theirs, orgb::kProtocolVersion);
        qCInfo(lcOpenRgb) << "server speaks protocol" << theirs << "- using" << version_;
        connection_->send(0, orgb::SetClientName, orgb::encodeName(kClientName));
        requestCount();
        return;
    }
    case orgb::RequestControllerCount: {
        if (stage_ != Stage::Count)
            return;
        if (!orgb::decodeU32(packet.body, &controllerCount_))
            return fail(QStringLiteral("controller count answer is not 4 bytes"));
        if (controllerCount_ > kMaxControllers)
            return fail(QStringLiteral("server claims %1 controllers").arg(controllerCount_));
        listed_ = 0;
        found_.clear();
        requestNextController();
        return;
    }
    case orgb::RequestControllerData: {
        if (stage_ != Stage::Data || packet.device != listed_)
            return;
        orgb::Controller controller;
        std::string error;
        if (!orgb::decodeController(packet.body, version_, &controller, &error))
            return fail(QStringLiteral("controller %1: %2")
                            .arg(packet.device)
                            .arg(QString::fromStdString(error)));
        DramModule module;
        if (DramMapping::toModule(controller, listed_, &module))
            found_.push_back(std::move(module));
        ++listed_;
        requestNextController();
        return;
    }
    default:
        fail(QStringLiteral("unknown packet id %1").arg(packet.id));
        return;
    }
}

void OpenRgbOutput::requestCount()
{
    relistPending_ = false;
    connection_->send(0, orgb::RequestControllerCount);
    expect(Stage::Count, kAnswerWaitMs);
}

void OpenRgbOutput::requestNextController()
{
    if (relistPending_)
        return requestCount();
    if (listed_ < controllerCount_) {
        connection_->send(listed_, orgb::RequestControllerData,
                          version_ >= 1 ? orgb::encodeU32(version_) : std::vector<uint8_t>());
        expect(Stage::Data, kAnswerWaitMs);
        return;
    }
    answerTimer_.stop();
    DramMapping::order(found_);
    modules_ = std::move(found_);
    found_.clear();
    QStringList names;
    for (const DramModule& module : modules_)
        names << QString::fromStdString(module.name + " (" + module.location + ")");
    qCInfo(lcOpenRgb).noquote() << modules_.size() << "DRAM controllers:" << names.join(", ");
    sent_.assign(modules_.size(), {});
    stage_ = Stage::Streaming;
    retryMs_ = kFirstRetryMs;
    applyModes();
    flush(true);
    emit modulesChanged();
}

void OpenRgbOutput::applyModes()
{
    for (const DramModule& module : modules_) {
        if (module.directMode >= 0)
            connection_->send(module.device, orgb::UpdateMode,
                              orgb::encodeModeUpdate(module.directMode, module.direct, version_));
        else
            connection_->send(module.device, orgb::SetCustomMode);
    }
}

void OpenRgbOutput::reapply()
{
    if (!connected()) {
        // After a resume the server may well be back: no need to sit out the back-off.
        if (stage_ == Stage::Idle) {
            retryTimer_.stop();
            retryMs_ = kFirstRetryMs;
            connectNow();
        }
        return;
    }
    qCInfo(lcOpenRgb) << "applying the lighting to the DRAM controllers again";
    applyModes();
    flush(true);
}

void OpenRgbOutput::showFrame(const Colors& frame)
{
    std::copy(&frame[0][0], &frame[0][0] + nxproto::kSlotCount * nxproto::kLedCount, &frame_[0][0]);
    if (!connected() || sendTimer_.isActive())
        return;
    const qint64 since = sinceSend_.isValid() ? sinceSend_.nsecsElapsed() : kMinFrameGapNs;
    if (since >= kMinFrameGapNs)
        flush(false);
    else
        sendTimer_.start(int((kMinFrameGapNs - since + 999999) / 1000000));
}

void OpenRgbOutput::flush(bool force)
{
    if (!connected())
        return;
    sinceSend_.start();
    std::vector<uint32_t> colors;
    for (std::size_t i = 0; i < modules_.size(); ++i) {
        const int leds = modules_[i].leds;
        colors.resize(std::size_t(std::max(leds, 0)));
        // A controller with more LEDs than a module row repeats the row.
        for (int led = 0; led < leds; ++led)
            colors[std::size_t(led)] = frame_[i][led % nxproto::kLedCount] & 0x00FFFFFF;
        if (!force && colors == sent_[i])
            continue;
        sent_[i] = colors;
        connection_->send(modules_[i].device, orgb::UpdateLeds, orgb::encodeLedUpdate(colors));
        ++updatesSent_;
    }
}
