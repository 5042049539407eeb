#include "ModuleControllers.h"

#include <algorithm>

namespace ModuleControllers {

namespace {

const char* const kNames[kLightModeCount] = {
    "Flow",          "RGB Spectrum", "Ripple",   "Blink",     "Pulse",     "Wave",
    "Static",        "Copy",         "Movie",    "Gaming",    "Party",     "Mobile_Movie",
    "Mobile_Gaming", "Mobile_Party", "Temp.",    "Cross",     "Hello",     "Shooting Star",
    "Black Hole",    "Aurora",       "RGB Sync", "Twinkle",   "Script",    "Weather",
    "Raindrop",      "Heartbeat",    "Stack",    "Scan",      "Swirl",     "Screen Gaming",
    "Screen Movie",  "Clock",        "Rain",     "Fireworks", "Explosion", "MB Sync",
    "Radiation",     "Aim"};

orgb::Mode directMode()
{
    orgb::Mode mode;
    mode.name = "Direct";
    mode.value = 0xFFFF;
    mode.flags = orgb::ModeHasPerLedColor;
    mode.colorsMin = 0;
    mode.colorsMax = 0;
    mode.colorMode = orgb::ColorModePerLed;
    return mode;
}

orgb::Mode lightMode(int value, int lightSpeed)
{
    orgb::Mode mode;
    mode.name = kNames[value];
    mode.value = value;
    mode.flags = orgb::ModeHasSpeed;
    mode.speedMin = kSpeedMin;
    mode.speedMax = kSpeedMax;
    mode.speed = sdkSpeedFromLightSpeed(lightSpeed);
    mode.colorMode = orgb::ColorModeNone;
    return mode;
}

} // namespace

const char* lightModeName(int value)
{
    return value >= 0 && value < kLightModeCount ? kNames[value] : "";
}

int lightModeForIndex(int index)
{
    return index >= 1 && index <= kLightModeCount ? index - 1 : -1;
}

int indexForLightMode(int value)
{
    return value >= 0 && value < kLightModeCount ? value + 1 : kDirectMode;
}

int lightSpeedFromSdk(uint32_t speed)
{
    return int(kSpeedMax) - int(std::min(speed, kSpeedMax));
}

uint32_t sdkSpeedFromLightSpeed(int lightSpeed)
{
    return kSpeedMax - uint32_t(std::clamp(lightSpeed, 0, int(kSpeedMax)));
}

std::vector<SdkModule> fromHardware(const nxproto::HardwareInfo& hardware,
                                    const nxproto::ControlState& state)
{
    std::vector<SdkModule> modules;
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
        const nxproto::ModuleInfo& info = hardware.modules[slot];
        if (!info.present || info.ledNum <= 0)
            continue;
        SdkModule module;
        module.slot = slot;
        module.leds = std::min(info.ledNum, nxproto::kLedCount);
        module.model = info.modelCode;
        module.lightMode = state.module(slot).lightMode;
        module.lightSpeed = state.module(slot).lightSpeed;
        modules.push_back(module);
    }
    return modules;
}

orgb::Controller describe(const SdkModule& module, bool direct, const uint32_t* colors,
                          const std::string& version)
{
    orgb::Controller c;
    c.type = orgb::DeviceDram;
    c.name = "NORVALEX DRAM " + module.model;
    c.vendor = "NORVALEX";
    c.description = "NORVALEX RGB memory module";
    c.version = version;
    c.location = "Slot " + std::to_string(module.slot + 1);
    c.modes.push_back(directMode());
    for (int value = 0; value < kLightModeCount; ++value)
        c.modes.push_back(lightMode(value, module.lightSpeed));
    c.activeMode = direct ? kDirectMode : indexForLightMode(module.lightMode);

    orgb::Zone zone;
    zone.name = "Module";
    zone.type = orgb::ZoneLinear;
    zone.ledsMin = zone.ledsMax = zone.ledsCount = uint32_t(module.leds);
    c.zones.push_back(zone);
    for (int led = 0; led < module.leds; ++led) {
        c.leds.push_back({"LED " + std::to_string(led + 1), uint32_t(led)});
        c.colors.push_back(colors[led]);
    }
    return c;
}

} // namespace ModuleControllers
