#include "HardwareMonitor.h"

#include <QDateTime>
#include <QFile>

#include <cstdint>

#include <utility>

namespace {

constexpr int kRefreshMs = 1000;
constexpr int kModuleSizeMB = 16384;
constexpr double kFrequencyMHz = 6000.0;
constexpr double kCasLatency = 30.0;
constexpr int kRasToCas = 38;
constexpr int kDualChannel = 2;

} // namespace

HardwareMonitor::HardwareMonitor(const SimulationConfig& config, QString meminfoPath,
                                 QObject* parent)
    : QObject(parent), meminfoPath_(std::move(meminfoPath)),
      random_(static_cast<quint32>(QDateTime::currentMSecsSinceEpoch()))
{
    const int count = qBound(0, config.modules, nxproto::kSlotCount);
    info_.memoryCount = count;
    info_.slotCount = count <= 4 ? 4 : 8;
    if (count > 0) {
        info_.frequency = kFrequencyMHz;
        info_.casLatency = kCasLatency;
        info_.tRCD = kRasToCas;
        info_.channel = kDualChannel;
    }
    for (int i = 0; i < count; ++i) {
        nxproto::ModuleInfo& module = info_.modules[i];
        module.present = true;
        module.temperature =
            kMinTemperature + random_.bounded(kMaxTemperature - kMinTemperature + 1);
        module.modelCode = config.models.empty()
                               ? std::string("KX44")
                               : config.models[static_cast<std::size_t>(i) % config.models.size()];
        module.type = "DDR5";
        module.sizeMB = kModuleSizeMB;
        module.frequency = kFrequencyMHz;
        module.ledNum = config.leds;
    }
    timer_.setInterval(kRefreshMs);
    connect(&timer_, &QTimer::timeout, this, &HardwareMonitor::refresh);
    refresh();
}

void HardwareMonitor::start()
{
    timer_.start();
}

void HardwareMonitor::refresh()
{
    info_.updateTime = static_cast<uint32_t>(QDateTime::currentSecsSinceEpoch());
    // A temperature takes a step of at most one degree now and then, within the range.
    for (nxproto::ModuleInfo& module : info_.modules) {
        if (!module.present || random_.bounded(4) != 0)
            continue;
        const int step = random_.bounded(2) == 0 ? -1 : 1;
        module.temperature = qBound(kMinTemperature, module.temperature + step, kMaxTemperature);
    }
    QFile file(meminfoPath_);
    double load = -1.0;
    int used = -1;
    if (file.open(QIODevice::ReadOnly) && parseMeminfo(file.read(64 * 1024), &load, &used)) {
        info_.memoryLoad = load;
        info_.physicalMemoryUsed = used;
    }
    emit updated();
}

bool HardwareMonitor::parseMeminfo(const QByteArray& text, double* load, int* usedMB)
{
    qint64 totalKB = -1;
    qint64 availableKB = -1;
    for (const QByteArray& line : text.split('\n')) {
        const QList<QByteArray> parts = line.simplified().split(' ');
        if (parts.size() < 2)
            continue;
        bool ok = false;
        const qint64 value = parts.at(1).toLongLong(&ok);
        if (!ok)
            continue;
        if (parts.at(0) == "MemTotal:")
            totalKB = value;
        else if (parts.at(0) == "MemAvailable:")
            availableKB = value;
    }
    if (totalKB <= 0 || availableKB < 0 || availableKB > totalKB)
        return false;
    const qint64 usedKB = totalKB - availableKB;
    // Whole percent, as a memory-load figure usually is.
    *load = static_cast<double>((usedKB * 100 + totalKB / 2) / totalKB);
    *usedMB = static_cast<int>(qMin<qint64>(usedKB / 1024, INT32_MAX));
    return true;
}
