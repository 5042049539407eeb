#pragma once

#include <cstdint>

namespace nxfx {

// 0x00BBGGRR, red in the low byte, as the modules and the protocol carry it.
using Color = uint32_t;

constexpr Color rgb(int r, int g, int b)
{
    return Color(r & 0xFF) | Color(g & 0xFF) << 8 | Color(b & 0xFF) << 16;
}
constexpr int red(Color c)
{
    return int(c & 0xFF);
}
constexpr int green(Color c)
{
    return int(c >> 8 & 0xFF);
}
constexpr int blue(Color c)
{
    return int(c >> 16 & 0xFF);
}

// Each channel times factor, clamped to 0..1 and rounded.
Color scale(Color c, double factor);
// a at t = 0, b at t = 1.
Color blend(Color a, Color b, double t);
// Channel-wise sum, saturating at 255.
Color add(Color a, Color b);
// Channel-wise maximum.
Color brighter(Color a, Color b);
// Hue 0..1 (wrapping), saturation and value 0..1.
Color hsv(double hue, double saturation = 1.0, double value = 1.0);
// Largest channel, 0..255.
int peak(Color c);

// The built-in colour sets the effects draw from when the user sets no colour.
enum class Palette {
    Rainbow,
    Ocean,
    Fire,
    Aurora,
    Party,
    Cinema,
    Neon,
    Heat,
    Sky,
};

// The palette's colour at position 0..1 (wrapping), blended between its stops.
Color paletteColor(Palette palette, double position);

} // namespace nxfx
