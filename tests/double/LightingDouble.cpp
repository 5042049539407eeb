#include "LightingDouble.h"

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
Module& module(int32_t slot)
{
    return state().modules[slot >= 0 && slot < NX_MODULE_COUNT ? slot : 0];
}

} // namespace

// Each function records its call; getters answer with their field, setters store into it.
#define NX_MODULE_GETTER(Type, Name, field)                                                        \
    NX_EXPORT Type Name(int32_t slot)                                                              \
    {                                                                                              \
        record(#Name);                                                                             \
        return module(slot).field;                                                                 \
    }
#define NX_GETTER(Type, Name, field)                                                               \
    NX_EXPORT Type Name(void)                                                                      \
    {                                                                                              \
        record(#Name);                                                                             \
        return state().field;                                                                      \
    }
#define NX_SETTER(Type, Name, field)                                                               \
    NX_EXPORT void Name(Type value)                                                                \
    {                                                                                              \
        record(#Name);                                                                             \
        state().field = value;                                                                     \
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
NX_GETTER(HWData, GetValueHWData, hw)
NX_GETTER(NotiEventData, GetNotiEvent, noti)
NX_GETTER(SettingData, GetSettingValue, setting)
NX_GETTER(int32_t, GetProfile, profile)
NX_SETTER(NotiEventData, SetNotiEvent, noti)
NX_SETTER(SettingData, SetSettingValue, setting)
NX_SETTER(int32_t, SetProfile, profile)
NX_SETTER(UIEventLightModeFunc, RegisterUIEventLightModeFunc, lightModeCallback)
NX_SETTER(UIPreviewEventFunc, RegisterUIPreviewEventFunc, previewCallback)

NX_EXPORT void SharedDLL_init(void)
{
    record("SharedDLL_init");
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

// --- control side -------------------------------------------------------------------------------

void Double_reset(void)
{
    State& s = state();
    std::lock_guard<std::mutex> lock(s.mutex);
    s.calls.clear();
    s.hw = HWData{};
    s.noti = NotiEventData{};
    s.setting = SettingData{};
    for (Module& m : s.modules)
        m = Module{};
    s.profile = 0;
}

HWData* Double_hw(void)
{
    return &state().hw;
}

SettingData* Double_setting(void)
{
    return &state().setting;
}

void Double_setLighting(int32_t slot, int32_t lightMode, int32_t colorMode, int32_t lightSpeed,
                        uint8_t turnOff)
{
    Module& m = module(slot);
    m.lightMode = lightMode;
    m.colorMode = colorMode;
    m.lightSpeed = lightSpeed;
    m.turnOff = turnOff;
}

COLORREF* Double_softwareRGB(int32_t slot)
{
    return module(slot).software;
}

int Double_callCount(const char* function)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    int count = 0;
    for (const std::string& call : state().calls)
        count += call == function ? 1 : 0;
    return count;
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
