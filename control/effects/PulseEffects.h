#pragma once

#include "EffectContext.h"

// Effects that light every LED and change only their level.
namespace nxfx::pulse {

Color steady(const EffectContext& c, int led);
Color blink(const EffectContext& c, int led);
Color breathing(const EffectContext& c, int led);
Color heartbeat(const EffectContext& c, int led);

} // namespace nxfx::pulse
