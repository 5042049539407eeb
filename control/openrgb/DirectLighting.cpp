#include "DirectLighting.h"

#include <algorithm>

bool DirectLighting::anyActive() const
{
    return std::any_of(std::begin(active_), std::end(active_), [](bool on) { return on; });
}

void DirectLighting::enter(int slot, const COLORREF* current)
{
    if (!valid(slot) || active_[slot])
        return;
    active_[slot] = true;
    std::copy(current, current + nxproto::kLedCount, colors_[slot]);
}

void DirectLighting::leave(int slot)
{
    if (valid(slot))
        active_[slot] = false;
}

void DirectLighting::leaveAll()
{
    std::fill(std::begin(active_), std::end(active_), false);
}

void DirectLighting::set(int slot, int first, const COLORREF* values, int count)
{
    if (!valid(slot) || first < 0 || first >= nxproto::kLedCount || count <= 0)
        return;
    active_[slot] = true;
    const int n = std::min(count, nxproto::kLedCount - first);
    std::copy(values, values + n, colors_[slot] + first);
}

void DirectLighting::apply(Colors& frame) const
{
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot) {
        if (active_[slot])
            std::copy(std::begin(colors_[slot]), std::end(colors_[slot]), frame[slot]);
    }
}
