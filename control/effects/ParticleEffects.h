#pragma once

#include "EffectContext.h"

// Points of light that appear at random places and times, drawn from the seeded source.
namespace nxfx::particle {

Color twinkle(const EffectContext& c, int led);
Color raindrop(const EffectContext& c, int led);
Color rain(const EffectContext& c, int led);
Color fireworks(const EffectContext& c, int led);
Color explosion(const EffectContext& c, int led);

} // namespace nxfx::particle
