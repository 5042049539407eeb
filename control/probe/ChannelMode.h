#pragma once

#include "SmbiosMemory.h"

// How many memory channels hold a module, from the slot names the firmware gives
// ("ChannelA-DIMM0", "P0 CHANNEL B", "DIMM_C1", "A2"...): 1, 2, 4..., or -1 when a populated
// slot's channel cannot be told.
class ChannelMode
{
public:
    static int populatedChannels(const SmbiosMemory& memory);
    // The channel letter of one slot, or a null QChar.
    static QChar channelOf(const MemoryDevice& device);
};
