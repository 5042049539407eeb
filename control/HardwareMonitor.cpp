#include "HardwareMonitor.h"

#include "Hwmon.h"
#include "MemInfo.h"

#include <QDateTime>

#include <utility>

namespace {

constexpr int kRefreshMs = 1000;

} // namespace

HardwareMonitor::HardwareMonitor(std::unique_ptr<ModuleSource> source, QString root,
                                 QObject* parent)
    : QObject(parent), source_(std::move(source)), root_(std::move(root))
{
    timer_.setInterval(kRefreshMs);
    connect(&timer_, &QTimer::timeout, this, &HardwareMonitor::refresh);
    read();
}

HardwareMonitor::~HardwareMonitor() = default;

void HardwareMonitor::setActive(bool active)
{
    if (active == timer_.isActive())
        return;
    if (!active) {
        timer_.stop();
        return;
    }
    read();
    timer_.start();
}

std::optional<double> HardwareMonitor::memoryTemperature() const
{
    if (!source_->isReal())
        return std::nullopt;
    std::optional<double> hottest;
    for (const nxproto::ModuleInfo& module : info_.modules) {
        // -1 is the record's "no reading".
        if (module.present && module.temperature != -1 &&
            (!hottest || module.temperature > *hottest))
            hottest = module.temperature;
    }
    return hottest;
}

void HardwareMonitor::refresh()
{
    read();
    emit updated();
}

void HardwareMonitor::read()
{
    info_.updateTime = static_cast<uint32_t>(QDateTime::currentSecsSinceEpoch());
    source_->refresh(info_);
    const MemInfo memory = MemInfo::read(root_);
    info_.memoryLoad = memory.load;
    info_.physicalMemoryUsed = memory.usedMB;
    cpuTemperature_ = Hwmon::cpuTemperature(root_);
}
