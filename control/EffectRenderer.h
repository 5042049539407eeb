#pragma once

#include "ControlState.h"
#include "HardwareInfo.h"

// Computes what every LED shows at a moment: the user's colours scaled by their brightness
// (one colour and brightness for the whole module in single-colour mode), black for modules
// that are switched off or absent and for LEDs past a module's count, and simple motion for
// Flow, RGB Spectrum, Blink, Pulse and Wave; every other mode shows its colours steadily.
class EffectRenderer
{
public:
    using Colors = COLORREF[nxproto::kSlotCount][nxproto::kLedCount];

    enum Mode { Flow = 0, Spectrum = 1, Blink = 3, Pulse = 4, Wave = 5 };

    // `seconds` is the time since the effects started.
    static void render(const nxproto::ControlState& state, const nxproto::HardwareInfo& hardware,
                       double seconds, Colors& out);

    // Each channel times factor (clamped to 0..1), rounded.
    static COLORREF scale(COLORREF color, double factor);
    // Seconds of one effect cycle for a speed value, 0 (Extreme) to 3 (Slow).
    static double period(int lightSpeed);
    // Fully saturated colour of the hue (0..1).
    static COLORREF hue(double position);
};
