#include "FlowEffects.h"

#include "Shapes.h"

namespace nxfx::flow {

using namespace shape;

namespace {

constexpr double kFlowPeriod = 4.0;
constexpr double kSpectrumPeriod = 6.0;
constexpr double kWavePeriod = 3.0;
constexpr double kSwirlPeriod = 3.0;
constexpr double kSyncPeriod = 8.0;
constexpr double kBreathPeriod = 4.0;
constexpr double kScriptStep = 2.5;

// Where an LED lies on the path through the canvas: module after module in slot order, top
// to bottom within a module.
double along(const EffectContext& c, int led)
{
    return c.column() + c.y(led);
}

} // namespace

Color sequence(const EffectContext& c, double step)
{
    // One colour cannot change hue, so it swells and fades instead.
    if (c.module().colorMode == ColorSingle)
        return scale(c.color(0, 0, 0), 0.3 + 0.7 * breathe(step / 2.0));
    const double first = std::floor(step);
    const auto index = static_cast<int64_t>(first);
    const Color a = c.color(int(index % 64), fract(first / 6.0), index);
    const Color b = c.color(int((index + 1) % 64), fract((first + 1) / 6.0), index + 1);
    return blend(a, b, step - first);
}

Color flow(const EffectContext& c, int led)
{
    const double cycle = c.time() / kFlowPeriod;
    const double position = along(c, led) * 0.25 - cycle;
    // The user's colours scroll one LED per step down the module and on into the next.
    const auto shift = static_cast<int>(std::floor(cycle * c.leds()));
    const Color color =
        c.color(led - shift - c.column(), fract(position), int64_t(std::floor(position * 6)));
    if (c.module().colorMode == ColorSingle)
        return scale(color, 0.25 + 0.75 * breathe(position * 2.0));
    return color;
}

Color spectrum(const EffectContext& c, int led)
{
    const double cycle = c.time() / kSpectrumPeriod;
    if (c.module().colorMode == ColorOwn)
        return c.color(led, fract(cycle + 0.04 * along(c, led)), 0);
    return sequence(c, cycle * 4.0);
}

Color wave(const EffectContext& c, int led)
{
    const double cycle = c.time() / kWavePeriod;
    const double crest = breathe(cycle - (c.column() + c.y(led) * 0.5) * 0.35);
    const auto shift = static_cast<int>(std::floor(cycle * 2.0));
    const Color color = c.color(led - shift, fract(along(c, led) * 0.2 - cycle * 0.5), shift);
    return scale(color, 0.08 + 0.92 * crest);
}

Color swirl(const EffectContext& c, int led)
{
    const double cx = (c.columns() - 1) / 2.0;
    const double dx = c.column() - cx;
    const double dy = (c.y(led) - 0.5) * kModuleHeight;
    const double angle = std::atan2(dy, dx) / kTwoPi;
    const double turn = angle + std::sqrt(dx * dx + dy * dy) * 0.3 - c.time() / kSwirlPeriod;
    const auto arm = static_cast<int64_t>(std::floor(turn * 2.0));
    const Color first = c.color(led, fract(turn), arm);
    const Color second = c.module().colorMode == ColorSingle
                             ? scale(first, 0.06)
                             : c.color(led + c.leds() / 2, fract(turn + 0.5), arm + 1);
    return blend(second, first, breathe(turn * 2.0));
}

Color rgbSync(const EffectContext& c, int led)
{
    const double cycle = c.time() / kSyncPeriod;
    if (c.module().colorMode == ColorOwn)
        return c.color(led, cycle, 0);
    return sequence(c, cycle * 4.0);
}

Color aurora(const EffectContext& c, int led)
{
    const double t = c.time();
    const double x = c.column();
    const double y = c.y(led);
    const double n = std::sin(x * 0.9 + t * 0.7) + std::sin(y * 3.1 - t * 0.5 + x * 0.4) +
                     std::sin((x + y * 2.0) * 0.6 + t * 0.3);
    const double position = n / 6.0 + 0.5;
    const double curtain = 0.3 + 0.7 * clamp01(0.5 + 0.5 * std::sin(x * 1.3 - t * 0.8 + y * 2.0));
    return scale(c.color(led, position, int64_t(std::floor(position * 4))), curtain);
}

Color mbSync(const EffectContext& c, int led)
{
    // Without a board to follow, every module breathes in step through its colours.
    const double cycle = c.time() / kBreathPeriod;
    const auto step = static_cast<int64_t>(std::floor(cycle));
    const Color color = c.color(led, fract(cycle / 8.0), step);
    return scale(color, 0.35 + 0.65 * breathe(cycle));
}

Color script(const EffectContext& c, int led)
{
    // A built-in script: colour after colour wipes across the canvas in slot order.
    const double step = c.time() / kScriptStep;
    const auto index = static_cast<int64_t>(std::floor(step));
    const double front = fract(step) * (c.columns() + 1.0);
    const double into = clamp01((front - along(c, led)) / 0.5);
    const Color next = c.color(led + int(index % 64), fract(index / 5.0), index);
    const Color previous =
        c.color(led + int((index + 63) % 64), fract((index - 1) / 5.0), index - 1);
    return blend(scale(previous, 0.35), next, into);
}

Color weather(const EffectContext& c, int led)
{
    // A sky with drifting clouds.
    const double t = c.time();
    const double x = c.column();
    const double y = c.y(led);
    const Color sky = c.color(led, fract(0.1 * std::sin(t * 0.2 + x * 0.5) + y * 0.15), 0);
    const double cloud =
        clamp01(std::sin(x * 1.7 + y * 3.0 - t * 0.6) * std::sin(x * 0.5 + t * 0.3));
    return blend(scale(sky, 0.8), 0xFFFFFF, cloud * 0.55);
}

} // namespace nxfx::flow
