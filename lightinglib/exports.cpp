// The 23 exported functions of the lighting library. Each is a thin, exception-free wrapper
// around the process's LightingClient.

#include "LightingClient.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

#define NX_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

using nxproto::ControlState;
using nxproto::MessageType;
using nxproto::Request;

bool validSlot(int32_t slot)
{
    return slot >= 0 && slot < nxproto::kSlotCount;
}

float sanitizeBrightness(float value)
{
    if (std::isnan(value))
        return 0.0f;
    return std::clamp(value, 0.0f, 1.0f);
}

template <typename Result, typename Reader> Result readOr(Result fallback, Reader&& reader)
{
    try {
        return LightingClient::instance().read(reader);
    } catch (...) {
        return fallback;
    }
}

void submit(const Request& request)
{
    try {
        LightingClient::instance().submit(request);
    } catch (...) {
    }
}

} // namespace

NX_EXPORT void SharedDLL_init(void)
{
    try {
        LightingClient::instance().start();
    } catch (...) {
    }
}

NX_EXPORT void RegisterUIEventLightModeFunc(UIEventLightModeFunc callback)
{
    try {
        LightingClient::instance().setLightModeCallback(callback);
    } catch (...) {
    }
}

NX_EXPORT void RegisterUIPreviewEventFunc(UIPreviewEventFunc callback)
{
    try {
        LightingClient::instance().setPreviewCallback(callback);
    } catch (...) {
    }
}

NX_EXPORT int32_t GetValueMemorySlotNumber(int32_t index)
{
    if (!validSlot(index))
        return -1;
    return readOr<int32_t>(-1, [index](const ControlState& s) { return s.slotOrder[index]; });
}

NX_EXPORT void SetSlotNumber(int32_t count, int32_t* order)
{
    if (!order)
        return;
    Request request;
    request.type = MessageType::SetSlotOrder;
    request.count = std::clamp<int32_t>(count, 0, nxproto::kSlotCount);
    std::copy_n(order, request.count, request.order);
    submit(request);
}

NX_EXPORT void SetValueLighting(int32_t slot, int32_t lightMode, int32_t colorMode,
                                int32_t lightSpeed, bool turnOff)
{
    Request request;
    request.type = MessageType::SetLighting;
    request.slot = slot;
    request.lightMode = lightMode;
    request.colorMode = colorMode;
    request.lightSpeed = lightSpeed;
    request.turnOff = turnOff;
    submit(request);
}

NX_EXPORT void SetValueRGB(int32_t slot, COLORREF* rgb, float* bright, COLORREF singleRGB,
                           float singleBright, int32_t count)
{
    if (!validSlot(slot))
        return;
    Request request;
    request.type = MessageType::SetColors;
    request.slot = slot;
    request.count = std::clamp<int32_t>(count, 0, nxproto::kLedCount);
    // A missing array keeps the module's current values.
    readOr<bool>(false, [&](const ControlState& s) {
        std::copy_n(s.module(slot).rgb, nxproto::kLedCount, request.rgb);
        std::copy_n(s.module(slot).bright, nxproto::kLedCount, request.bright);
        return true;
    });
    for (int i = 0; i < request.count; ++i) {
        if (rgb)
            request.rgb[i] = rgb[i];
        if (bright)
            request.bright[i] = sanitizeBrightness(bright[i]);
    }
    request.singleRGB = singleRGB;
    request.singleBright = sanitizeBrightness(singleBright);
    submit(request);
}

NX_EXPORT int32_t GetValueLightMode(int32_t slot)
{
    if (!validSlot(slot))
        return -1;
    return readOr<int32_t>(-1, [slot](const ControlState& s) { return s.module(slot).lightMode; });
}

NX_EXPORT int32_t GetValueColorMode(int32_t slot)
{
    if (!validSlot(slot))
        return -1;
    return readOr<int32_t>(-1, [slot](const ControlState& s) { return s.module(slot).colorMode; });
}

NX_EXPORT int32_t GetValueLightSpeed(int32_t slot)
{
    if (!validSlot(slot))
        return -1;
    return readOr<int32_t>(-1, [slot](const ControlState& s) { return s.module(slot).lightSpeed; });
}

NX_EXPORT uint8_t GetValueTurnOff(int32_t slot)
{
    if (!validSlot(slot))
        return 0;
    return readOr<uint8_t>(0, [slot](const ControlState& s) {
        return static_cast<uint8_t>(s.module(slot).turnOff ? 1 : 0);
    });
}

NX_EXPORT COLORREF* GetValueRGB(int32_t slot)
{
    try {
        return LightingClient::instance().colors(slot);
    } catch (...) {
        static COLORREF none[nxproto::kLedCount] = {};
        return none;
    }
}

NX_EXPORT COLORREF GetValueSingleRGB(int32_t slot)
{
    if (!validSlot(slot))
        return 0;
    return readOr<COLORREF>(0, [slot](const ControlState& s) { return s.module(slot).singleRGB; });
}

NX_EXPORT float* GetValueBright(int32_t slot)
{
    try {
        return LightingClient::instance().brightness(slot);
    } catch (...) {
        static float none[nxproto::kLedCount] = {};
        return none;
    }
}

NX_EXPORT float GetValueSingleBright(int32_t slot)
{
    if (!validSlot(slot))
        return 0.0f;
    return readOr<float>(0.0f,
                         [slot](const ControlState& s) { return s.module(slot).singleBright; });
}

NX_EXPORT COLORREF* GetValueSoftwareRGB(int32_t slot)
{
    try {
        return LightingClient::instance().softwareColors(slot);
    } catch (...) {
        static COLORREF none[nxproto::kLedCount] = {};
        return none;
    }
}

NX_EXPORT HWData GetValueHWData(void)
{
    try {
        return LightingClient::instance().hardwareRecord();
    } catch (...) {
        return nxproto::defaultHWData();
    }
}

NX_EXPORT NotiEventData GetNotiEvent(void)
{
    return readOr<NotiEventData>(nxproto::defaultNotification(),
                                 [](const ControlState& s) { return s.noti; });
}

NX_EXPORT void SetNotiEvent(NotiEventData data)
{
    Request request;
    request.type = MessageType::SetNotification;
    std::memcpy(&request.noti, &data, sizeof data);
    submit(request);
}

NX_EXPORT SettingData GetSettingValue(void)
{
    return readOr<SettingData>(nxproto::defaultSetting(),
                               [](const ControlState& s) { return s.setting; });
}

NX_EXPORT void SetSettingValue(SettingData data)
{
    Request request;
    request.type = MessageType::SetSetting;
    std::memcpy(&request.setting, &data, sizeof data);
    submit(request);
}

NX_EXPORT int32_t GetProfile(void)
{
    return readOr<int32_t>(0, [](const ControlState& s) { return s.profile; });
}

NX_EXPORT void SetProfile(int32_t profile)
{
    Request request;
    request.type = MessageType::SetProfile;
    request.profile = profile;
    submit(request);
}

// Every export has exactly the type the panel binds it with.
#define NX_CHECK_EXPORT(name)                                                                      \
    static_assert(std::is_same<decltype(&name), name##_fn>::value, #name " has the wrong type");
NORVALEX_LIGHTING_FUNCTIONS(NX_CHECK_EXPORT)
#undef NX_CHECK_EXPORT
