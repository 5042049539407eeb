#include "DefaultRecords.h"

#include <cstring>

namespace DefaultRecords {

namespace {

constexpr COLORREF kDefaultRGB[NX_LED_ARRAY] = {0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200,
                                                0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00,
                                                0xFF6200, 0xFF00A7, 0x0000FF, 0x00FFD8};

void setText(char (&field)[NX_TEXT_LEN], const char* text)
{
    std::memset(field, 0, sizeof field);
    std::strncpy(field, text, sizeof field - 1);
}

void fillModule(MemoryModuleData& module, int index)
{
    module.memorySlot = -1;
    module.temperature = -1;
    module.memoryModuleSize = -1;
    module.ledNum = -1;
    module.reserved288 = -1;
    module.frequency = -1.0;
    setText(module.text12, "N/A");
    setText(module.modelCode, "N/A");
    setText(module.type, "N/A");
    setText(module.text216, "N/A");
    for (int i = 0; i < NX_LED_ARRAY; ++i) {
        module.defaultRGB[i] = kDefaultRGB[i];
        module.rgb[i] = kDefaultRGB[i];
    }
    // The brightness is written by module index, so module k gets 1.0 at entry k only.
    module.bright[index] = 1.0f;
    module.singleRGB = 0x0000FF;
    module.singleBright = 1.0f;
    module.lightMode = 5;
    module.colorMode = 0;
    module.lightSpeed = 2;
    module.turnOff = false;
}

} // namespace

HWData hwData()
{
    HWData data;
    std::memset(&data, 0, sizeof data);
    for (int i = 0; i < NX_MODULE_COUNT; ++i)
        data.slotIndex[i] = -1;
    data.memoryCount = -1;
    data.slotCount = 0;
    data.reserved40 = -1;
    data.frequency = -1.0;
    setText(data.systemText, "N/A");
    data.casLatency = -1.0;
    data.tRCD = -1;
    data.reserved132 = -1;
    data.reserved136 = -1;
    data.channel = -1;
    data.physicalMemoryUsed = -1;
    data.reserved148 = -1;
    data.memoryLoad = -1.0;
    for (int i = 0; i < NX_MODULE_COUNT; ++i)
        fillModule(data.memoryData[i], i);
    data.updateTime = 0;
    return data;
}

NotiEventData notiEvent()
{
    NotiEventData data;
    std::memset(&data, 0, sizeof data);
    return data;
}

SettingData setting()
{
    SettingData data;
    std::memset(&data, 0, sizeof data);
    return data;
}

} // namespace DefaultRecords
