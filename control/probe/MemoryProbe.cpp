#include "MemoryProbe.h"

#include "ChannelMode.h"
#include "DmiCache.h"
#include "Hwmon.h"
#include "SpdEeproms.h"

#include <algorithm>
#include <map>

MemoryProbe::MemoryProbe(QString root) : root_(std::move(root)) {}

bool MemoryProbe::probe()
{
    smbios_ = {};
    present_.clear();
    slots_.clear();
    spd_.clear();
    keys_.clear();
    if (!DmiCache::load(root_, &smbios_, &source_))
        return false;
    for (std::size_t i = 0; i < smbios_.devices.size() && int(i) < nxproto::kSlotCount; ++i) {
        if (smbios_.devices[i].present) {
            present_.push_back(smbios_.devices[i]);
            slots_.push_back(int(i));
        }
    }
    if (present_.empty())
        return false;

    // EEPROMs answer in slot order; they are matched only when there is one per module.
    const std::vector<SpdEeproms::Eeprom> eeproms = SpdEeproms::scan(root_);
    spd_.resize(present_.size());
    if (eeproms.size() == present_.size()) {
        for (std::size_t i = 0; i < eeproms.size(); ++i) {
            spd_[i] = eeproms[i].spd;
            keys_.emplace_back(eeproms[i].bus, eeproms[i].address & 7);
        }
    }
    return true;
}

void MemoryProbe::fill(nxproto::HardwareInfo& info) const
{
    info.slotCount =
        qBound(0, std::max(smbios_.slotCount, int(smbios_.devices.size())), nxproto::kSlotCount);
    info.memoryCount = int(present_.size());
    info.channel = ChannelMode::populatedChannels(smbios_);
    info.frequency = -1.0;
    info.casLatency = -1.0;
    info.tRCD = -1;
    // The memory runs at the slowest module's speed and timings.
    int speed = -1;
    for (const MemoryDevice& device : present_) {
        if (device.speedMTs > 0)
            speed = speed < 0 ? device.speedMTs : std::min(speed, device.speedMTs);
    }
    if (speed > 0)
        info.frequency = speed;
    for (std::size_t i = 0; i < present_.size(); ++i) {
        const int cl = spd_[i].casLatency(speed);
        const int rcd = spd_[i].rasToCas(speed);
        if (cl > 0)
            info.casLatency = std::max(info.casLatency, double(cl));
        if (rcd > 0)
            info.tRCD = std::max(info.tRCD, rcd);
    }
    for (nxproto::ModuleInfo& module : info.modules)
        module = nxproto::ModuleInfo();
    for (std::size_t i = 0; i < present_.size(); ++i) {
        nxproto::ModuleInfo& module = info.modules[slots_[i]];
        const MemoryDevice& device = present_[i];
        module.present = true;
        module.sizeMB = device.sizeMB;
        module.type = (device.type.isEmpty() ? QStringLiteral("N/A") : device.type).toStdString();
        module.frequency = device.speedMTs > 0 ? double(device.speedMTs) : -1.0;
        QString part = device.partNumber;
        if (part.isEmpty())
            part = spd_[i].partNumber;
        module.modelCode = (part.isEmpty() ? QStringLiteral("N/A") : part)
                               .left(int(nxproto::kMaxTextLength))
                               .toStdString();
    }
}

void MemoryProbe::readTemperatures(nxproto::HardwareInfo& info) const
{
    const std::vector<Hwmon::ModuleSensor> sensors = Hwmon::moduleSensors(root_);
    std::map<DimmKey, int> byKey;
    for (const Hwmon::ModuleSensor& sensor : sensors)
        byKey[{sensor.bus, sensor.address & 7}] = sensor.celsius;
    for (std::size_t i = 0; i < present_.size(); ++i) {
        int celsius = -1;
        if (!keys_.empty()) {
            const auto found = byKey.find(keys_[i]);
            celsius = found == byKey.end() ? -1 : found->second;
        } else if (sensors.size() == present_.size()) {
            // No EEPROM to pair with: the sensors answer in slot order too.
            celsius = sensors[i].celsius;
        }
        info.modules[slots_[i]].temperature = celsius;
    }
}
