#pragma once

#include "EffectContext.h"

#include <cstdint>

namespace nxfx {

// One LED of one module at the context's moment, before the user's brightness.
using EffectFunction = Color (*)(const EffectContext& context, int led);

// Colour modes, as bits of EffectInfo::colorModes.
enum ColorModeBit : uint8_t {
    OffersRgb = 1 << ColorRgb,
    OffersSingle = 1 << ColorSingle,
    OffersOwn = 1 << ColorOwn,
    OffersRandom = 1 << ColorRandom,
};

struct EffectInfo {
    int value;
    const char* name;
    const char* summary;
    uint8_t colorModes;   // what the panel offers for the mode
    bool speedAdjustable; // the panel offers the speed (otherwise it is fixed at Normal)
    bool animated;        // changes with time; otherwise only when its inputs change
    bool travels;         // moves across the modules from column 0 onwards
    Palette palette;      // its own colours
    EffectFunction render;
};

constexpr int kEffectCount = 38;

// The effect for a light-mode value; values the table does not hold show steady colours.
const EffectInfo& effectFor(int mode);
// The table, in value order.
const EffectInfo* effectTable();

} // namespace nxfx
