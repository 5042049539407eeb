#include "RingEffects.h"

#include "Shapes.h"

namespace nxfx::ring {

using namespace shape;

namespace {

constexpr double kRipplePeriod = 2.2;
constexpr double kHolePeriod = 1.5;
constexpr double kRadiationPeriod = 1.2;

double centreDistance(const EffectContext& c, int led)
{
    return canvasDistance(c.column(), c.y(led), (c.columns() - 1) / 2.0, 0.5);
}

} // namespace

Color ripple(const EffectContext& c, int led)
{
    // Each ring starts from its own random drop point.
    const double cycle = c.time() / kRipplePeriod;
    const auto n = static_cast<int64_t>(std::floor(cycle));
    const double f = fract(cycle);
    const double cx = c.random().unit(n, 1) * (c.columns() - 1);
    const double cy = 0.2 + 0.6 * c.random().unit(n, 2);
    const double distance = canvasDistance(c.column(), c.y(led), cx, cy);
    const double reach = std::hypot(double(c.columns()), kModuleHeight);
    const double radius = f * reach;
    const double fade = std::pow(1.0 - f, 1.2);
    const double level =
        std::max(bump(distance - radius, 0.35), 0.4 * bump(distance - radius + 0.9, 0.3)) * fade;
    return scale(c.color(led, c.random().unit(n, 3), n), level);
}

Color blackHole(const EffectContext& c, int led)
{
    // Rings of colour drawn into a dark centre.
    const double distance = centreDistance(c, led);
    const double phase = distance * 0.8 + c.time() / kHolePeriod;
    const auto n = static_cast<int64_t>(std::floor(phase));
    const double horizon = clamp01((distance - 0.3) / 0.8);
    const Color color = c.color(led + int(n % 8), fract(n * 0.21), n);
    return scale(color, horizon * (0.15 + 0.85 * std::pow(breathe(phase), 2.0)));
}

Color radiation(const EffectContext& c, int led)
{
    // Pulses radiating from the centre, with the odd random crackle.
    const double distance = centreDistance(c, led);
    const double phase = c.time() / kRadiationPeriod - distance * 0.5;
    const auto n = static_cast<int64_t>(std::floor(phase));
    double level = 0.05 + 0.95 * std::pow(breathe(phase), 3.0);
    const auto tick = static_cast<int64_t>(std::floor(c.time() * 20.0));
    if (c.random().unit(int64_t(c.column()) * 64 + led, tick, 7) < 0.03)
        level = 1.0;
    return scale(c.color(led, 0.3, n), level);
}

} // namespace nxfx::ring
