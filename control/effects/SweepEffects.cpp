#include "SweepEffects.h"

#include "Shapes.h"

namespace nxfx::sweep {

using namespace shape;

namespace {

constexpr double kStarPeriod = 2.5;
constexpr double kStarTail = 1.2; // in modules
constexpr double kStarLead = 0.3; // dark way before the first module
constexpr double kScanPeriod = 2.0;
constexpr double kCrossPeriod = 2.0;
constexpr double kHelloPeriod = 5.0;
constexpr double kStackDrop = 0.5;
constexpr double kAimPeriod = 2.0;

int64_t cycleOf(double cycle)
{
    return static_cast<int64_t>(std::floor(cycle));
}

} // namespace

Color shootingStar(const EffectContext& c, int led)
{
    // The head runs down each module in turn, from the first column to the last.
    const double cycle = c.time() / kStarPeriod;
    const double head = -kStarLead + fract(cycle) * (c.columns() + kStarTail + 2 * kStarLead);
    const double behind = head - (c.column() + c.y(led));
    double level = 0.0;
    if (behind < 0.0)
        level = bump(behind, 0.05);
    else if (behind < kStarTail)
        level = std::pow(1.0 - behind / kStarTail, 2.0);
    const auto n = cycleOf(cycle);
    const Color color = c.color(led, fract(n * 0.23), n);
    return scale(blend(color, 0xFFFFFF, 0.6 * bump(behind, 0.08)), level);
}

Color scan(const EffectContext& c, int led)
{
    const double sweep = c.time() / kScanPeriod;
    const double bar = triangle(sweep / 2.0);
    double level;
    if (c.columns() >= 2)
        level = bump(c.column() - bar * (c.columns() - 1), 0.45);
    else
        level = bump(c.y(led) - bar, 0.18); // one module: the bar bounces along its LEDs
    const auto n = cycleOf(sweep);
    return scale(c.color(led, fract(n * 0.29), n), level);
}

Color cross(const EffectContext& c, int led)
{
    const double cycle = c.time() / kCrossPeriod;
    const auto n = cycleOf(cycle);
    const double row = bump(c.y(led) - fract(cycle), 0.12);
    const double across = fract(cycle * 0.5) * (c.columns() + 0.8) - 0.4;
    const double column = bump(c.column() - across, 0.35);
    const Color horizontal = scale(c.color(led, fract(n * 0.2), n), row);
    const Color vertical = scale(c.color(led + 1, fract(n * 0.2 + 0.5), n + 1000), column);
    return blend(add(horizontal, vertical), 0xFFFFFF, row * column);
}

Color hello(const EffectContext& c, int led)
{
    // A rainbow wipes in across the modules, waves for a moment and leaves the same way.
    const double f = fract(c.time() / kHelloPeriod);
    const double position = c.column() + c.y(led) * 0.5;
    const double span = c.columns() + 0.8;
    double level;
    if (f < 0.4)
        level = clamp01((f / 0.4 * span - position) / 0.4);
    else if (f < 0.7)
        level = 0.6 + 0.4 * std::sin(kTwoPi * (c.time() * 0.8 - c.column() * 0.3));
    else
        level = clamp01((position - (f - 0.7) / 0.3 * span) / 0.4);
    const double hue = (c.column() + c.y(led) * 0.6) / (c.columns() + 0.6);
    return scale(c.color(led, hue, c.column()), level);
}

Color stack(const EffectContext& c, int led)
{
    // Blocks drop one by one and pile up from the bottom; a full module flashes and empties.
    const int leds = c.leds();
    const double steps = c.time() / kStackDrop + c.column() * 0.6;
    const int round = leds + 2;
    const auto rounds = static_cast<int64_t>(std::floor(steps / round));
    const double within = steps - double(rounds) * round;
    const int block = int(within);
    const int fromBottom = leds - 1 - led;
    const int64_t key = rounds * 16 + fromBottom;
    const Color color = c.color(led, fract(fromBottom / double(leds) + rounds * 0.3), key);
    if (block >= leds) // full: hold, then flash out
        return scale(color, block == leds ? 1.0 : 1.0 - fract(within));
    if (fromBottom < block)
        return color;
    if (fromBottom == block) {
        const double falling = fract(within) * (leds - block);
        return std::floor(falling) == led ? color : 0;
    }
    return 0;
}

Color aim(const EffectContext& c, int led)
{
    // A reticle closes in on a target, then the target flashes.
    const double cycle = c.time() / kAimPeriod;
    const auto n = cycleOf(cycle);
    const double f = fract(cycle);
    const double tx = c.random().unit(n, 1) * (c.columns() - 1);
    const double ty = 0.15 + 0.7 * c.random().unit(n, 2);
    const double distance = canvasDistance(c.column(), c.y(led), tx, ty);
    const double reach = std::hypot(double(c.columns()), kModuleHeight);
    double ring = 0.0, dot;
    if (f < 0.7) {
        ring = bump(distance - (1.0 - f / 0.7) * reach, 0.3);
        dot = 0.3 * bump(distance, 0.3);
    } else {
        dot = bump(distance, 0.3 + (f - 0.7)) * (1.0 - (f - 0.7) / 0.3);
    }
    const double sight =
        (std::abs(c.column() - tx) < 0.5 || std::abs(c.y(led) - ty) < 0.08) ? 0.12 : 0;
    const Color color = c.color(led, fract(n * 0.31), n);
    const Color target = blend(color, 0xFFFFFF, f >= 0.7 ? 0.5 : 0.0);
    return add(scale(color, std::max(ring, sight)), scale(target, dot));
}

} // namespace nxfx::sweep
