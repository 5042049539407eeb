#pragma once

#include "HardwareInfo.h"
#include "ModuleSource.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <optional>

// The hardware facts the service reports, refreshed every second while active: the modules of
// its module source, the system's memory load and use from meminfo and the processor
// temperature, all read below `root` ("" for the real system).
class HardwareMonitor : public QObject
{
    Q_OBJECT

public:
    HardwareMonitor(std::unique_ptr<ModuleSource> source, QString root = QString(),
                    QObject* parent = nullptr);
    ~HardwareMonitor() override;

    const nxproto::HardwareInfo& info() const { return info_; }
    const ModuleSource& source() const { return *source_; }
    std::optional<double> cpuTemperature() const { return cpuTemperature_; }
    // The hottest present module's temperature from a real source; empty otherwise.
    std::optional<double> memoryTemperature() const;

    // Starts or stops the refreshing. Resuming after a pause reads at once, without
    // updated(), so that what was read before the pause is never handed out as current.
    void setActive(bool active);
    bool isActive() const { return timer_.isActive(); }
    // One refresh: time stamp, modules, memory load, processor temperature.
    void refresh();

signals:
    void updated();

private:
    void read();

    std::unique_ptr<ModuleSource> source_;
    QString root_;
    nxproto::HardwareInfo info_;
    std::optional<double> cpuTemperature_;
    QTimer timer_;
};
