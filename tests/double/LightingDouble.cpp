#include "LightingDouble.h"

#include <cstdio>
#include <cstring>
#include <mutex>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
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
    std::vector<std::pair<std::string, std::string>> calls;
    std::string joined;
    std::string last;
    HWData hw{};
    NotiEventData noti{};
    SettingData setting{};
    Module modules[NX_MODULE_COUNT];
    int32_t slotNumbers[NX_MODULE_COUNT] = {};
    int32_t profile = 0;
    UIEventLightModeFunc lightModeCallback = nullptr;
    UIPreviewEventFunc previewCallback = nullptr;
};

State& state()
{
    static State s;
    return s;
}

template <typename... Args> std::string join(const Args&... args)
{
    std::ostringstream out;
    bool first = true;
    ((out << (first ? "" : ",") << args, first = false), ...);
    return out.str();
}

void record(const char* name, const std::string& args)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    state().calls.emplace_back(name, args);
}

void resetState()
{
    State& s = state();
    s.calls.clear();
    std::memset(&s.hw, 0, sizeof s.hw);
    std::memset(&s.noti, 0, sizeof s.noti);
    s.setting = SettingData{0, false, false, false, 0};
    for (int i = 0; i < NX_MODULE_COUNT; ++i) {
        s.modules[i] = Module{};
        s.slotNumbers[i] = i;
    }
    s.profile = 0;
}

bool validSlot(int32_t slot)
{
    return slot >= 0 && slot < NX_MODULE_COUNT;
}

// Records the call and returns the field of the slot's module, or `invalid` for a bad slot.
template <typename T> T moduleValue(const char* name, int32_t slot, T Module::*field, T invalid)
{
    record(name, join(slot));
    return validSlot(slot) ? state().modules[slot].*field : invalid;
}

// Records the call and returns the slot's array; a bad slot gets slot 0's.
template <typename T, std::size_t N>
T* moduleArray(const char* name, int32_t slot, T (Module::*field)[N])
{
    record(name, join(slot));
    return state().modules[validSlot(slot) ? slot : 0].*field;
}

} // namespace

NX_EXPORT void SharedDLL_init(void)
{
    record("SharedDLL_init", "");
}

NX_EXPORT void RegisterUIEventLightModeFunc(UIEventLightModeFunc callback)
{
    record("RegisterUIEventLightModeFunc", callback ? "set" : "null");
    state().lightModeCallback = callback;
}

NX_EXPORT void RegisterUIPreviewEventFunc(UIPreviewEventFunc callback)
{
    record("RegisterUIPreviewEventFunc", callback ? "set" : "null");
    state().previewCallback = callback;
}

NX_EXPORT int32_t GetValueMemorySlotNumber(int32_t index)
{
    record("GetValueMemorySlotNumber", join(index));
    return validSlot(index) ? state().slotNumbers[index] : -1;
}

NX_EXPORT void SetSlotNumber(int32_t count, int32_t* order)
{
    std::string args = join(count);
    for (int i = 0; order && i < count && i < NX_MODULE_COUNT; ++i)
        args += "," + std::to_string(order[i]);
    record("SetSlotNumber", args);
}

NX_EXPORT void SetValueLighting(int32_t slot, int32_t lightMode, int32_t colorMode,
                                int32_t lightSpeed, bool turnOff)
{
    record("SetValueLighting", join(slot, lightMode, colorMode, lightSpeed, int(turnOff)));
}

NX_EXPORT void SetValueRGB(int32_t slot, COLORREF* rgb, float* bright, COLORREF singleRGB,
                           float singleBright, int32_t count)
{
    std::ostringstream out;
    out << slot << ",rgb";
    for (int i = 0; rgb && i < count && i < NX_LED_ARRAY; ++i)
        out << (i ? ":" : "=") << std::hex << rgb[i] << std::dec;
    out << ",bright";
    for (int i = 0; bright && i < count && i < NX_LED_ARRAY; ++i)
        out << (i ? ":" : "=") << bright[i];
    out << "," << std::hex << singleRGB << std::dec << "," << singleBright << "," << count;
    record("SetValueRGB", out.str());
}

