#pragma once

#include "ControlState.h"
#include "DirectLighting.h"
#include "HardwareInfo.h"

#include <QObject>
#include <QString>

#include <memory>
#include <string>

class OpenRgbOutput;
class SdkServer;

// The service's side of the OpenRGB SDK: the output that drives an OpenRGB server's DRAM
// controllers and the SDK server that lets other tools drive our modules, with the direct
// colours those tools set.
class OpenRgbLink : public QObject
{
    Q_OBJECT

public:
    explicit OpenRgbLink(QObject* parent = nullptr);
    ~OpenRgbLink() override;

    // Starts the output named by `output` ("none" or "openrgb[:HOST:PORT]") and, unless
    // `sdkHost` is empty, the SDK server; false with `error` when the server cannot listen.
    bool start(const std::string& output, const QString& sdkHost, quint16 sdkPort, QString* error);
    void stop();

    // Puts the output's modules into `info` while an output is chosen.
    void report(nxproto::HardwareInfo& info) const;
    // The modules as the SDK server shows them.
    void setModules(const nxproto::HardwareInfo& hardware, const nxproto::ControlState& state);
    // True while the output streams or SDK clients are connected.
    bool wantsFrames() const;
    // Whether the lighting goes to an OpenRGB server's devices.
    bool hasOutput() const { return output_ != nullptr; }
    // Replaces the rendered colours of the modules that SDK clients drive.
    void applyDirect(DirectLighting::Colors& frame) const { direct_.apply(frame); }
    // The picture the modules show now.
    void showFrame(const DirectLighting::Colors& frame);
    // Ends an SDK client's direct control of the slot (of all slots when -1); true when it
    // had it.
    bool leaveDirect(int slot);
    // The output applies everything again (after a resume).
    void reapply();

signals:
    // The output's modules or its connection changed.
    void modulesChanged();
    // Direct colours changed, or SDK clients came or went.
    void pictureChanged();
    // An SDK client picked one of our light modes for the module in `slot`.
    void lightModeRequested(int slot, int lightMode, int lightSpeed);

private:
    DirectLighting direct_;
    std::unique_ptr<OpenRgbOutput> output_;
    std::unique_ptr<SdkServer> sdkServer_;
};
