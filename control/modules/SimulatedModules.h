#pragma once

#include "ModuleSource.h"
#include "SimulationConfig.h"

#include <QRandomGenerator>

// The configured number of simulated modules, each lightable, with a temperature that wanders
// slowly within a range.
class SimulatedModules : public ModuleSource
{
public:
    static constexpr int kMinTemperature = 35;
    static constexpr int kMaxTemperature = 45;

    explicit SimulatedModules(const SimulationConfig& config);

    QString description() const override;
    bool isReal() const override { return false; }
    void refresh(nxproto::HardwareInfo& info) override;

private:
    SimulationConfig config_;
    QRandomGenerator random_;
    bool filled_ = false;
};
