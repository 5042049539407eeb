#include "SdkSession.h"

#include "ControllerData.h"
#include "OrgbLog.h"
#include "SdkConnection.h"
#include "SdkServer.h"

#include <QTcpSocket>

namespace {

constexpr int kMaxNameLength = 256;

} // namespace

SdkSession::SdkSession(QTcpSocket* socket, SdkServer& server, QObject* parent)
    : QObject(parent), server_(server),
      connection_(new SdkConnection(socket,
                                    QStringLiteral("SDK client %1:%2")
                                        .arg(socket->peerAddress().toString())
                                        .arg(socket->peerPort()),
                                    this))
{
    connection_->setHandler([this](const orgb::Packet& packet) { handle(packet); });
    connect(connection_, &SdkConnection::closed, this, [this] {
        qCInfo(lcOpenRgb).noquote()
            << connection_->peerName() << (name_.isEmpty() ? QString() : "(" + name_ + ")")
            << "disconnected";
        emit finished(this);
    });
}

void SdkSession::notifyDeviceListUpdated()
{
    connection_->send(0, orgb::DeviceListUpdated);
}

void SdkSession::reject(const QString& reason)
{
    connection_->fail(reason);
}

int SdkSession::moduleIndex(const orgb::Packet& packet)
{
    if (packet.device >= server_.modules().size()) {
        reject(QStringLiteral("device index %1 out of range (%2 devices)")
                   .arg(packet.device)
                   .arg(server_.modules().size()));
        return -1;
    }
    return int(packet.device);
}

void SdkSession::handle(const orgb::Packet& packet)
{
    std::string error;
    switch (packet.id) {
    case orgb::RequestControllerCount:
        connection_->send(0, orgb::RequestControllerCount,
                          orgb::encodeU32(uint32_t(server_.modules().size())));
        return;
    case orgb::RequestControllerData:
        sendControllerData(packet);
        return;
    case orgb::RequestProtocolVersion: {
        uint32_t theirs = 0;
        if (!orgb::decodeU32(packet.body, &theirs))
            return reject(QStringLiteral("protocol version request is not 4 bytes"));
        version_ = std::min(theirs, orgb::kProtocolVersion);
        connection_->send(0, orgb::RequestProtocolVersion, orgb::encodeU32(orgb::kProtocolVersion));
        return;
    }
    case orgb::SetClientName: {
        std::string name;
        if (!orgb::decodeName(packet.body, &name))
            return reject(QStringLiteral("client name has no terminating NUL"));
        name_ =
            QString::fromUtf8(name.data(), int(std::min<std::size_t>(name.size(), kMaxNameLength)));
        qCInfo(lcOpenRgb).noquote() << connection_->peerName() << "is" << name_;
        return;
    }
    case orgb::RequestRescanDevices:
        return;
    case orgb::ResizeZone: {
        // The zones of a memory module have a fixed size.
        if (moduleIndex(packet) >= 0 && packet.body.size() != 8)
            reject(QStringLiteral("zone resize is not 8 bytes"));
        return;
    }
    case orgb::UpdateLeds: {
        const int index = moduleIndex(packet);
        std::vector<uint32_t> colors;
        if (index < 0)
            return;
        if (!orgb::decodeLedUpdate(packet.body, &colors, &error))
            return reject(QString::fromStdString(error));
        setColors(index, 0, colors);
        return;
    }
    case orgb::UpdateZoneLeds: {
        const int index = moduleIndex(packet);
        uint32_t zone = 0;
        std::vector<uint32_t> colors;
        if (index < 0)
            return;
        if (!orgb::decodeZoneLedUpdate(packet.body, &zone, &colors, &error))
            return reject(QString::fromStdString(error));
        if (zone != 0)
            return reject(QStringLiteral("zone index %1 out of range").arg(zone));
        setColors(index, 0, colors);
        return;
    }
    case orgb::UpdateSingleLed: {
        const int index = moduleIndex(packet);
        int32_t led = 0;
        uint32_t color = 0;
        if (index < 0)
            return;
        if (!orgb::decodeSingleLedUpdate(packet.body, &led, &color, &error))
            return reject(QString::fromStdString(error));
        if (led < 0 || led >= server_.modules()[std::size_t(index)].leds)
            return reject(QStringLiteral("LED index %1 out of range").arg(led));
        setColors(index, led, {color});
        return;
    }
    case orgb::SetCustomMode: {
        const int index = moduleIndex(packet);
        if (index >= 0)
            enterDirect(index);
        return;
    }
    case orgb::UpdateMode:
    case orgb::SaveMode: {
        const int index = moduleIndex(packet);
        if (index >= 0)
            updateMode(packet, index);
        return;
    }
    default:
        reject(QStringLiteral("unknown packet id %1").arg(packet.id));
        return;
    }
}

void SdkSession::sendControllerData(const orgb::Packet& packet)
{
    const int index = moduleIndex(packet);
    if (index < 0)
        return;
    uint32_t version = 0;
    if (!packet.body.empty() && !orgb::decodeU32(packet.body, &version))
        return reject(QStringLiteral("controller data request is neither empty nor 4 bytes"));
    version = std::min(version, orgb::kProtocolVersion);
    const SdkModule& module = server_.modules()[std::size_t(index)];
    const bool direct = server_.direct().active(module.slot);
    const COLORREF* colors =
        direct ? server_.direct().colors(module.slot) : server_.frameColors(module.slot);
    const orgb::Controller controller =
        ModuleControllers::describe(module, direct, colors, server_.version());
    connection_->send(packet.device, orgb::RequestControllerData,
                      orgb::encodeController(controller, version));
}

void SdkSession::updateMode(const orgb::Packet& packet, int index)
{
    int32_t modeIndex = 0;
    orgb::Mode mode;
    std::string error;
    if (!orgb::decodeModeUpdate(packet.body, version_, &modeIndex, &mode, &error))
        return reject(QString::fromStdString(error));
    if (modeIndex == ModuleControllers::kDirectMode)
        return enterDirect(index);
    const int lightMode = ModuleControllers::lightModeForIndex(modeIndex);
    if (lightMode < 0)
        return reject(QStringLiteral("mode index %1 out of range").arg(modeIndex));
    const int slot = server_.modules()[std::size_t(index)].slot;
    server_.direct().leave(slot);
    emit server_.lightModeRequested(slot, lightMode,
                                    ModuleControllers::lightSpeedFromSdk(mode.speed));
}

void SdkSession::enterDirect(int index)
{
    const int slot = server_.modules()[std::size_t(index)].slot;
    server_.direct().enter(slot, server_.frameColors(slot));
    emit server_.directChanged();
}

void SdkSession::setColors(int index, int first, const std::vector<uint32_t>& colors)
{
    const SdkModule& module = server_.modules()[std::size_t(index)];
    if (!server_.direct().active(module.slot))
        server_.direct().enter(module.slot, server_.frameColors(module.slot));
    const int count = std::min(int(colors.size()), module.leds - first);
    server_.direct().set(module.slot, first, colors.data(), count);
    emit server_.directChanged();
}
