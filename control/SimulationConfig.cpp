#include "SimulationConfig.h"

bool SimulationConfig::validModel(const std::string& code)
{
    if (code.empty() || code.size() > 63)
        return false;
    for (char c : code) {
        if (c < 0x21 || c > 0x7E || c == ',')
            return false;
    }
    return true;
}
