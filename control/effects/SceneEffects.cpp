#include "SceneEffects.h"

#include "Shapes.h"

namespace nxfx::scene {

using namespace shape;

namespace {

constexpr double kCutPeriod = 6.0;
constexpr double kHitPeriod = 0.8;
constexpr double kSteadyBeatsPerSecond = 2.0;

int columnOf(const EffectContext& c, bool mirrored)
{
    return mirrored ? c.columns() - 1 - c.column() : c.column();
}

Color movieScene(const EffectContext& c, int led, bool mirrored)
{
    // Slow ambient light that changes with each "cut".
    const double t = c.time();
    const int x = columnOf(c, mirrored);
    const auto cut = static_cast<int64_t>(std::floor(t / kCutPeriod));
    const double shade = c.random().unit(cut, 1);
    const double position = shade + t / 40.0 + 0.12 * std::sin(x * 0.7 + t * 0.13) + c.y(led) * 0.1;
    const double level = 0.55 + 0.3 * std::sin(t * 0.4 + x * 0.9) + 0.15 * std::sin(t * 1.3);
    return scale(c.color(led, fract(position), cut), level);
}

Color gamingScene(const EffectContext& c, int led, bool mirrored)
{
    // Fast sweeps with flashes for the hits.
    const double t = c.time();
    const int x = columnOf(c, mirrored);
    const double sweep = t / 1.5 - (x + c.y(led)) / (c.columns() + 1.0);
    const auto band = static_cast<int64_t>(std::floor(sweep * 3.0));
    Color color =
        scale(c.color(led + int(band % 8), fract(sweep), band), 0.4 + 0.6 * triangle(sweep * 3.0));
    const double hits = t / kHitPeriod;
    const auto hit = static_cast<int64_t>(std::floor(hits));
    if (c.random().unit(hit, 2) < 0.35)
        color = blend(color, 0xFFFFFF, std::max(0.0, 1.0 - fract(hits) / 0.3));
    return color;
}

Color partyScene(const EffectContext& c, int led, bool mirrored)
{
    const double beat = partyBeat(c.scene());
    const auto n = static_cast<int64_t>(std::floor(beat));
    const double flash = std::exp(-fract(beat) * 4.0);
    const double loud = c.scene().loudness >= 0.0 ? clamp01(c.scene().loudness) : 0.7;
    const int x = columnOf(c, mirrored);
    const bool accent = (x + led + n) % 2 == 0;
    const Color color = c.color(led + int(n % 8), fract(n * 0.27 + x * 0.13), n * 8 + x);
    const double level = (0.2 + 0.8 * flash * (0.4 + 0.6 * loud)) * (accent ? 1.0 : 0.55);
    return scale(color, level);
}

Color ambient(const EffectContext& c, int led, double period)
{
    const double t = c.time();
    const double x = c.column();
    const double position = t / period + 0.1 * std::sin(x * 0.8 + t * 0.21) + 0.08 * c.y(led);
    return scale(c.color(led, fract(position), 0), 0.6 + 0.4 * breathe(t / 10.0 + x * 0.13));
}

} // namespace

double partyBeat(const SceneInput& scene)
{
    return scene.beat >= 0.0 ? scene.beat : scene.seconds * kSteadyBeatsPerSecond;
}

Color movie(const EffectContext& c, int led)
{
    return movieScene(c, led, false);
}
Color gaming(const EffectContext& c, int led)
{
    return gamingScene(c, led, false);
}
Color party(const EffectContext& c, int led)
{
    return partyScene(c, led, false);
}
Color mobileMovie(const EffectContext& c, int led)
{
    return movieScene(c, led, true);
}
Color mobileGaming(const EffectContext& c, int led)
{
    return gamingScene(c, led, true);
}
Color mobileParty(const EffectContext& c, int led)
{
    return partyScene(c, led, true);
}
Color screenGaming(const EffectContext& c, int led)
{
    return ambient(c, led, 8.0);
}
Color screenMovie(const EffectContext& c, int led)
{
    return ambient(c, led, 16.0);
}

} // namespace nxfx::scene
