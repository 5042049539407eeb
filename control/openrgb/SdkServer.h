#pragma once

#include "DirectLighting.h"
#include "ModuleControllers.h"

#include <QHostAddress>
#include <QObject>
#include <QString>

#include <vector>

class QTcpServer;
class SdkSession;

// The OpenRGB SDK server of the service: shows our modules to other tools as DRAM
// controllers, lets them drive the LEDs directly or pick a light mode, and tells them when
// the module list changes.
class SdkServer : public QObject
{
    Q_OBJECT

public:
    static constexpr quint16 kDefaultPort = 6743;
    static constexpr int kMaxSessions = 16;

    SdkServer(DirectLighting& direct, std::string version, QObject* parent = nullptr);
    ~SdkServer() override;

    bool listen(const QHostAddress& address, quint16 port, QString* error);
    void close();
    quint16 port() const;
    int sessionCount() const { return int(sessions_.size()); }

    // The present modules in slot order; a change of slots or LED counts is pushed to the
    // clients as DEVICE_LIST_UPDATED.
    void setModules(std::vector<SdkModule> modules);
    const std::vector<SdkModule>& modules() const { return modules_; }
    // The colours the modules show now.
    void setFrame(const DirectLighting::Colors& frame);
    const COLORREF* frameColors(int slot) const { return frame_[slot]; }

    DirectLighting& direct() { return direct_; }
    const std::string& version() const { return version_; }

signals:
    // A client picked one of our light modes for the module in `slot`.
    void lightModeRequested(int slot, int lightMode, int lightSpeed);
    // A client changed colours of a directly driven module.
    void directChanged();
    // A client came or went.
    void sessionsChanged();

private:
    void acceptPending();
    void removeSession(SdkSession* session);

    DirectLighting& direct_;
    std::string version_;
    QTcpServer* listener_;
    std::vector<SdkSession*> sessions_;
    std::vector<SdkModule> modules_;
    DirectLighting::Colors frame_ = {};
};
