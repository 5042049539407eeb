/* A plain C client of the lighting library: loads it with dlopen, starts it, waits up to the
 * given number of milliseconds for hardware data and prints what it read, one "key=value" per
 * line. Exit code 0 when every function resolved, 1 otherwise. */
#define _POSIX_C_SOURCE 200809L

#include "norvalex_lighting.h"

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>

int main(int argc, char** argv)
{
    void* library = argc == 3 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : NULL;
    if (!library) {
        fprintf(stderr, "usage: %s LIBRARY WAIT_MS (%s)\n", argv[0], argc == 3 ? dlerror() : "");
        return 2;
    }
    int resolved = 0;
#define RESOLVE(name) resolved += dlsym(library, #name) != NULL;
    NORVALEX_LIGHTING_FUNCTIONS(RESOLVE)
#undef RESOLVE
    printf("resolved=%d\n", resolved);

    SharedDLL_init_fn init = (SharedDLL_init_fn)dlsym(library, "SharedDLL_init");
    GetValueHWData_fn getHWData = (GetValueHWData_fn)dlsym(library, "GetValueHWData");
    if (!init || !getHWData)
        return 1;
    init();
    init();
    const struct timespec pause = {0, 10000000L};
    HWData data = getHWData();
    for (long waited = strtol(argv[2], NULL, 10); data.memoryCount < 0 && waited > 0;
         waited -= 10) {
        nanosleep(&pause, NULL);
        data = getHWData();
    }
    printf("memoryCount=%d\nmodelCode0=%s\n", data.memoryCount, data.memoryData[0].modelCode);
    dlclose(library);
    printf("unloaded=1\n");
    return resolved == NORVALEX_LIGHTING_FUNCTION_COUNT ? 0 : 1;
}
