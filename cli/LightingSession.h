#pragma once

#include "norvalex_lighting.h"

#include <QString>

#include <cstdint>

// The lighting library of this installation, loaded the way the panel loads it: from the
// program's own folder first, then from the system's library path. The library answers from a
// mirror of the service's state; the session waits for the service's first state and for the
// state that confirms a change, both announced by the library's light-mode event.
class LightingSession
{
public:
#define NX_SESSION_MEMBER(name) name##_fn name = nullptr;
    NORVALEX_LIGHTING_FUNCTIONS(NX_SESSION_MEMBER)
#undef NX_SESSION_MEMBER

    // Loads the library and resolves all of its functions.
    bool load(QString* error);
    // Connects to the service and waits until its state and hardware data are mirrored.
    bool connect(int timeoutMs);
    // Marks the point after which a confirmation counts; call before the first setter.
    void beginChange();
    // Waits until the service has pushed state carrying every bit of `changes` since
    // beginChange().
    bool waitForChange(uint32_t changes, int timeoutMs);
};
