#include "SimulatedModules.h"

#include <QDateTime>

namespace {

constexpr int kModuleSizeMB = 16384;
constexpr double kFrequencyMHz = 6000.0;
constexpr double kCasLatency = 30.0;
constexpr int kRasToCas = 38;
constexpr int kDualChannel = 2;

} // namespace

SimulatedModules::SimulatedModules(const SimulationConfig& config)
    : config_(config), random_(static_cast<quint32>(QDateTime::currentMSecsSinceEpoch()))
{
}

QString SimulatedModules::description() const
{
    return QStringLiteral("simulated: %1 modules with %2 LEDs")
        .arg(qBound(0, config_.modules, nxproto::kSlotCount))
        .arg(config_.leds);
}

void SimulatedModules::refresh(nxproto::HardwareInfo& info)
{
    if (!filled_) {
        filled_ = true;
        const int count = qBound(0, config_.modules, nxproto::kSlotCount);
        info.memoryCount = count;
        info.slotCount = count <= 4 ? 4 : 8;
        if (count > 0) {
            info.frequency = kFrequencyMHz;
            info.casLatency = kCasLatency;
            info.tRCD = kRasToCas;
            info.channel = kDualChannel;
        }
        for (int i = 0; i < count; ++i) {
            nxproto::ModuleInfo& module = info.modules[i];
            module.present = true;
            module.temperature =
                kMinTemperature + random_.bounded(kMaxTemperature - kMinTemperature + 1);
            module.modelCode =
                config_.models.empty()
                    ? std::string("KX44")
                    : config_.models[static_cast<std::size_t>(i) % config_.models.size()];
            module.type = "DDR5";
            module.sizeMB = kModuleSizeMB;
            module.frequency = kFrequencyMHz;
            module.ledNum = config_.leds;
        }
        return;
    }
    // A temperature takes a step of at most one degree now and then, within the range.
    for (nxproto::ModuleInfo& module : info.modules) {
        if (!module.present || random_.bounded(4) != 0)
            continue;
        const int step = random_.bounded(2) == 0 ? -1 : 1;
        module.temperature = qBound(kMinTemperature, module.temperature + step, kMaxTemperature);
    }
}
