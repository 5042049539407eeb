#include "ParticleEffects.h"

#include "Shapes.h"

namespace nxfx::particle {

using namespace shape;

namespace {

constexpr double kDropPeriod = 1.6;
constexpr double kDropFall = 0.55; // share of the period spent falling
constexpr double kRainPeriod = 0.9;
constexpr int kRainLanes = 3;
constexpr double kFireworkPeriod = 2.4;
constexpr double kRocketShare = 0.35;
constexpr double kExplosionPeriod = 3.0;

// A falling drop: 1 at its head, a short tail above it, nothing below.
double drop(double y, double head, double tail)
{
    const double above = head - y;
    if (above < 0.0)
        return bump(above, 0.06);
    return std::max(0.0, 1.0 - above / tail);
}

} // namespace

Color twinkle(const EffectContext& c, int led)
{
    const Random& random = c.random();
    const double period = 1.5 + 2.0 * random.unit(c.column(), led, 1);
    const double phase = c.time() / period + random.unit(c.column(), led, 2);
    const auto n = static_cast<int64_t>(std::floor(phase));
    const int64_t key = (int64_t(c.column()) * 64 + led) * 1000003 + n;
    const Color color = c.color(led, random.unit(key, 3), key);
    if (random.unit(key, 4) >= 0.5)
        return scale(color, 0.03);
    return scale(color, 0.03 + 0.97 * std::pow(breathe(phase), 3.0));
}

Color raindrop(const EffectContext& c, int led)
{
    // One drop per module at a time, each module on its own random beat.
    const double cycle = c.time() / kDropPeriod + c.random().unit(c.column(), 11);
    const auto n = static_cast<int64_t>(std::floor(cycle));
    const double f = fract(cycle);
    const int64_t key = int64_t(c.column()) * 100003 + n;
    const Color color = c.color(led, c.random().unit(key, 5), key);
    if (f < kDropFall)
        return scale(color, drop(c.y(led), f / kDropFall * 1.1, 0.35));
    // The splash at the bottom.
    const double splash = 1.0 - (f - kDropFall) / (1.0 - kDropFall);
    return scale(color, splash * splash * bump(1.0 - c.y(led), 0.25));
}

Color rain(const EffectContext& c, int led)
{
    double level = 0.06;
    for (int lane = 0; lane < kRainLanes; ++lane) {
        const double cycle = c.time() / kRainPeriod + c.random().unit(c.column(), lane, 21);
        const auto n = static_cast<int64_t>(std::floor(cycle));
        if (c.random().unit(c.column(), lane, n) > 0.8)
            continue;
        const double head = fract(cycle) * 1.4 - 0.2;
        level = std::max(level, drop(c.y(led), head, 0.25));
    }
    return scale(c.color(led, 0.5 + 0.1 * c.y(led), c.column()), level);
}

Color fireworks(const EffectContext& c, int led)
{
    const double cycle = c.time() / kFireworkPeriod;
    const auto n = static_cast<int64_t>(std::floor(cycle));
    const double f = fract(cycle);
    const int launch = c.random().below(c.columns(), n, 1);
    const double height = 0.2 + 0.25 * c.random().unit(n, 2);
    const double y = c.y(led);
    if (f < kRocketShare) {
        if (c.column() != launch)
            return 0;
        const double rocket = 1.0 - (1.0 - height) * f / kRocketShare;
        return scale(0x40C0FF, bump(y - rocket, 0.08)); // a warm white trail
    }
    const double g = (f - kRocketShare) / (1.0 - kRocketShare);
    const double distance = canvasDistance(c.column(), y, launch, height);
    const double ring = bump(distance - g * 2.2, 0.45) * std::pow(1.0 - g, 1.5);
    const auto sparkle = static_cast<int64_t>(std::floor(c.time() * 15.0));
    const double flicker = 0.6 + 0.4 * c.random().unit(c.column() * 64 + led, sparkle, 3);
    const Color color = c.color(led, c.random().unit(n, 5), n);
    return scale(blend(0xFFFFFF, color, g * 3.0), ring * flicker);
}

Color explosion(const EffectContext& c, int led)
{
    // A flash in the middle of the canvas, a shock ring running outwards, embers left behind.
    const double cycle = c.time() / kExplosionPeriod;
    const auto n = static_cast<int64_t>(std::floor(cycle));
    const double f = fract(cycle);
    const double distance = canvasDistance(c.column(), c.y(led), (c.columns() - 1) / 2.0, 0.5);
    const double reach = std::hypot(c.columns() / 2.0, kModuleHeight / 2.0) + 0.5;
    const double radius = std::sqrt(f) * reach * 1.2;
    const double shock = bump(distance - radius, 0.5) * (1.0 - f);
    const auto flickerStep = static_cast<int64_t>(std::floor(c.time() * 12.0));
    const double ember =
        distance < radius
            ? 0.45 * (1.0 - f) * (1.0 - f) * c.random().unit(c.column() * 64 + led, flickerStep, 9)
            : 0.0;
    const Color color = c.color(led, c.random().unit(n, 6) * 0.5, n);
    return add(scale(blend(0xFFFFFF, color, f * 4.0), shock), scale(color, ember));
}

} // namespace nxfx::particle
