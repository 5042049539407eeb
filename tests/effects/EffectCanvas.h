#pragma once

#include "EffectEngine.h"

#include <cstdlib>
#include <vector>

// A row of modules rendered with the engine alone, module i standing in column i.
struct EffectCanvas {
    int modules = 4;
    int leds = 8;
    nxfx::ModuleInput module;
    nxfx::SceneInput scene;
    nxfx::Color colors[12] = {0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF, 0xFF00FF, 0xFFFF00,
                              0xFFFFFF, 0x0080FF, 0x0000FF, 0x00FF00, 0xFF0000, 0x00FFFF};
    float brightness[12] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};

    EffectCanvas(int mode = 6, int colorMode = 0)
    {
        module.mode = mode;
        module.colorMode = colorMode;
        module.single = 0x20C0FF;
    }

    std::vector<nxfx::Color> frame(double seconds)
    {
        std::vector<nxfx::Color> out(std::size_t(modules * leds));
        scene.seconds = scene.second = seconds;
        scene.columns = modules;
        nxfx::ModuleInput input = module;
        input.ledCount = leds;
        input.colors = colors;
        input.brightness = brightness;
        for (input.column = 0; input.column < modules; ++input.column)
            nxfx::renderModule(input, scene, &out[std::size_t(input.column * leds)]);
        return out;
    }
};

// Sum of the channel differences between two frames.
inline long frameDistance(const std::vector<nxfx::Color>& a, const std::vector<nxfx::Color>& b)
{
    long sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i)
        for (int shift : {0, 8, 16})
            sum += std::abs(int((a[i] >> shift) & 0xFF) - int((b[i] >> shift) & 0xFF));
    return sum;
}
