#include "EffectRenderer.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kTwoPi = 6.283185307179586;

double fraction(double value)
{
    return value - std::floor(value);
}

// A stable pseudo-random hue per LED and time step.
double randomHue(int slot, int led, long step)
{
    uint32_t x =
        static_cast<uint32_t>(slot * 131 + led * 7919) ^ static_cast<uint32_t>(step * 2654435761u);
    x ^= x >> 16;
    x *= 0x7feb352dU;
    x ^= x >> 15;
    x *= 0x846ca68bU;
    x ^= x >> 16;
    return (x & 0xFFFF) / 65536.0;
}

} // namespace

COLORREF EffectRenderer::scale(COLORREF color, double factor)
{
    if (!(factor > 0.0))
        return 0;
    factor = std::min(factor, 1.0);
    COLORREF out = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const double channel = static_cast<double>((color >> shift) & 0xFF) * factor;
        out |= static_cast<COLORREF>(std::lround(channel)) << shift;
    }
    return out;
}

double EffectRenderer::period(int lightSpeed)
{
    static const double seconds[] = {0.75, 1.5, 3.0, 6.0};
    return seconds[std::clamp(lightSpeed, 0, 3)];
}

COLORREF EffectRenderer::hue(double position)
{
    const double h = fraction(position) * 6.0;
    const double x = 1.0 - std::fabs(std::fmod(h, 2.0) - 1.0);
    double r = 0, g = 0, b = 0;
    switch (static_cast<int>(h)) {
    case 0:
        r = 1, g = x;
        break;
    case 1:
        r = x, g = 1;
        break;
    case 2:
        g = 1, b = x;
        break;
    case 3:
        g = x, b = 1;
        break;
    case 4:
        r = x, b = 1;
        break;
    default:
        r = 1, b = x;
        break;
    }
    return static_cast<COLORREF>(std::lround(r * 255)) |
           static_cast<COLORREF>(std::lround(g * 255)) << 8 |
           static_cast<COLORREF>(std::lround(b * 255)) << 16;
}

void EffectRenderer::render(const nxproto::ControlState& state,
                            const nxproto::HardwareInfo& hardware, double seconds, Colors& out)
{
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
        std::fill(std::begin(out[slot]), std::end(out[slot]), COLORREF(0));
        const nxproto::ModuleInfo& info = hardware.modules[slot];
        const nxproto::ModuleLighting& module = state.module(slot);
        const int leds = std::clamp(info.ledNum, 0, nxproto::kLedCount);
        if (!info.present || module.turnOff || leds == 0)
            continue;
        const double cycle = period(module.lightSpeed);
        const double phase = seconds / cycle;

        // The steady colour and the brightness of each LED.
        COLORREF base[nxproto::kLedCount] = {};
        double level[nxproto::kLedCount] = {};
        for (int led = 0; led < leds; ++led) {
            switch (module.colorMode) {
            case 0:
                base[led] = module.rgb[led];
                level[led] = module.bright[led];
                break;
            case 1:
                base[led] = module.singleRGB;
                level[led] = module.singleBright;
                break;
            case 3:
                base[led] = hue(randomHue(slot, led, static_cast<long>(std::floor(phase))));
                level[led] = 1.0;
                break;
            default:
                base[led] = nxproto::kDefaultColors[led];
                level[led] = 1.0;
                break;
            }
        }

        for (int led = 0; led < leds; ++led) {
            COLORREF color = base[led];
            double factor = level[led];
            switch (module.lightMode) {
            case Flow: {
                const long shift = static_cast<long>(std::floor(phase * leds));
                const int from = static_cast<int>((led + shift) % leds);
                color = base[from];
                factor = level[from];
                break;
            }
            case Spectrum:
                color = hue(phase + static_cast<double>(led) / (leds * 4.0));
                break;
            case Blink:
                factor = fraction(phase) < 0.5 ? factor : 0.0;
                break;
            case Pulse:
                factor *= 0.5 - 0.5 * std::cos(kTwoPi * phase);
                break;
            case Wave:
                factor *= 0.2 + 0.8 * (0.5 + 0.5 * std::sin(kTwoPi * (phase - double(led) / leds)));
                break;
            default:
                break;
            }
            out[slot][led] = scale(color, factor);
        }
    }
}
