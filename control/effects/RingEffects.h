#pragma once

#include "EffectContext.h"

// Rings around a point of the canvas.
namespace nxfx::ring {

Color ripple(const EffectContext& c, int led);
Color blackHole(const EffectContext& c, int led);
Color radiation(const EffectContext& c, int led);

} // namespace nxfx::ring
