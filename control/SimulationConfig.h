#pragma once

#include <string>
#include <vector>

// The simulated modules: how many (0 to 8), LEDs on each (5 or 8) and their model codes,
// handed out in turn to modules 0, 1, ...
struct SimulationConfig {
    int modules = 4;
    int leds = 8;
    std::vector<std::string> models{"KX44"};
    // Where the rendered frames go: "none" or "openrgb[:HOST:PORT]" (see OutputChoice).
    std::string output = "none";

    static constexpr int kMaxModules = 8;

    static bool validModules(int value) { return value >= 0 && value <= kMaxModules; }
    static bool validLeds(int value) { return value == 5 || value == 8; }
    // 1 to 63 printable ASCII characters, no comma.
    static bool validModel(const std::string& code);

    bool operator==(const SimulationConfig& other) const
    {
        return modules == other.modules && leds == other.leds && models == other.models &&
               output == other.output;
    }
};
