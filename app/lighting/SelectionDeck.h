#pragma once

#include "norvalex_lighting.h"

class LightingDeck;
class Lighting_View;
class Memory_RGB_View;
class ModeControls;

// The control deck of the lighting page and the selected modules: the deck shows their light
// mode, colour mode, speed, switch, brightness and colour, or empty controls where they disagree;
// Apply, Default and the switch carry the deck's values to them and send the page's requests.
// Works on the page's strips and per-module state, handed over by reference.
class SelectionDeck
{
public:
    static constexpr int SlotCount = 8;

    SelectionDeck(Lighting_View* page, LightingDeck& deck, ModeControls& modes,
                  Memory_RGB_View* const (&strips)[SlotCount],
                  MemoryModuleData (&modules)[SlotCount]);
    SelectionDeck(const SelectionDeck&) = delete;
    SelectionDeck& operator=(const SelectionDeck&) = delete;

    bool isSlotChecked(int slot) const;
    // The combos and controls for a light mode; a speed that can change shows the first
    // selected module's.
    void applyRule(int lightMode);
    // The focused module's mode, colour mode and speed, each left empty where the selected
    // modules differ; all empty when they run different modes than `currentLightMode`.
    void showSelection(int currentLightMode);
    // Everything the deck shows of one module, as the controller reported it.
    void showModule(int slot);
    // The colour entry takes the module's first selected LED, or its single colour.
    void showModuleColor(int slot);
    // What the brightness slider shows for a module in its strip's colour mode.
    float moduleBrightness(int slot) const;
    void applyMbSyncRule(int lightMode);
    // The switch shows the first selected module that is present.
    void showSwitch();

    // Each selected module takes what the deck shows (`currentLightMode` for the mode) and the
    // page sends its brightness and colours, then its lighting and colour mode.
    void apply(int currentLightMode);
    // Full brightness, the fixed speed and the stored colour modes, then the strips' defaults.
    void restoreDefaults();
    // The selected modules are switched on or off with the next Apply.
    void setSwitch(bool on);

private:
    Lighting_View* page;
    LightingDeck& deck;
    ModeControls& modes;
    Memory_RGB_View* const (&strips)[SlotCount];
    MemoryModuleData (&modules)[SlotCount];
};
