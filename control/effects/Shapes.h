#pragma once

#include <algorithm>
#include <cmath>

// Small shaping functions the effects share.
namespace nxfx::shape {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2.0 * kPi;
// A module is drawn this many canvas units tall; modules stand one unit apart.
constexpr double kModuleHeight = 2.0;

inline double fract(double v)
{
    return v - std::floor(v);
}
// 0 at 0, 1 at 0.5, 0 at 1, repeating.
inline double triangle(double v)
{
    const double f = fract(v);
    return f < 0.5 ? 2.0 * f : 2.0 - 2.0 * f;
}
// 0 at 0, 1 at 0.5, 0 at 1, repeating, smooth.
inline double breathe(double v)
{
    return 0.5 - 0.5 * std::cos(kTwoPi * v);
}
// A bump of width w around 0: 1 at the centre, about 0 past 2w.
inline double bump(double distance, double w)
{
    const double d = distance / w;
    return std::exp(-d * d);
}
inline double clamp01(double v)
{
    return std::clamp(v, 0.0, 1.0);
}
// Distance on the canvas between an LED (column, y 0..1) and a point.
inline double canvasDistance(double column, double y, double px, double py)
{
    const double dx = column - px;
    const double dy = (y - py) * kModuleHeight;
    return std::sqrt(dx * dx + dy * dy);
}

} // namespace nxfx::shape
