#include "LightingLibrary.h"

#include "DefaultRecords.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr char kLibraryName[] = "NORVALEX_Lighting";

bool validSlot(int slot)
{
    return slot >= 0 && slot < NX_MODULE_COUNT;
}

} // namespace

LightingLibrary::LightingLibrary() : m_fallback(DefaultRecords::hwData()) {}

// The library stays loaded until the process ends: it may own threads that call back into us.
LightingLibrary::~LightingLibrary() = default;

bool LightingLibrary::load(const QString& path)
{
    QStringList candidates;
    if (!path.isEmpty()) {
        candidates << path;
    } else {
        const QString ownDir = QCoreApplication::applicationDirPath();
        if (!ownDir.isEmpty())
            candidates << ownDir + QLatin1Char('/') + QLatin1String(kLibraryName);
        candidates << QLatin1String(kLibraryName);
    }
    for (const QString& candidate : qAsConst(candidates)) {
        m_library.setFileName(candidate);
        if (m_library.load())
            break;
    }
    if (!m_library.isLoaded())
        return false;
#define NX_RESOLVE(name) m_##name = reinterpret_cast<name##_fn>(m_library.resolve(#name));
    NORVALEX_LIGHTING_FUNCTIONS(NX_RESOLVE)
#undef NX_RESOLVE
    return true;
}

bool LightingLibrary::isLoaded() const
{
    return m_library.isLoaded();
}

QStringList LightingLibrary::missingFunctions() const
{
    QStringList missing;
#define NX_MISSING(name)                                                                           \
    if (!m_##name)                                                                                 \
        missing << QStringLiteral(#name);
    NORVALEX_LIGHTING_FUNCTIONS(NX_MISSING)
#undef NX_MISSING
    return missing;
}

QString LightingLibrary::errorString() const
{
    return m_library.errorString();
}

MemoryModuleData& LightingLibrary::fallbackModule(int slot)
{
    return m_fallback.memoryData[validSlot(slot) ? slot : 0];
}

void LightingLibrary::SharedDLL_init()
{
    if (m_SharedDLL_init)
        m_SharedDLL_init();
}

void LightingLibrary::RegisterUIEventLightModeFunc(UIEventLightModeFunc callback)
{
    if (m_RegisterUIEventLightModeFunc)
        m_RegisterUIEventLightModeFunc(callback);
}

void LightingLibrary::RegisterUIPreviewEventFunc(UIPreviewEventFunc callback)
{
    if (m_RegisterUIPreviewEventFunc)
        m_RegisterUIPreviewEventFunc(callback);
}

int LightingLibrary::GetValueMemorySlotNumber(int index)
{
    return m_GetValueMemorySlotNumber ? m_GetValueMemorySlotNumber(index) : index;
}

void LightingLibrary::SetSlotNumber(int count, int* order)
{
    if (m_SetSlotNumber)
        m_SetSlotNumber(count, order);
}

void LightingLibrary::SetValueLighting(int slot, int lightMode, int colorMode, int lightSpeed,
                                       bool turnOff)
{
    if (m_SetValueLighting)
        m_SetValueLighting(slot, lightMode, colorMode, lightSpeed, turnOff);
}

void LightingLibrary::SetValueRGB(int slot, COLORREF* rgb, float* bright, COLORREF singleRGB,
                                  float singleBright, int count)
{
    if (m_SetValueRGB)
        m_SetValueRGB(slot, rgb, bright, singleRGB, singleBright, count);
}

int LightingLibrary::GetValueLightMode(int slot)
{
    return m_GetValueLightMode ? m_GetValueLightMode(slot) : fallbackModule(slot).lightMode;
}

int LightingLibrary::GetValueColorMode(int slot)
{
    return m_GetValueColorMode ? m_GetValueColorMode(slot) : fallbackModule(slot).colorMode;
}

int LightingLibrary::GetValueLightSpeed(int slot)
{
    return m_GetValueLightSpeed ? m_GetValueLightSpeed(slot) : fallbackModule(slot).lightSpeed;
}

bool LightingLibrary::GetValueTurnOff(int slot)
{
    // One byte on the wire; any non-zero value means off.
    return m_GetValueTurnOff ? m_GetValueTurnOff(slot) != 0 : fallbackModule(slot).turnOff;
}

COLORREF* LightingLibrary::GetValueRGB(int slot)
{
    COLORREF* colours = m_GetValueRGB ? m_GetValueRGB(slot) : nullptr;
    return colours ? colours : fallbackModule(slot).rgb;
}

COLORREF LightingLibrary::GetValueSingleRGB(int slot)
{
    return m_GetValueSingleRGB ? m_GetValueSingleRGB(slot) : fallbackModule(slot).singleRGB;
}

float* LightingLibrary::GetValueBright(int slot)
{
    float* bright = m_GetValueBright ? m_GetValueBright(slot) : nullptr;
    return bright ? bright : fallbackModule(slot).bright;
}

float LightingLibrary::GetValueSingleBright(int slot)
{
    return m_GetValueSingleBright ? m_GetValueSingleBright(slot)
                                  : fallbackModule(slot).singleBright;
}

COLORREF* LightingLibrary::GetValueSoftwareRGB(int slot)
{
    COLORREF* colours = m_GetValueSoftwareRGB ? m_GetValueSoftwareRGB(slot) : nullptr;
    return colours ? colours : fallbackModule(slot).rgb;
}

HWData LightingLibrary::GetValueHWData()
{
    return m_GetValueHWData ? m_GetValueHWData() : DefaultRecords::hwData();
}

NotiEventData LightingLibrary::GetNotiEvent()
{
    return m_GetNotiEvent ? m_GetNotiEvent() : DefaultRecords::notiEvent();
}

void LightingLibrary::SetNotiEvent(NotiEventData data)
{
    if (m_SetNotiEvent)
        m_SetNotiEvent(data);
}

SettingData LightingLibrary::GetSettingValue()
{
    return m_GetSettingValue ? m_GetSettingValue() : DefaultRecords::setting();
}

void LightingLibrary::SetSettingValue(SettingData data)
{
    if (m_SetSettingValue)
        m_SetSettingValue(data);
}

int LightingLibrary::GetProfile()
{
    return m_GetProfile ? m_GetProfile() : 0;
}

void LightingLibrary::SetProfile(int profile)
{
    if (m_SetProfile)
        m_SetProfile(profile);
}
