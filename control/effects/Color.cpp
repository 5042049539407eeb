#include "Color.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace nxfx {

namespace {

int channel(double value)
{
    return std::clamp(int(std::lround(value)), 0, 255);
}

// Stops of each palette, spaced evenly; the last blends back into the first.
constexpr Color kOcean[] = {rgb(0, 20, 120), rgb(0, 90, 200), rgb(0, 190, 220), rgb(20, 60, 160)};
constexpr Color kFire[] = {rgb(255, 20, 0), rgb(255, 90, 0), rgb(255, 170, 10), rgb(200, 30, 0)};
constexpr Color kAurora[] = {rgb(0, 255, 120), rgb(0, 180, 200), rgb(120, 40, 220),
                             rgb(0, 220, 160)};
constexpr Color kParty[] = {rgb(255, 0, 120), rgb(120, 0, 255), rgb(0, 180, 255), rgb(255, 200, 0)};
constexpr Color kCinema[] = {rgb(255, 120, 30), rgb(150, 30, 120), rgb(30, 40, 160),
                             rgb(200, 80, 40)};
constexpr Color kNeon[] = {rgb(0, 255, 80), rgb(255, 0, 200), rgb(0, 120, 255), rgb(255, 40, 0)};
constexpr Color kHeat[] = {rgb(0, 40, 255), rgb(0, 200, 255), rgb(255, 220, 0), rgb(255, 0, 0)};
constexpr Color kSky[] = {rgb(60, 140, 255), rgb(180, 220, 255), rgb(90, 170, 255),
                          rgb(30, 90, 220)};

template <std::size_t N> Color stops(const Color (&table)[N], double position)
{
    const double scaled = (position - std::floor(position)) * N;
    const int index = std::min(int(scaled), int(N) - 1);
    return blend(table[index], table[(index + 1) % N], scaled - index);
}

} // namespace

Color scale(Color c, double factor)
{
    if (!(factor > 0.0))
        return 0;
    if (factor >= 1.0)
        return c & 0xFFFFFF;
    return rgb(channel(red(c) * factor), channel(green(c) * factor), channel(blue(c) * factor));
}

Color blend(Color a, Color b, double t)
{
    t = std::clamp(t, 0.0, 1.0);
    return rgb(channel(red(a) + (red(b) - red(a)) * t),
               channel(green(a) + (green(b) - green(a)) * t),
               channel(blue(a) + (blue(b) - blue(a)) * t));
}

Color add(Color a, Color b)
{
    return rgb(std::min(red(a) + red(b), 255), std::min(green(a) + green(b), 255),
               std::min(blue(a) + blue(b), 255));
}

Color brighter(Color a, Color b)
{
    return rgb(std::max(red(a), red(b)), std::max(green(a), green(b)), std::max(blue(a), blue(b)));
}

Color hsv(double hue, double saturation, double value)
{
    const double h = (hue - std::floor(hue)) * 6.0;
    const double s = std::clamp(saturation, 0.0, 1.0);
    const double v = std::clamp(value, 0.0, 1.0) * 255.0;
    const int sector = std::min(int(h), 5);
    const double f = h - sector;
    const double p = v * (1 - s), q = v * (1 - s * f), u = v * (1 - s * (1 - f));
    switch (sector) {
    case 0:
        return rgb(channel(v), channel(u), channel(p));
    case 1:
        return rgb(channel(q), channel(v), channel(p));
    case 2:
        return rgb(channel(p), channel(v), channel(u));
    case 3:
        return rgb(channel(p), channel(q), channel(v));
    case 4:
        return rgb(channel(u), channel(p), channel(v));
    default:
        return rgb(channel(v), channel(p), channel(q));
    }
}

int peak(Color c)
{
    return std::max({red(c), green(c), blue(c)});
}

Color paletteColor(Palette palette, double position)
{
    switch (palette) {
    case Palette::Rainbow:
        return hsv(position);
    case Palette::Ocean:
        return stops(kOcean, position);
    case Palette::Fire:
        return stops(kFire, position);
    case Palette::Aurora:
        return stops(kAurora, position);
    case Palette::Party:
        return stops(kParty, position);
    case Palette::Cinema:
        return stops(kCinema, position);
    case Palette::Neon:
        return stops(kNeon, position);
    case Palette::Heat:
        return stops(kHeat, position);
    case Palette::Sky:
        return stops(kSky, position);
    }
    return hsv(position);
}

} // namespace nxfx
