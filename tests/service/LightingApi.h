#pragma once

#include "norvalex_lighting.h"

#include <QString>

#include <dlfcn.h>

// The 23 functions of the built lighting library loaded with dlopen, as the panel binds them.
struct LightingApi {
#define NX_API_MEMBER(name) name##_fn name = nullptr;
    NORVALEX_LIGHTING_FUNCTIONS(NX_API_MEMBER)
#undef NX_API_MEMBER

    // Loads the library (never unloaded) and resolves every function.
    bool load(QString* error)
    {
        void* library = dlopen(NX_LIGHTING_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        *error = library ? QString() : QString::fromLocal8Bit(dlerror());
#define NX_API_RESOLVE(member)                                                                     \
    if (library && !(member = reinterpret_cast<member##_fn>(dlsym(library, #member))))             \
        *error = QStringLiteral("missing export " #member);
        NORVALEX_LIGHTING_FUNCTIONS(NX_API_RESOLVE)
#undef NX_API_RESOLVE
        return error->isEmpty();
    }
};
