#pragma once

#include "EffectContext.h"

// Moods for what the user is doing: watching, playing, listening. The Mobile twins run the
// same scenes mirrored across the canvas.
namespace nxfx::scene {

Color movie(const EffectContext& c, int led);
Color gaming(const EffectContext& c, int led);
Color party(const EffectContext& c, int led);
Color mobileMovie(const EffectContext& c, int led);
Color mobileGaming(const EffectContext& c, int led);
Color mobileParty(const EffectContext& c, int led);
// The screen cannot be read: a slow ambient drift in the scene's colours.
Color screenGaming(const EffectContext& c, int led);
Color screenMovie(const EffectContext& c, int led);

// The beat the Party scenes follow: the music's when one is heard, 120 per minute otherwise.
double partyBeat(const SceneInput& scene);

} // namespace nxfx::scene
