#pragma once

#include "ControlState.h"

#include <string>

namespace nxproto {

// Longest text a hardware record field holds (the record's fields are 64 bytes with the NUL).
constexpr std::size_t kMaxTextLength = NX_TEXT_LEN - 1;

struct ModuleInfo {
    bool present = false;
    int32_t temperature = -1;
    std::string modelCode;
    std::string type;
    int32_t sizeMB = -1;
    double frequency = -1.0;
    int32_t ledNum = -1;
};

// What the service reports about the machine and its modules, refreshed every second.
struct HardwareInfo {
    uint32_t updateTime = 0;
    int32_t memoryCount = -1;
    int32_t slotCount = 0;
    double frequency = -1.0;
    double casLatency = -1.0;
    int32_t tRCD = -1;
    int32_t channel = -1;
    int32_t physicalMemoryUsed = -1;
    double memoryLoad = -1.0;
    ModuleInfo modules[kSlotCount];
};

bool operator==(const HardwareInfo& a, const HardwareInfo& b);

// The record handed out before any data arrived and used for every absent module.
HWData defaultHWData();
// The record for the panel: the hardware facts plus the current profile's lighting of each
// present module; absent modules keep the default entry.
HWData buildHWData(const HardwareInfo& hardware, const ControlState& state);

} // namespace nxproto
