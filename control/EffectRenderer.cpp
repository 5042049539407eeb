#include "EffectRenderer.h"

#include "EffectEngine.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int kPartyModes[] = {10, 13};

int ledCount(const nxproto::ModuleInfo& info)
{
    return std::clamp(info.ledNum, 0, nxproto::kLedCount);
}

} // namespace

int EffectRenderer::columns(const nxproto::ControlState& state,
                            const nxproto::HardwareInfo& hardware,
                            int (&column)[nxproto::kSlotCount])
{
    int slots[nxproto::kSlotCount];
    std::iota(std::begin(slots), std::end(slots), 0);
    // Ties (an order that names a column twice) keep the slot order.
    std::stable_sort(std::begin(slots), std::end(slots),
                     [&state](int a, int b) { return state.slotOrder[a] < state.slotOrder[b]; });
    int next = 0;
    for (int slot : slots)
        column[slot] =
            hardware.modules[slot].present && ledCount(hardware.modules[slot]) > 0 ? next++ : -1;
    return next;
}

bool EffectRenderer::render(const nxproto::ControlState& state,
                            const nxproto::HardwareInfo& hardware, nxfx::SceneInput scene,
                            Colors& out)
{
    int column[nxproto::kSlotCount];
    scene.columns = std::max(columns(state, hardware, column), 1);
    scene.memoryLoad = hardware.memoryLoad;
    bool animated = false;
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
        std::fill(std::begin(out[slot]), std::end(out[slot]), COLORREF(0));
        if (column[slot] < 0)
            continue;
        const nxproto::ModuleLighting& lighting = state.module(slot);
        nxfx::ModuleInput module;
        module.mode = lighting.lightMode;
        module.colorMode = lighting.colorMode;
        module.speed = lighting.lightSpeed;
        module.turnOff = lighting.turnOff;
        module.ledCount = ledCount(hardware.modules[slot]);
        module.colors = lighting.rgb;
        module.brightness = lighting.bright;
        module.single = lighting.singleRGB;
        module.singleBrightness = lighting.singleBright;
        module.column = column[slot];
        module.temperature = hardware.modules[slot].temperature;
        nxfx::Color colors[nxproto::kLedCount];
        nxfx::renderModule(module, scene, colors);
        std::copy(colors, colors + module.ledCount, out[slot]);
        animated = animated || nxfx::isAnimated(module);
    }
    return animated;
}

bool EffectRenderer::wantsMusic(const nxproto::ControlState& state,
                                const nxproto::HardwareInfo& hardware)
{
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
        const nxproto::ModuleLighting& lighting = state.module(slot);
        if (hardware.modules[slot].present && !lighting.turnOff &&
            std::find(std::begin(kPartyModes), std::end(kPartyModes), lighting.lightMode) !=
                std::end(kPartyModes))
            return true;
    }
    return false;
}
