#pragma once

#include "ControllerData.h"
#include "HardwareInfo.h"

#include <cstdint>
#include <string>
#include <vector>

// What the SDK server shows of one of our modules.
struct SdkModule {
    int slot = 0;
    int leds = 0;
    std::string model;
    int32_t lightMode = 0;
    int32_t lightSpeed = 0;

    // Equal when a client's view of the device list would not change.
    bool sameDevice(const SdkModule& other) const
    {
        return slot == other.slot && leds == other.leds && model == other.model;
    }
};

// Our modules described as OpenRGB DRAM controllers: one linear zone, mode 0 "Direct" (per-LED
// colours from the client) and after it every light mode of ours, in the order of their values.
namespace ModuleControllers {

constexpr int kDirectMode = 0;
constexpr int kLightModeCount = 38;
constexpr uint32_t kSpeedMin = 0;
constexpr uint32_t kSpeedMax = 3;

// The present modules of `hardware`, in slot order, with their lighting from `state`.
std::vector<SdkModule> fromHardware(const nxproto::HardwareInfo& hardware,
                                    const nxproto::ControlState& state);

// `colors` holds the module's current colours (at least module.leds of them).
orgb::Controller describe(const SdkModule& module, bool direct, const uint32_t* colors,
                          const std::string& version);

// The light mode a mode index stands for, -1 for Direct or an index out of range.
int lightModeForIndex(int index);
int indexForLightMode(int lightMode);
// OpenRGB speeds grow faster; ours run from 0 (Extreme) to 3 (Slow).
int lightSpeedFromSdk(uint32_t speed);
uint32_t sdkSpeedFromLightSpeed(int lightSpeed);

const char* lightModeName(int lightMode);

} // namespace ModuleControllers
