#include "LightingApi.h"

#include <dlfcn.h>

QString LightingApi::libraryPath()
{
    return QStringLiteral(NX_LIGHTING_LIBRARY);
}

bool LightingApi::load(const QString& path, QString* error)
{
    void* library = dlopen(path.toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        *error = QString::fromLocal8Bit(dlerror());
        return false;
    }
#define NX_API_RESOLVE(member)                                                                     \
    member = reinterpret_cast<member##_fn>(dlsym(library, #member));                               \
    if (!member) {                                                                                 \
        *error = QStringLiteral("missing export " #member);                                        \
        return false;                                                                              \
    }
    NORVALEX_LIGHTING_FUNCTIONS(NX_API_RESOLVE)
#undef NX_API_RESOLVE
    return true;
}
