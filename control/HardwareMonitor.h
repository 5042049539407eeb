#pragma once

#include "HardwareInfo.h"
#include "SimulationConfig.h"

#include <QObject>
#include <QRandomGenerator>
#include <QString>
#include <QTimer>

// The hardware facts the service reports, refreshed every second: simulated modules (as many
// as configured, with a slowly wandering temperature) and the system's real memory load and
// use from /proc/meminfo.
class HardwareMonitor : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMinTemperature = 35;
    static constexpr int kMaxTemperature = 45;

    explicit HardwareMonitor(const SimulationConfig& config,
                             QString meminfoPath = QStringLiteral("/proc/meminfo"),
                             QObject* parent = nullptr);

    const nxproto::HardwareInfo& info() const { return info_; }
    void start();
    // One refresh: time stamp, temperatures, memory load.
    void refresh();

    // Memory load in percent and used memory in MB from the text of /proc/meminfo.
    static bool parseMeminfo(const QByteArray& text, double* load, int* usedMB);

signals:
    void updated();

private:
    nxproto::HardwareInfo info_;
    QString meminfoPath_;
    QTimer timer_;
    QRandomGenerator random_;
};
