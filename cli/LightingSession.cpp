#include "LightingSession.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <chrono>
#include <condition_variable>
#include <dlfcn.h>
#include <mutex>

namespace {

constexpr char kLibraryName[] = "libNORVALEX_Lighting.so";
constexpr int kPollMs = 20;

// What the library's light-mode event has reported, written on the library's thread. Never
// destroyed: the library's thread may still run while the process exits.
struct Events {
    std::mutex mutex;
    std::condition_variable changed;
    uint32_t seen = 0; // change bits since the last beginChange()
    int count = 0;
};

Events& events()
{
    static Events* all = new Events;
    return *all;
}

void onLightModeEvent(int32_t changes)
{
    Events& e = events();
    {
        std::lock_guard<std::mutex> lock(e.mutex);
        e.seen |= static_cast<uint32_t>(changes);
        ++e.count;
    }
    e.changed.notify_all();
}

} // namespace

bool LightingSession::load(QString* error)
{
    const QString own =
        QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(kLibraryName);
    void* library = dlopen(own.toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
    if (!library)
        library = dlopen(kLibraryName, RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        *error = QStringLiteral("cannot load %1: %2")
                     .arg(QLatin1String(kLibraryName), QString::fromLocal8Bit(dlerror()));
        return false;
    }
#define NX_SESSION_RESOLVE(name)                                                                   \
    name = reinterpret_cast<name##_fn>(dlsym(library, #name));                                     \
    if (!name) {                                                                                   \
        *error = QStringLiteral("%1 lacks the function " #name).arg(QLatin1String(kLibraryName));  \
        return false;                                                                              \
    }
    NORVALEX_LIGHTING_FUNCTIONS(NX_SESSION_RESOLVE)
#undef NX_SESSION_RESOLVE
    return true;
}

bool LightingSession::connect(int timeoutMs)
{
    RegisterUIEventLightModeFunc(&onLightModeEvent);
    SharedDLL_init();
    // The first state arrives as an event; the hardware data follows it on the same connection.
    Events& e = events();
    {
        std::unique_lock<std::mutex> lock(e.mutex);
        if (!e.changed.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                                [&e] { return e.count > 0; }))
            return false;
    }
    QElapsedTimer clock;
    clock.start();
    while (GetValueHWData().updateTime == 0) {
        if (clock.elapsed() > timeoutMs)
            return false;
        std::unique_lock<std::mutex> lock(e.mutex);
        e.changed.wait_for(lock, std::chrono::milliseconds(kPollMs));
    }
    return true;
}

void LightingSession::beginChange()
{
    std::lock_guard<std::mutex> lock(events().mutex);
    events().seen = 0;
}

bool LightingSession::waitForChange(uint32_t changes, int timeoutMs)
{
    Events& e = events();
    std::unique_lock<std::mutex> lock(e.mutex);
    return e.changed.wait_for(lock, std::chrono::milliseconds(timeoutMs),
                              [&] { return (e.seen & changes) == changes; });
}
