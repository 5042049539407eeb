#pragma once

#include "ControlState.h"
#include "EffectContext.h"
#include "HardwareInfo.h"

// Computes what every LED shows at a moment with the effect engine: the present modules form
// one canvas, a column each in the user's slot order; absent modules and LEDs past a module's
// count stay black.
class EffectRenderer
{
public:
    using Colors = COLORREF[nxproto::kSlotCount][nxproto::kLedCount];

    // `scene` carries the time, seed, local time and music; the canvas width and the memory
    // load are filled in here. Returns whether the picture changes with time alone.
    static bool render(const nxproto::ControlState& state, const nxproto::HardwareInfo& hardware,
                       nxfx::SceneInput scene, Colors& out);

    // Each slot's column on the canvas (-1 for absent modules); returns the canvas width.
    static int columns(const nxproto::ControlState& state, const nxproto::HardwareInfo& hardware,
                       int (&column)[nxproto::kSlotCount]);

    // Whether a lit module of the current profile dances to the music.
    static bool wantsMusic(const nxproto::ControlState& state,
                           const nxproto::HardwareInfo& hardware);
};
