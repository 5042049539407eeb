#pragma once

#include "norvalex_lighting.h"

#include <QString>

#include <optional>
#include <vector>

// The notification rules, checked once a second against the latest readings: memory load above
// its threshold turns every LED to the rule's colour while it lasts; memory or CPU temperature
// above its threshold raises a warning once per crossing and clears it once the temperature
// has fallen 2 degrees (in the rule's unit) below the threshold. The fan rule needs a
// fan-control program and is only reported. Rules with a threshold outside the panel's range
// or an unknown unit are ignored.
class RuleEngine
{
public:
    static constexpr int kHysteresis = 2;
    static constexpr int kMinTemperature = -30;
    static constexpr int kMaxTemperature = 1000;

    enum class Sensor { Memory, Cpu };

    struct Readings {
        double memoryLoad = -1.0;                // percent, negative when unknown
        std::optional<double> memoryTemperature; // °C
        std::optional<double> cpuTemperature;    // °C
    };

    struct Event {
        enum Kind { Raised, Cleared, Ignored, FanRuleNeedsProgram };
        Kind kind;
        Sensor sensor = Sensor::Cpu;
        double reading = 0; // in the rule's unit
        int threshold = 0;  // in the rule's unit
        bool fahrenheit = false;
    };

    // Checks every rule; returns what changed since the last check.
    std::vector<Event> check(const NotiEventData& rules, const Readings& readings);

    // The colour every LED takes now, while the load rule holds.
    std::optional<COLORREF> loadOverride() const { return loadOverride_; }

    static double toFahrenheit(double celsius) { return celsius * 9.0 / 5.0 + 32.0; }
    // Readable warning text for a raised event, e.g. "CPU temperature 91 °C is above 90 °C".
    static QString describe(const Event& event);

private:
    struct TemperatureRule {
        bool raised = false;
        bool reportedInvalid = false;
    };

    void checkTemperature(Sensor sensor, bool on, int threshold, int unit,
                          std::optional<double> celsius, TemperatureRule& state,
                          std::vector<Event>& events);

    TemperatureRule memory_;
    TemperatureRule cpu_;
    bool loadReportedInvalid_ = false;
    bool fanReported_ = false;
    std::optional<COLORREF> loadOverride_;
};
