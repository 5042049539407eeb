#pragma once

#include "EffectContext.h"

// Colours that move or cycle over the whole canvas.
namespace nxfx::flow {

// The step-th colour of the colour source, blending into the next one as step grows.
Color sequence(const EffectContext& c, double step);

Color flow(const EffectContext& c, int led);
Color spectrum(const EffectContext& c, int led);
Color wave(const EffectContext& c, int led);
Color swirl(const EffectContext& c, int led);
Color rgbSync(const EffectContext& c, int led);
Color aurora(const EffectContext& c, int led);
Color mbSync(const EffectContext& c, int led);
Color script(const EffectContext& c, int led);
Color weather(const EffectContext& c, int led);

} // namespace nxfx::flow
