#include "RuleEngine.h"

#include <cmath>

void RuleEngine::checkTemperature(Sensor sensor, bool on, int threshold, int unit,
                                  std::optional<double> celsius, TemperatureRule& state,
                                  std::vector<Event>& events)
{
    const bool fahrenheit = unit == 1;
    Event event{Event::Raised, sensor, 0, threshold, fahrenheit};
    const bool valid =
        (unit == 0 || unit == 1) && threshold >= kMinTemperature && threshold <= kMaxTemperature;
    if (!on || !valid) {
        if (on && !state.reportedInvalid) {
            state.reportedInvalid = true;
            event.kind = Event::Ignored;
            events.push_back(event);
        }
        if (!on)
            state.reportedInvalid = false;
        if (state.raised) {
            state.raised = false;
            event.kind = Event::Cleared;
            events.push_back(event);
        }
        return;
    }
    state.reportedInvalid = false;
    if (!celsius)
        return;
    event.reading = fahrenheit ? toFahrenheit(*celsius) : *celsius;
    if (!state.raised && event.reading > threshold) {
        state.raised = true;
        event.kind = Event::Raised;
        events.push_back(event);
    } else if (state.raised && event.reading <= threshold - kHysteresis) {
        state.raised = false;
        event.kind = Event::Cleared;
        events.push_back(event);
    }
}

std::vector<RuleEngine::Event> RuleEngine::check(const NotiEventData& rules,
                                                 const Readings& readings)
{
    std::vector<Event> events;

    loadOverride_.reset();
    const bool loadValid = rules.loadingValue >= 0 && rules.loadingValue <= 100;
    if (rules.loadingSwitch && !loadValid && !loadReportedInvalid_) {
        loadReportedInvalid_ = true;
        Event event{Event::Ignored, Sensor::Memory, 0, rules.loadingValue, false};
        events.push_back(event);
    }
    if (!rules.loadingSwitch || loadValid)
        loadReportedInvalid_ = false;
    if (rules.loadingSwitch && loadValid && readings.memoryLoad >= 0 &&
        readings.memoryLoad > rules.loadingValue)
        loadOverride_ = rules.loadingColor & 0xFFFFFF;

    checkTemperature(Sensor::Memory, rules.shutdownMemorySwitch, rules.shutdownMemoryValue,
                     rules.shutdownMemoryUnit, readings.memoryTemperature, memory_, events);
    checkTemperature(Sensor::Cpu, rules.shutdownCPUSwitch, rules.shutdownCPUValue,
                     rules.shutdownCPUUnit, readings.cpuTemperature, cpu_, events);

    if (rules.fanSpeedSwitch && !fanReported_) {
        Event event{Event::FanRuleNeedsProgram, Sensor::Cpu, 0, rules.fanSpeedValue,
                    rules.fanSpeedUnit == 1};
        events.push_back(event);
    }
    fanReported_ = rules.fanSpeedSwitch;
    return events;
}

QString RuleEngine::describe(const Event& event)
{
    const QString unit = event.fahrenheit ? QStringLiteral("°F") : QStringLiteral("°C");
    const QString what = event.sensor == Sensor::Memory ? QStringLiteral("Memory temperature")
                                                        : QStringLiteral("CPU temperature");
    return QStringLiteral("%1 %2 %3 is above %4 %3")
        .arg(what)
        .arg(std::lround(event.reading))
        .arg(unit)
        .arg(event.threshold);
}
