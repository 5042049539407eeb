#include "OpenRgbLink.h"

#include "ModuleControllers.h"
#include "OpenRgbOutput.h"
#include "OutputChoice.h"
#include "SdkServer.h"

#include <QCoreApplication>
#include <QHostAddress>

OpenRgbLink::OpenRgbLink(QObject* parent) : QObject(parent) {}

OpenRgbLink::~OpenRgbLink()
{
    stop();
}

bool OpenRgbLink::start(const std::string& output, const QString& sdkHost, quint16 sdkPort,
                        QString* error)
{
    OutputChoice choice;
    std::string reason;
    if (OutputChoice::parse(output, &choice, &reason) && choice.openrgb) {
        output_ = std::make_unique<OpenRgbOutput>(QString::fromStdString(choice.host), choice.port);
        connect(output_.get(), &OpenRgbOutput::modulesChanged, this, &OpenRgbLink::modulesChanged);
        output_->start();
    }
    if (sdkHost.isEmpty())
        return true;
    const QHostAddress address(sdkHost);
    if (address.isNull()) {
        *error = QStringLiteral("--sdk-server needs an IP address, not ") + sdkHost;
        return false;
    }
    sdkServer_ =
        std::make_unique<SdkServer>(direct_, QCoreApplication::applicationVersion().toStdString());
    connect(sdkServer_.get(), &SdkServer::lightModeRequested, this,
            &OpenRgbLink::lightModeRequested);
    connect(sdkServer_.get(), &SdkServer::sessionsChanged, this, &OpenRgbLink::pictureChanged);
    connect(sdkServer_.get(), &SdkServer::directChanged, this, &OpenRgbLink::pictureChanged);
    return sdkServer_->listen(address, sdkPort, error);
}

void OpenRgbLink::stop()
{
    if (sdkServer_)
        sdkServer_->close();
    output_.reset();
}

void OpenRgbLink::report(nxproto::HardwareInfo& info) const
{
    if (output_)
        output_->report(info);
}

void OpenRgbLink::setModules(const nxproto::HardwareInfo& hardware,
                             const nxproto::ControlState& state)
{
    if (sdkServer_)
        sdkServer_->setModules(ModuleControllers::fromHardware(hardware, state));
}

bool OpenRgbLink::wantsFrames() const
{
    return (output_ && output_->wantsFrames()) || (sdkServer_ && sdkServer_->sessionCount() > 0);
}

void OpenRgbLink::showFrame(const DirectLighting::Colors& frame)
{
    if (sdkServer_)
        sdkServer_->setFrame(frame);
    if (output_)
        output_->showFrame(frame);
}

bool OpenRgbLink::leaveDirect(int slot)
{
    const bool wasDirect = slot < 0 ? direct_.anyActive() : direct_.active(slot);
    if (slot < 0)
        direct_.leaveAll();
    else
        direct_.leave(slot);
    return wasDirect;
}

void OpenRgbLink::reapply()
{
    if (output_)
        output_->reapply();
}
