#pragma once

#include "norvalex_lighting.h"

class LightingDeck;
class Memory_RGB_View;
class ModeControls;

// The control deck of the lighting page showing the selected modules: their light mode, colour
// mode, speed, brightness and colour, or empty controls where the selected modules disagree.
// Works on the page's strips and per-module state, handed over by reference.
class SelectionDeck
{
public:
    static constexpr int SlotCount = 8;

    SelectionDeck(LightingDeck& deck, ModeControls& modes,
                  Memory_RGB_View* const (&strips)[SlotCount],
                  const MemoryModuleData (&modules)[SlotCount]);
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

private:
    LightingDeck& deck;
    ModeControls& modes;
    Memory_RGB_View* const (&strips)[SlotCount];
    const MemoryModuleData (&modules)[SlotCount];
};
