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

constexpr std::size_t kMaxTextLength = 255;

// The DRAM controllers among `controllers` (server indexes 0, 1, ...), in the order of their
// locations, at most kMaxModules: entry i drives slot i. The same set of modules gets the same
// slots whatever order the server lists them in.
std::vector<DramModule> map(const std::vector<orgb::Controller>& controllers);

// What the output keeps of one controller while listing: false for other device types. Long
// texts are cut, so that a listing costs little memory whatever the server sends.
bool toModule(const orgb::Controller& controller, uint32_t device, DramModule* module);
// Sorts by location and keeps the first kMaxModules.
void order(std::vector<DramModule>& modules);

// Orders locations as a person reads them: numbers by value (hexadecimal after "0x"), so that
// "/dev/i2c-2" comes before "/dev/i2c-10" and "0x5A" after "0x58".
bool locationLess(const std::string& a, const std::string& b);

} // namespace DramMapping
