#pragma once

#include <QString>

#include <optional>
#include <vector>

// Temperature sensors under <root>/sys/class/hwmon: the memory modules' (jc42 on DDR4,
// spd5118 on DDR5, each an I2C device) and the processor's.
class Hwmon
{
public:
    struct ModuleSensor {
        int bus = -1;
        int address = -1;
        int celsius = -1; // whole degrees, -1 when unreadable
    };

    // Module sensors in bus and address order.
    static std::vector<ModuleSensor> moduleSensors(const QString& root);
    // The processor temperature in °C from coretemp, k10temp, zenpower or cpu_thermal: the die
    // or package sensor when labelled, else the first one; empty when there is none.
    static std::optional<double> cpuTemperature(const QString& root);

    // Bus and address from an I2C device name such as "3-0050"; false for other names.
    static bool parseI2cName(const QString& name, int* bus, int* address);
    // Degrees from a millidegree file; empty when absent or not a number.
    static std::optional<double> readMillidegrees(const QString& path);
};
