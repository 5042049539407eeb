#pragma once

#include "Request.h"

// Modules that an SDK client drives LED by LED. While a slot is direct, its rendered colours
// are replaced by the client's, on the output and in the panel's preview, until the client
// picks a light mode or the user changes the module's lighting on the panel.
class DirectLighting
{
public:
    using Colors = COLORREF[nxproto::kSlotCount][nxproto::kLedCount];

    bool active(int slot) const { return valid(slot) && active_[slot]; }
    bool anyActive() const;
    const COLORREF* colors(int slot) const { return colors_[slot]; }

    // Starts direct control of the slot, showing `current` until the client sends colours.
    void enter(int slot, const COLORREF* current);
    void leave(int slot);
    void leaveAll();
    // Sets `count` colours from LED `first` on; entering direct control if needed. Colours
    // past the LED array are ignored.
    void set(int slot, int first, const COLORREF* values, int count);

    // Replaces the rendered colours of the direct slots.
    void apply(Colors& frame) const;

private:
    static bool valid(int slot) { return slot >= 0 && slot < nxproto::kSlotCount; }

    bool active_[nxproto::kSlotCount] = {};
    Colors colors_ = {};
};
