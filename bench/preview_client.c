/* A client that only watches: loads the lighting library, registers a preview callback and
 * counts the frames it is told about for the given number of seconds, then prints
 * "frames=N". The service streams to it for as long as it runs. */
#define _POSIX_C_SOURCE 200809L

#include "norvalex_lighting.h"

#include <dlfcn.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <time.h>

static atomic_long frames;

static void onPreview(void)
{
    atomic_fetch_add(&frames, 1);
}

int main(int argc, char** argv)
{
    void* library = argc == 3 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : NULL;
    if (!library) {
        fprintf(stderr, "usage: %s LIBRARY SECONDS (%s)\n", argv[0], argc == 3 ? dlerror() : "");
        return 2;
    }
    SharedDLL_init_fn init = (SharedDLL_init_fn)dlsym(library, "SharedDLL_init");
    RegisterUIPreviewEventFunc_fn registerPreview =
        (RegisterUIPreviewEventFunc_fn)dlsym(library, "RegisterUIPreviewEventFunc");
    if (!init || !registerPreview)
        return 1;
    init();
    registerPreview(onPreview);
    const struct timespec duration = {strtol(argv[2], NULL, 10), 0};
    nanosleep(&duration, NULL);
    registerPreview(NULL);
    printf("frames=%ld\n", atomic_load(&frames));
    fflush(stdout);
    /* The library's thread is still running: leave without unloading it. */
    _Exit(0);
}
