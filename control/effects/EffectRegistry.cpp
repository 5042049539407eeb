#include "EffectRegistry.h"

#include "FlowEffects.h"
#include "ParticleEffects.h"
#include "PulseEffects.h"
#include "RingEffects.h"
#include "SceneEffects.h"
#include "SensorEffects.h"
#include "SweepEffects.h"

namespace nxfx {

namespace {

constexpr uint8_t kOwn = OffersOwn;
constexpr uint8_t kUser = OffersRgb | OffersSingle;
constexpr uint8_t kUserRandom = OffersRgb | OffersSingle | OffersRandom;
constexpr uint8_t kSingleRandom = OffersSingle | OffersRandom;

// clang-format off
constexpr EffectInfo kEffects[kEffectCount] = {
    {0, "Flow", "a rainbow flowing down the modules and on across them", kOwn, true, true, false, Palette::Rainbow, flow::flow},
    {1, "RGB Spectrum", "every module cycling through the spectrum together", kOwn, true, true, false, Palette::Rainbow, flow::spectrum},
    {2, "Ripple", "rings spreading from a random drop point", kSingleRandom, true, true, false, Palette::Ocean, ring::ripple},
    {3, "Blink", "on and off; Random picks a new colour each time", kUserRandom, true, true, false, Palette::Rainbow, pulse::blink},
    {4, "Pulse", "slow breathing; Random picks a new colour each breath", kUserRandom, true, true, false, Palette::Rainbow, pulse::breathing},
    {5, "Wave", "the user's colours moving down while a crest travels across", OffersRgb, true, true, false, Palette::Ocean, flow::wave},
    {6, "Static", "the colours as set", kUser, false, false, false, Palette::Rainbow, pulse::steady},
    {7, "Copy", "the colours as set, steadily", kOwn, false, false, false, Palette::Rainbow, pulse::steady},
    {8, "Movie", "calm ambient light that changes with each scene", kUser, false, true, false, Palette::Cinema, scene::movie},
    {9, "Gaming", "fast sweeps with white flashes for hits", kUser, false, true, false, Palette::Neon, scene::gaming},
    {10, "Party", "flashes on the beat of the desktop's music (120 bpm without)", kUser, false, true, false, Palette::Party, scene::party},
    {11, "Mobile_Movie", "Movie, mirrored across the modules", kUser, false, true, false, Palette::Cinema, scene::mobileMovie},
    {12, "Mobile_Gaming", "Gaming, mirrored across the modules", kUser, false, true, false, Palette::Neon, scene::mobileGaming},
    {13, "Mobile_Party", "Party, mirrored across the modules", kUser, false, true, false, Palette::Party, scene::mobileParty},
    {14, "Temp.", "each module blue when cool to red when hot (30 to 70 °C)", kOwn, false, false, false, Palette::Heat, sensor::temperature},
    {15, "Cross", "a row running down and a column running across, flashing where they cross", kUser, true, true, false, Palette::Neon, sweep::cross},
    {16, "Hello", "a rainbow wiping in across the modules, waving and leaving", kOwn, false, true, true, Palette::Rainbow, sweep::hello},
    {17, "Shooting Star", "a bright head with a fading tail crossing every module in slot order", kUser, false, true, true, Palette::Sky, sweep::shootingStar},
    {18, "Black Hole", "rings of colour drawn into a dark centre", kUser, false, true, false, Palette::Party, ring::blackHole},
    {19, "Aurora", "green and violet curtains drifting", kOwn, false, true, false, Palette::Aurora, flow::aurora},
    {20, "RGB Sync", "one colour on every LED, cycling through the spectrum", kOwn, false, true, false, Palette::Rainbow, flow::rgbSync},
    {21, "Twinkle", "LEDs lighting up and fading at random", kUser, true, true, false, Palette::Sky, particle::twinkle},
    {22, "Script", "a built-in sequence of colour wipes", kOwn, false, true, false, Palette::Party, flow::script},
    {23, "Weather", "a blue sky with drifting clouds", kOwn, false, true, false, Palette::Sky, flow::weather},
    {24, "Raindrop", "a drop falling down each module and splashing", kUser, true, true, false, Palette::Ocean, particle::raindrop},
    {25, "Heartbeat", "a double beat, lub-dub", kUserRandom, true, true, false, Palette::Fire, pulse::heartbeat},
    {26, "Stack", "blocks dropping and piling up from the bottom", kUser, true, true, false, Palette::Rainbow, sweep::stack},
    {27, "Scan", "a bar bouncing from the first module to the last and back", kUser, true, true, true, Palette::Fire, sweep::scan},
    {28, "Swirl", "two colours spiralling around the middle", kUser, true, true, false, Palette::Party, flow::swirl},
    {29, "Screen Gaming", "lively ambient drift (the service cannot see the screen)", kOwn, false, true, false, Palette::Neon, scene::screenGaming},
    {30, "Screen Movie", "calm ambient drift (the service cannot see the screen)", kOwn, false, true, false, Palette::Cinema, scene::screenMovie},
    {31, "Clock", "local time as a binary clock: hours amber, minutes cyan", kOwn, false, true, false, Palette::Rainbow, sensor::clock},
    {32, "Rain", "streaks of rain falling over a dim glow", OffersSingle, true, true, false, Palette::Ocean, particle::rain},
    {33, "Fireworks", "a rocket rising and bursting over the neighbouring modules", kUser, true, true, false, Palette::Party, particle::fireworks},
    {34, "Explosion", "a flash in the middle, a shock ring and glowing embers", kUser, true, true, false, Palette::Fire, particle::explosion},
    {35, "MB Sync", "every module breathing in step through its colours", kUser, true, true, false, Palette::Rainbow, flow::mbSync},
    {36, "Radiation", "pulses radiating from the centre with random crackle", kSingleRandom, true, true, false, Palette::Neon, ring::radiation},
    {37, "Aim", "a reticle closing in on a target that then flashes", kUserRandom, true, true, false, Palette::Fire, sweep::aim},
};
// clang-format on

constexpr EffectInfo kFallback = {
    -1, "", "", kUser, false, false, false, Palette::Rainbow, pulse::steady};

} // namespace

const EffectInfo& effectFor(int mode)
{
    return mode >= 0 && mode < kEffectCount ? kEffects[mode] : kFallback;
}

const EffectInfo* effectTable()
{
    return kEffects;
}

} // namespace nxfx
