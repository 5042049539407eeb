#include "DramMapping.h"

#include <algorithm>
#include <cctype>

namespace DramMapping {

namespace {

bool isHex(char c)
{
    return std::isxdigit(static_cast<unsigned char>(c)) != 0;
}

bool isDigit(char c)
{
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// Reads the number at `pos` (hexadecimal when `hex`), leading zeros skipped; returns its
// significant digits, lower case.
std::string number(const std::string& text, std::size_t& pos, bool hex)
{
    std::string digits;
    while (pos < text.size() && (hex ? isHex(text[pos]) : isDigit(text[pos]))) {
        const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(text[pos++])));
        if (!(digits.empty() && c == '0'))
            digits.push_back(c);
    }
    return digits;
}

bool hexAt(const std::string& text, std::size_t pos)
{
    return pos + 2 < text.size() && text[pos] == '0' &&
           (text[pos + 1] == 'x' || text[pos + 1] == 'X') && isHex(text[pos + 2]);
}

} // namespace

bool locationLess(const std::string& a, const std::string& b)
{
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size()) {
        if (isDigit(a[i]) && isDigit(b[j])) {
            const bool hexA = hexAt(a, i);
            const bool hexB = hexAt(b, j);
            if (hexA != hexB)
                return hexB; // a plain number before a hexadecimal one
            if (hexA) {
                i += 2;
                j += 2;
            }
            const std::string x = number(a, i, hexA);
            const std::string y = number(b, j, hexB);
            if (x.size() != y.size())
                return x.size() < y.size();
            if (x != y)
                return x < y;
            continue;
        }
        if (a[i] != b[j])
            return static_cast<unsigned char>(a[i]) < static_cast<unsigned char>(b[j]);
        ++i;
        ++j;
    }
    return (a.size() - i) < (b.size() - j);
}

bool toModule(const orgb::Controller& c, uint32_t device, DramModule* module)
{
    if (c.type != orgb::DeviceDram)
        return false;
    *module = DramModule();
    module->device = device;
    module->name = c.name.substr(0, kMaxTextLength);
    module->location = c.location.substr(0, kMaxTextLength);
    module->leds = int(c.leds.size());
    module->directMode = c.findMode("Direct");
    if (module->directMode >= 0)
        module->direct = c.modes[std::size_t(module->directMode)];
    return true;
}

std::vector<DramModule> map(const std::vector<orgb::Controller>& controllers)
{
    std::vector<DramModule> modules;
    for (std::size_t i = 0; i < controllers.size(); ++i) {
        DramModule module;
        if (toModule(controllers[i], uint32_t(i), &module))
            modules.push_back(module);
    }
    order(modules);
    return modules;
}

void order(std::vector<DramModule>& modules)
{
    // Equal locations keep the server's order, which then decides.
    std::stable_sort(modules.begin(), modules.end(), [](const DramModule& x, const DramModule& y) {
        return locationLess(x.location, y.location);
    });
    if (modules.size() > std::size_t(kMaxModules))
        modules.resize(std::size_t(kMaxModules));
}

} // namespace DramMapping
