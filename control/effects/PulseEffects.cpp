#include "PulseEffects.h"

#include "Shapes.h"

namespace nxfx::pulse {

using namespace shape;

namespace {

constexpr double kBlinkPeriod = 1.0;
constexpr double kBreathPeriod = 3.0;
constexpr double kBeatPeriod = 1.2;
// A heart's two beats: where each falls in the period, its width and its strength.
constexpr double kLub = 0.08, kDub = 0.30, kBeatWidth = 0.05, kDubStrength = 0.7;

double gradient(const EffectContext& c, int led)
{
    return (c.column() + c.y(led)) / (c.columns() + 1.0);
}

} // namespace

Color steady(const EffectContext& c, int led)
{
    return c.color(led, gradient(c, led), int64_t(c.column()) * 64 + led);
}

Color blink(const EffectContext& c, int led)
{
    const double cycle = c.time() / kBlinkPeriod;
    if (fract(cycle) >= 0.5)
        return 0;
    const auto n = static_cast<int64_t>(std::floor(cycle));
    return c.color(led, fract(gradient(c, led) + n * 0.13), n);
}

Color breathing(const EffectContext& c, int led)
{
    const double cycle = c.time() / kBreathPeriod;
    const auto n = static_cast<int64_t>(std::floor(cycle));
    return scale(c.color(led, fract(gradient(c, led) + n * 0.17), n), breathe(cycle));
}

Color heartbeat(const EffectContext& c, int led)
{
    const double cycle = c.time() / kBeatPeriod;
    const double f = fract(cycle);
    const double beat =
        std::max(bump(f - kLub, kBeatWidth), kDubStrength * bump(f - kDub, kBeatWidth));
    const auto n = static_cast<int64_t>(std::floor(cycle));
    return scale(c.color(led, fract(gradient(c, led) * 0.3 + n * 0.11), n), 0.03 + 0.97 * beat);
}

} // namespace nxfx::pulse
