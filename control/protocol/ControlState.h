#pragma once

#include "Request.h"

namespace nxproto {

// The lighting of one module.
struct ModuleLighting {
    int32_t lightMode = 5;
    int32_t colorMode = 0;
    int32_t lightSpeed = 2;
    bool turnOff = false;
    COLORREF rgb[kLedCount] = {};
    float bright[kLedCount] = {};
    COLORREF singleRGB = 0x0000FF;
    float singleBright = 1.0f;
};

bool operator==(const ModuleLighting& a, const ModuleLighting& b);
inline bool operator!=(const ModuleLighting& a, const ModuleLighting& b)
{
    return !(a == b);
}

// Everything the service keeps for the user: five profiles of eight modules each (the current
// one is the one shown and edited), the slot order, the notification rules and the settings.
struct ControlState {
    int32_t profile = 0;
    int32_t slotOrder[kSlotCount] = {};
    ModuleLighting profiles[kProfileCount][kSlotCount];
    NotiEventData noti = {};
    SettingData setting = {};

    const ModuleLighting& module(int slot) const { return profiles[profile][slot]; }
    ModuleLighting& module(int slot) { return profiles[profile][slot]; }
};

bool operator==(const ControlState& a, const ControlState& b);
inline bool operator!=(const ControlState& a, const ControlState& b)
{
    return !(a == b);
}

// What changed, as carried by a state push and handed to the light-mode event.
enum ChangeFlag : uint32_t {
    ChangeLighting = 1u << 0,
    ChangeColors = 1u << 1,
    ChangeSlotOrder = 1u << 2,
    ChangeProfile = 1u << 3,
    ChangeNotification = 1u << 4,
    ChangeSetting = 1u << 5,
    ChangeAll = (1u << 6) - 1,
};

// NotiEventData as its fifteen raw 32-bit cells: a boolean cell keeps all four of its bytes.
constexpr int kNotificationCells = 15;
void notificationToCells(const NotiEventData& noti, uint32_t (&cells)[kNotificationCells]);
NotiEventData notificationFromCells(const uint32_t (&cells)[kNotificationCells]);

// The colours a module shows out of the box, 0x00BBGGRR.
extern const COLORREF kDefaultColors[kLedCount];

ModuleLighting defaultModuleLighting();
NotiEventData defaultNotification();
SettingData defaultSetting();
// A fresh installation: every profile lit with the default colours at full brightness.
ControlState defaultControlState();

// Applies a request that validateRequest accepted and returns the ChangeFlags it stands for
// (zero when the state is left as it was, whatever the request).
uint32_t applyRequest(ControlState& state, const Request& request);

} // namespace nxproto
