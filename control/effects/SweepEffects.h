#pragma once

#include "EffectContext.h"

// Shapes that travel across the modules in slot order.
namespace nxfx::sweep {

Color shootingStar(const EffectContext& c, int led);
Color scan(const EffectContext& c, int led);
Color cross(const EffectContext& c, int led);
Color hello(const EffectContext& c, int led);
Color stack(const EffectContext& c, int led);
Color aim(const EffectContext& c, int led);

} // namespace nxfx::sweep
