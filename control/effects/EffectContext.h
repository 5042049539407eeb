#pragma once

#include "Color.h"
#include "Random.h"

namespace nxfx {

// What one module asks for: its lighting settings, where it stands on the canvas and what it
// measures.
struct ModuleInput {
    int mode = 6;
    int colorMode = 0; // 0 RGB, 1 Single, 2 the mode's own colours, 3 Random
    int speed = 2;     // 0 Extreme .. 3 Slow
    bool turnOff = false;
    int ledCount = 0;
    const Color* colors = nullptr;     // ledCount user colours (RGB)
    const float* brightness = nullptr; // ledCount levels 0..1 (RGB)
    Color single = 0;
    float singleBrightness = 1.0f;
    int column = 0;       // 0 .. columns-1 in the user's slot order
    int temperature = -1; // °C, negative when unknown
};

// What every module shares: the time, the canvas width and the inputs of the moment.
struct SceneInput {
    double seconds = 0.0; // since the effects started
    int columns = 1;
    uint64_t seed = 1;
    double memoryLoad = -1.0; // percent, negative when unknown
    int hour = 0;             // local time
    int minute = 0;
    double second = 0.0;
    // Music: beats counted so far (the fraction is the way to the next one) and the loudness
    // 0..1; a negative beat means no music is heard and a steady 120 bpm is used.
    double beat = -1.0;
    double loudness = -1.0;
};

// The colour modes as carried in the lighting state.
enum ColorMode { ColorRgb = 0, ColorSingle = 1, ColorOwn = 2, ColorRandom = 3 };

// The view of one module that an effect draws with.
class EffectContext
{
public:
    EffectContext(const ModuleInput& module, const SceneInput& scene, Palette own);

    const ModuleInput& module() const { return module_; }
    const SceneInput& scene() const { return scene_; }
    const Random& random() const { return random_; }

    int leds() const { return module_.ledCount; }
    int column() const { return module_.column; }
    int columns() const { return scene_.columns; }
    // The LED's height on the module, 0 at the top LED's centre side to 1 at the bottom.
    double y(int led) const { return (led + 0.5) / module_.ledCount; }
    // The effect clock: seconds scaled by the speed (Extreme four times Normal, Slow half).
    double time() const { return time_; }

    // The colour the colour mode gives: the user's colour of `led` (RGB, wrapping), the single
    // colour, the mode's own palette at `position` (OFF) or a random hue drawn for `key`.
    Color color(int led, double position, int64_t key) const;
    // The brightness the user set for the LED: per LED in RGB, the single one in Single, full
    // otherwise.
    double level(int led) const;
    bool userColors() const { return mode_ == ColorRgb || mode_ == ColorSingle; }

private:
    const ModuleInput& module_;
    const SceneInput& scene_;
    Random random_;
    Palette own_;
    int mode_;
    double time_;
};

} // namespace nxfx
