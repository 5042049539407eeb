#include "SensorEffects.h"

#include "Shapes.h"

namespace nxfx::sensor {

using namespace shape;

namespace {

constexpr Color kUnknown = rgb(60, 60, 60);
constexpr Color kSecondsDot = rgb(70, 70, 110);

int clockDigit(const SceneInput& scene, int index)
{
    switch (index) {
    case 0:
        return scene.hour / 10 % 10;
    case 1:
        return scene.hour % 10;
    case 2:
        return scene.minute / 10 % 10;
    default:
        return scene.minute % 10;
    }
}

} // namespace

Color temperature(const EffectContext& c, int)
{
    const int celsius = c.module().temperature;
    if (celsius < 0)
        return kUnknown;
    const double heat = clamp01((celsius - kCoolCelsius) / (kHotCelsius - kCoolCelsius));
    return hsv(0.66 * (1.0 - heat));
}

Color clock(const EffectContext& c, int led)
{
    const int columns = std::max(c.columns(), 1);
    int digit = c.column();
    if (columns < kClockDigits) {
        const int pages = (kClockDigits + columns - 1) / columns;
        const double within = std::fmod(c.scene().seconds, pages * kClockPage);
        if (std::fmod(within, kClockPage) < kClockPageGap)
            return 0;
        digit += int(within / kClockPage) * columns;
    }
    if (digit >= kClockDigits) {
        if (columns <= kClockDigits)
            return 0;
        // Modules past the digits: a dot running through them once a minute.
        const int spare = (columns - kClockDigits) * c.leds();
        const int index = (c.column() - kClockDigits) * c.leds() + led;
        return index == int(c.scene().second / 60.0 * spare) % spare ? kSecondsDot : 0;
    }
    const int bit = c.leds() - 1 - led;
    const Color color = digit < 2 ? kHourColor : kMinuteColor;
    if (bit < 4)
        return scale(color, (clockDigit(c.scene(), digit) >> bit & 1) ? 1.0 : kUnlitBit);
    // The tens markers blink with the seconds, like a clock's colon.
    if (bit == 4 && digit % 2 == 0 && fract(c.scene().second) < 0.5)
        return kTensMarker;
    return 0;
}

} // namespace nxfx::sensor
