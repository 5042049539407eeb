#pragma once

#include "SpdDecoder.h"

#include <QString>

#include <vector>

// The SPD EEPROMs the kernel exposes: ee1004 (DDR4) and spd5118 (DDR5) devices under
// <root>/sys/bus/i2c/drivers, each with its "eeprom" file.
class SpdEeproms
{
public:
    struct Eeprom {
        int bus = -1;
        int address = -1;
        SpdInfo spd; // generation Unknown when the image is unreadable or not DDR4/DDR5
    };

    // In bus and address order.
    static std::vector<Eeprom> scan(const QString& root);
};
