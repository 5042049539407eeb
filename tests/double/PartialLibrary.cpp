// A lighting library that exports only three functions; the rest are missing.
#include "norvalex_lighting.h"

#include <cstring>

#define NX_EXPORT extern "C" __attribute__((visibility("default")))

NX_EXPORT void SharedDLL_init(void) {}

NX_EXPORT int32_t GetValueLightMode(int32_t slot)
{
    return slot + 20;
}

NX_EXPORT HWData GetValueHWData(void)
{
    HWData data;
    std::memset(&data, 0, sizeof data);
    data.memoryCount = 3;
    data.slotCount = 4;
    return data;
}
