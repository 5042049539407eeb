/* A plain C client of the lighting library: loads it with dlopen, starts it, waits up to the
 * given number of milliseconds for hardware data and prints what it read, one "key=value" per
 * line. Exit code 0 when every function resolved, 1 otherwise. */
#define _POSIX_C_SOURCE 200809L

#include "norvalex_lighting.h"

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>

static void sleepMs(long ms)
{
    struct timespec delay = {ms / 1000, (ms % 1000) * 1000000L};
    nanosleep(&delay, NULL);
}

int main(int argc, char** argv)
{
    if (argc < 2) {
        fprintf(stderr, "usage: %s LIBRARY [WAIT_MS]\n", argv[0]);
        return 2;
    }
    const long waitMs = argc > 2 ? strtol(argv[2], NULL, 10) : 0;
    void* library = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        fprintf(stderr, "dlopen failed: %s\n", dlerror());
        return 1;
    }

    int resolved = 0;
#define RESOLVE(name)                                                                              \
    if (dlsym(library, #name))                                                                     \
        ++resolved;
    NORVALEX_LIGHTING_FUNCTIONS(RESOLVE)
#undef RESOLVE
    printf("resolved=%d\n", resolved);

    SharedDLL_init_fn init = (SharedDLL_init_fn)dlsym(library, "SharedDLL_init");
    GetValueHWData_fn getHWData = (GetValueHWData_fn)dlsym(library, "GetValueHWData");
    GetValueLightMode_fn getLightMode = (GetValueLightMode_fn)dlsym(library, "GetValueLightMode");
    if (!init || !getHWData || !getLightMode)
        return 1;
    init();
    init();

    HWData data = getHWData();
    for (long waited = 0; data.memoryCount < 0 && waited < waitMs; waited += 10) {
        sleepMs(10);
        data = getHWData();
    }
    printf("memoryCount=%d\n", data.memoryCount);
    printf("slotCount=%d\n", data.slotCount);
    printf("updateTime=%u\n", data.updateTime);
    printf("modelCode0=%s\n", data.memoryData[0].modelCode);
    printf("ledNum0=%d\n", data.memoryData[0].ledNum);
    printf("lightMode0=%d\n", getLightMode(0));

    dlclose(library);
    printf("unloaded=1\n");
    return resolved == NORVALEX_LIGHTING_FUNCTION_COUNT ? 0 : 1;
}
