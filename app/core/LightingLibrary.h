#pragma once

#include "norvalex_lighting.h"

#include <QLibrary>
#include <QStringList>

// The lighting library, resolved at run time. A missing library or a missing function never
// crashes: every call then answers with the default records (and 0, false or a pointer to
// default storage).
class LightingLibrary
{
public:
    LightingLibrary();
    ~LightingLibrary();
    LightingLibrary(const LightingLibrary&) = delete;
    LightingLibrary& operator=(const LightingLibrary&) = delete;

    // Loads the library from `path`, or, when empty, "NORVALEX_Lighting" from the executable's
    // own directory first and then the system's search path. True when the library loaded.
    bool load(const QString& path = QString());
    bool isLoaded() const;
    // Names of the functions the loaded library does not export.
    QStringList missingFunctions() const;
    QString errorString() const;

    void SharedDLL_init();
    void RegisterUIEventLightModeFunc(UIEventLightModeFunc callback);
    void RegisterUIPreviewEventFunc(UIPreviewEventFunc callback);
    int GetValueMemorySlotNumber(int index);
    void SetSlotNumber(int count, int* order);
    void SetValueLighting(int slot, int lightMode, int colorMode, int lightSpeed, bool turnOff);
    void SetValueRGB(int slot, COLORREF* rgb, float* bright, COLORREF singleRGB, float singleBright,
                     int count);
    int GetValueLightMode(int slot);
    int GetValueColorMode(int slot);
    int GetValueLightSpeed(int slot);
    bool GetValueTurnOff(int slot);
    COLORREF* GetValueRGB(int slot);
    COLORREF GetValueSingleRGB(int slot);
    float* GetValueBright(int slot);
    float GetValueSingleBright(int slot);
    COLORREF* GetValueSoftwareRGB(int slot);
    HWData GetValueHWData();
    NotiEventData GetNotiEvent();
    void SetNotiEvent(NotiEventData data);
    SettingData GetSettingValue();
    void SetSettingValue(SettingData data);
    int GetProfile();
    void SetProfile(int profile);

private:
    // Storage the pointer getters fall back on, per slot.
    MemoryModuleData& fallbackModule(int slot);

    QLibrary m_library;
    HWData m_fallback;
#define NX_DECLARE_POINTER(name) name##_fn m_##name = nullptr;
    NORVALEX_LIGHTING_FUNCTIONS(NX_DECLARE_POINTER)
#undef NX_DECLARE_POINTER
};
