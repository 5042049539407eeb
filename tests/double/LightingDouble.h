#pragma once

// Control side of the test double; the 23 lighting functions carry the real library's names.

#include "norvalex_lighting.h"

extern "C" {

#define NX_DOUBLE_EXPORT __attribute__((visibility("default")))

// Forgets every recorded call and restores the default answers.
NX_DOUBLE_EXPORT void Double_reset(void);
// The records it answers with and the last ones it was given.
NX_DOUBLE_EXPORT HWData* Double_hw(void);
NX_DOUBLE_EXPORT SettingData* Double_setting(void);
NX_DOUBLE_EXPORT void Double_setLighting(int32_t slot, int32_t lightMode, int32_t colorMode,
                                         int32_t lightSpeed, uint8_t turnOff);
NX_DOUBLE_EXPORT COLORREF* Double_softwareRGB(int32_t slot);

// Number of calls of one function since the last reset.
NX_DOUBLE_EXPORT int Double_callCount(const char* function);

// Raise the registered callbacks, on the calling thread or on a thread of the double's own
// (joined before returning).
NX_DOUBLE_EXPORT void Double_fireLightModeEvent(int32_t value, int onOwnThread);
NX_DOUBLE_EXPORT void Double_firePreviewEvent(int onOwnThread);
}
