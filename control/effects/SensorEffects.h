#pragma once

#include "EffectContext.h"

// Effects that show a measurement.
namespace nxfx::sensor {

// Blue when cool, through green and yellow to red when hot; a dim white when unknown.
Color temperature(const EffectContext& c, int led);

// The local time as a binary clock, one decimal digit per module: the bottom four LEDs are
// the digit's bits (lowest at the bottom), hours in amber, minutes in cyan, and the LED above
// them marks a tens digit, blinking with the seconds. A canvas of four or more modules shows
// HH MM at once, the seconds as a dot running through any further modules; a narrower one shows
// the digits a page at a time.
Color clock(const EffectContext& c, int led);

constexpr double kCoolCelsius = 30.0;
constexpr double kHotCelsius = 70.0;
constexpr Color kHourColor = rgb(255, 140, 0);
constexpr Color kMinuteColor = rgb(0, 190, 255);
constexpr Color kTensMarker = rgb(90, 90, 90);
constexpr double kUnlitBit = 0.1;
constexpr int kClockDigits = 4;
constexpr double kClockPage = 2.0;     // seconds per page on a narrow canvas
constexpr double kClockPageGap = 0.25; // dark between pages

} // namespace nxfx::sensor