NX_EXPORT int32_t GetValueLightMode(int32_t slot)
{
    return moduleValue("GetValueLightMode", slot, &Module::lightMode, int32_t(-1));
}

NX_EXPORT int32_t GetValueColorMode(int32_t slot)
{
    return moduleValue("GetValueColorMode", slot, &Module::colorMode, int32_t(-1));
}

NX_EXPORT int32_t GetValueLightSpeed(int32_t slot)
{
    return moduleValue("GetValueLightSpeed", slot, &Module::lightSpeed, int32_t(-1));
}

NX_EXPORT uint8_t GetValueTurnOff(int32_t slot)
{
    return moduleValue("GetValueTurnOff", slot, &Module::turnOff, uint8_t(0));
}

NX_EXPORT COLORREF* GetValueRGB(int32_t slot)
{
    return moduleArray("GetValueRGB", slot, &Module::rgb);
}

NX_EXPORT COLORREF GetValueSingleRGB(int32_t slot)
{
    return moduleValue("GetValueSingleRGB", slot, &Module::singleRGB, COLORREF(0));
}

NX_EXPORT float* GetValueBright(int32_t slot)
{
    return moduleArray("GetValueBright", slot, &Module::bright);
}

NX_EXPORT float GetValueSingleBright(int32_t slot)
{
    return moduleValue("GetValueSingleBright", slot, &Module::singleBright, 0.0f);
}

NX_EXPORT COLORREF* GetValueSoftwareRGB(int32_t slot)
{
    return moduleArray("GetValueSoftwareRGB", slot, &Module::software);
}

NX_EXPORT HWData GetValueHWData(void)
{
    record("GetValueHWData", "");
    return state().hw;
}

NX_EXPORT NotiEventData GetNotiEvent(void)
{
    record("GetNotiEvent", "");
    return state().noti;
}

NX_EXPORT void SetNotiEvent(NotiEventData data)
{
    record("SetNotiEvent", join(data.reserved0, data.changedItem, int(data.loadingSwitch),
                                data.loadingValue, data.loadingColor, data.reserved20));
    state().noti = data;
}

NX_EXPORT SettingData GetSettingValue(void)
{
    record("GetSettingValue", "");
    return state().setting;
}

NX_EXPORT void SetSettingValue(SettingData data)
{
    record("SetSettingValue", join(data.languageIndex, int(data.autoUpdate), int(data.autoRun),
                                   int(data.currentLocation), int(data.reserved7)));
    state().setting = data;
}

NX_EXPORT int32_t GetProfile(void)
{
    record("GetProfile", "");
    return state().profile;
}

NX_EXPORT void SetProfile(int32_t profile)
{
    record("SetProfile", join(profile));
    state().profile = profile;
}

// --- control side -------------------------------------------------------------------------------

void Double_reset(void)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    resetState();
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
    if (!validSlot(slot))
        return;
    Module& m = state().modules[slot];
    m.lightMode = lightMode;
    m.colorMode = colorMode;
    m.lightSpeed = lightSpeed;
    m.turnOff = turnOff;
}

COLORREF* Double_softwareRGB(int32_t slot)
{
    return state().modules[validSlot(slot) ? slot : 0].software;
}

int Double_callCount(const char* function)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    int count = 0;
    for (const auto& call : state().calls)
        count += call.first == function ? 1 : 0;
    return count;
}

const char* Double_calls(void)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    std::string& joined = state().joined;
    joined.clear();
    for (const auto& call : state().calls)
        joined += call.first + "(" + call.second + ")\n";
    return joined.c_str();
}

const char* Double_lastCall(const char* function)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    std::string& last = state().last;
    last.clear();
    for (const auto& call : state().calls) {
        if (call.first == function)
            last = call.second;
    }
    return last.c_str();
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
    if (!callback)
        return;
    if (onOwnThread)
        std::thread([callback, value]() { callback(value); }).join();
    else
        callback(value);
}

void Double_firePreviewEvent(int onOwnThread)
{
    UIPreviewEventFunc callback = state().previewCallback;
    if (!callback)
        return;
    if (onOwnThread)
        std::thread([callback]() { callback(); }).join();
    else
        callback();
}

int Double_hasCallbacks(void)
{
    return state().lightModeCallback && state().previewCallback ? 1 : 0;
}
