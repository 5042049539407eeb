#pragma once

#include "norvalex_lighting.h"

#include <QString>

// The 23 functions of a lighting library loaded with dlopen, as the panel binds them.
struct LightingApi {
#define NX_API_MEMBER(name) name##_fn name = nullptr;
    NORVALEX_LIGHTING_FUNCTIONS(NX_API_MEMBER)
#undef NX_API_MEMBER

    static QString libraryPath();
    // Loads the library (never unloaded) and resolves every function.
    bool load(const QString& path, QString* error);
};
