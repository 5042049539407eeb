// One frame of 8 modules x 12 LEDs for every light mode (Google Benchmark).

#include "EffectEngine.h"
#include "EffectRegistry.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int kModules = 8;
constexpr int kLeds = 12;

void renderFrame(benchmark::State& state, int mode, int colorMode)
{
    nxfx::Color colors[kLeds];
    float brightness[kLeds];
    for (int led = 0; led < kLeds; ++led) {
        colors[led] = nxfx::hsv(led / double(kLeds));
        brightness[led] = 1.0f;
    }
    nxfx::ModuleInput module;
    module.mode = mode;
    module.colorMode = colorMode;
    module.ledCount = kLeds;
    module.colors = colors;
    module.brightness = brightness;
    module.single = 0x20C0FF;
    module.temperature = 45;
    nxfx::SceneInput scene;
    scene.columns = kModules;
    nxfx::Color out[kModules][kLeds];
    double seconds = 0;
    for (auto _ : state) {
        scene.seconds = seconds += 1.0 / 30.0;
        for (int m = 0; m < kModules; ++m) {
            module.column = m;
            nxfx::renderModule(module, scene, out[m]);
        }
        benchmark::DoNotOptimize(out);
    }
}

} // namespace

int main(int argc, char** argv)
{
    for (int mode = 0; mode < nxfx::kEffectCount; ++mode) {
        const nxfx::EffectInfo& effect = nxfx::effectFor(mode);
        // The costliest colour mode the mode is offered with: Random draws a colour per LED.
        const int colorMode = effect.colorModes & nxfx::OffersRandom   ? nxfx::ColorRandom
                              : effect.colorModes & nxfx::OffersRgb    ? nxfx::ColorRgb
                              : effect.colorModes & nxfx::OffersSingle ? nxfx::ColorSingle
                                                                       : nxfx::ColorOwn;
        benchmark::RegisterBenchmark(
            (std::to_string(mode) + " " + effect.name).c_str(),
            [mode, colorMode](benchmark::State& state) { renderFrame(state, mode, colorMode); });
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
