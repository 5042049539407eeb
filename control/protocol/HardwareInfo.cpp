#include "HardwareInfo.h"

#include "DefaultRecords.h"

#include <algorithm>
#include <cstring>

namespace nxproto {

namespace {

void setText(char (&field)[NX_TEXT_LEN], const std::string& text)
{
    std::memset(field, 0, sizeof field);
    std::memcpy(field, text.data(), std::min(text.size(), kMaxTextLength));
}

bool sameModule(const ModuleInfo& a, const ModuleInfo& b)
{
    return a.present == b.present && a.temperature == b.temperature && a.modelCode == b.modelCode &&
           a.type == b.type && a.sizeMB == b.sizeMB && a.frequency == b.frequency &&
           a.ledNum == b.ledNum;
}

} // namespace

bool operator==(const HardwareInfo& a, const HardwareInfo& b)
{
    if (a.updateTime != b.updateTime || a.memoryCount != b.memoryCount ||
        a.slotCount != b.slotCount || a.frequency != b.frequency || a.casLatency != b.casLatency ||
        a.tRCD != b.tRCD || a.channel != b.channel ||
        a.physicalMemoryUsed != b.physicalMemoryUsed || a.memoryLoad != b.memoryLoad)
        return false;
    for (int i = 0; i < kSlotCount; ++i) {
        if (!sameModule(a.modules[i], b.modules[i]))
            return false;
    }
    return true;
}

HWData defaultHWData()
{
    return DefaultRecords::hwData();
}

HWData buildHWData(const HardwareInfo& hardware, const ControlState& state)
{
    HWData data = defaultHWData();
    data.memoryCount = hardware.memoryCount;
    data.slotCount = hardware.slotCount;
    data.frequency = hardware.frequency;
    data.casLatency = hardware.casLatency;
    data.tRCD = hardware.tRCD;
    data.channel = hardware.channel;
    data.physicalMemoryUsed = hardware.physicalMemoryUsed;
    data.memoryLoad = hardware.memoryLoad;
    data.updateTime = hardware.updateTime;
    for (int i = 0; i < kSlotCount; ++i) {
        const ModuleInfo& info = hardware.modules[i];
        if (!info.present)
            continue;
        data.slotIndex[i] = i;
        MemoryModuleData& module = data.memoryData[i];
        module.memorySlot = i;
        module.temperature = info.temperature;
        setText(module.modelCode, info.modelCode);
        module.memoryModuleSize = info.sizeMB;
        module.frequency = info.frequency;
        setText(module.type, info.type);
        module.ledNum = info.ledNum;

        const ModuleLighting& lighting = state.module(i);
        std::copy(std::begin(lighting.rgb), std::end(lighting.rgb), module.rgb);
        std::copy(std::begin(lighting.bright), std::end(lighting.bright), module.bright);
        module.singleRGB = lighting.singleRGB;
        module.singleBright = lighting.singleBright;
        module.lightMode = lighting.lightMode;
        module.colorMode = lighting.colorMode;
        module.lightSpeed = lighting.lightSpeed;
        module.turnOff = lighting.turnOff;
        module.lightingOff = lighting.turnOff ? 1 : 0;
    }
    return data;
}

} // namespace nxproto
