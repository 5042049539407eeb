#include "LightingDouble.h"

#include <cstring>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#define NX_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

struct Module {
    int32_t lightMode = 5;
    int32_t colorMode = 0;
    int32_t lightSpeed = 2;
    uint8_t turnOff = 0;
    COLORREF rgb[NX_LED_ARRAY] = {};
    float bright[NX_LED_ARRAY] = {};
    COLORREF singleRGB = 0x0000FF;
    float singleBright = 1.0f;
    COLORREF software[NX_LED_ARRAY] = {};
};

struct State {
    std::mutex mutex;
    // The name of every function called.
    std::vector<std::string> calls;
    HWData hw{};
    NotiEventData noti{};
    SettingData setting{};
    Module modules[NX_MODULE_COUNT];
    int32_t profile = 0;
    UIEventLightModeFunc lightModeCallback = nullptr;
    UIPreviewEventFunc previewCallback = nullptr;
};

State& state()
{
    static State s;
    return s;
}

void record(const char* name)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    state().calls.push_back(name);
}

// The slot's module; a slot out of range gets slot 0's.
Module& module(const char* name, int32_t slot)
{
    record(name);
    return state().modules[slot >= 0 && slot < NX_MODULE_COUNT ? slot : 0];
}

} // namespace

NX_EXPORT void SharedDLL_init(void)
{
    record("SharedDLL_init");
}

NX_EXPORT void RegisterUIEventLightModeFunc(UIEventLightModeFunc callback)
{
    record("RegisterUIEventLightModeFunc");
    state().lightModeCallback = callback;
}

NX_EXPORT void RegisterUIPreviewEventFunc(UIPreviewEventFunc callback)
{
    record("RegisterUIPreviewEventFunc");
    state().previewCallback = callback;
}

NX_EXPORT int32_t GetValueMemorySlotNumber(int32_t index)
{
    record("GetValueMemorySlotNumber");
    return index >= 0 && index < NX_MODULE_COUNT ? index : -1;
}

NX_EXPORT void SetSlotNumber(int32_t, int32_t*)
{
    record("SetSlotNumber");
}

NX_EXPORT void SetValueLighting(int32_t, int32_t, int32_t, int32_t, bool)
{
    record("SetValueLighting");
}

NX_EXPORT void SetValueRGB(int32_t, COLORREF*, float*, COLORREF, float, int32_t)
{
    record("SetValueRGB");
}

// The per-module getters: each records its call and answers with its field.
#define NX_MODULE_GETTER(Type, Name, expression)                                                   \
    NX_EXPORT Type Name(int32_t slot)                                                              \
    {                                                                                              \
        return module(#Name, slot).expression;                                                     \
    }
NX_MODULE_GETTER(int32_t, GetValueLightMode, lightMode)
NX_MODULE_GETTER(int32_t, GetValueColorMode, colorMode)
NX_MODULE_GETTER(int32_t, GetValueLightSpeed, lightSpeed)
NX_MODULE_GETTER(uint8_t, GetValueTurnOff, turnOff)
NX_MODULE_GETTER(COLORREF*, GetValueRGB, rgb)
NX_MODULE_GETTER(COLORREF, GetValueSingleRGB, singleRGB)
NX_MODULE_GETTER(float*, GetValueBright, bright)
NX_MODULE_GETTER(float, GetValueSingleBright, singleBright)
NX_MODULE_GETTER(COLORREF*, GetValueSoftwareRGB, software)

NX_EXPORT HWData GetValueHWData(void)
{
    record("GetValueHWData");
    return state().hw;
}

NX_EXPORT NotiEventData GetNotiEvent(void)
{
    record("GetNotiEvent");
    return state().noti;
}

NX_EXPORT void SetNotiEvent(NotiEventData data)
{
    record("SetNotiEvent");
    state().noti = data;
}

NX_EXPORT SettingData GetSettingValue(void)
{
    record("GetSettingValue");
    return state().setting;
}

NX_EXPORT void SetSettingValue(SettingData data)
{
    record("SetSettingValue");
    state().setting = data;
}

NX_EXPORT int32_t GetProfile(void)
{
    record("GetProfile");
    return state().profile;
}

NX_EXPORT void SetProfile(int32_t profile)
{
    record("SetProfile");
    state().profile = profile;
}

// --- control side -------------------------------------------------------------------------------

void Double_reset(void)
{
    State& s = state();
    std::lock_guard<std::mutex> lock(s.mutex);
    s.calls.clear();
    std::memset(&s.hw, 0, sizeof s.hw);
    std::memset(&s.noti, 0, sizeof s.noti);
    s.setting = SettingData{0, false, false, false, 0};
    for (Module& m : s.modules)
        m = Module{};
    s.profile = 0;
}

void Double_setHWData(const HWData* data)
{
    state().hw = *data;
}

void Double_setNotiEvent(const NotiEventData* data)
{
    state().noti = *data;
}

void Double_setSetting(SettingData data)
{
    state().setting = data;
}

void Double_setLighting(int32_t slot, int32_t lightMode, int32_t colorMode, int32_t lightSpeed,
                        uint8_t turnOff)
{
    if (slot < 0 || slot >= NX_MODULE_COUNT)
        return;
    Module& m = state().modules[slot];
    m.lightMode = lightMode;
    m.colorMode = colorMode;
    m.lightSpeed = lightSpeed;
    m.turnOff = turnOff;
}

COLORREF* Double_softwareRGB(int32_t slot)
{
    return state().modules[slot >= 0 && slot < NX_MODULE_COUNT ? slot : 0].software;
}

int Double_callCount(const char* function)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    int count = 0;
    for (const std::string& call : state().calls)
        count += call == function ? 1 : 0;
    return count;
}

SettingData Double_lastSetting(void)
{
    return state().setting;
}

NotiEventData Double_lastNotiEvent(void)
{
    return state().noti;
}

void Double_fireLightModeEvent(int32_t value, int onOwnThread)
{
    UIEventLightModeFunc callback = state().lightModeCallback;
    if (callback && onOwnThread)
        std::thread([callback, value]() { callback(value); }).join();
    else if (callback)
        callback(value);
}

void Double_firePreviewEvent(int onOwnThread)
{
    UIPreviewEventFunc callback = state().previewCallback;
    if (callback && onOwnThread)
        std::thread(callback).join();
    else if (callback)
        callback();
}

int Double_hasCallbacks(void)
{
    return state().lightModeCallback && state().previewCallback ? 1 : 0;
}
