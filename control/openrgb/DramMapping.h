#pragma once

#include "ControllerData.h"

#include <cstdint>
#include <string>
#include <vector>

// A DRAM controller of an OpenRGB server, as the output drives it.
struct DramModule {
    uint32_t device = 0; // index in the server's list
    std::string name;
    std::string location;
    int leds = 0;        // LEDs the controller has
    int directMode = -1; // index of its "Direct" mode, -1 when it has none
    orgb::Mode direct;   // that mode as the server described it
};

namespace DramMapping {

constexpr int kMaxModules = 8;

// The DRAM controllers among `controllers` (server indexes 0, 1, ...), in the order of their
// locations, at most kMaxModules: entry i drives slot i. The same set of modules gets the same
// slots whatever order the server lists them in.
std::vector<DramModule> map(const std::vector<orgb::Controller>& controllers);

// Orders locations as a person reads them: numbers by value (hexadecimal after "0x"), so that
// "/dev/i2c-2" comes before "/dev/i2c-10" and "0x5A" after "0x58".
bool locationLess(const std::string& a, const std::string& b);

} // namespace DramMapping
