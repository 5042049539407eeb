#pragma once

#include "SimulationConfig.h"

#include <QString>
#include <QStringList>

#include <optional>

// Command line of norvalex-control. Every option overrides the stored configuration for this
// run only.
class ServiceOptions
{
public:
    // False with a message for the user when the arguments are not usable; `exitNow` is set
    // when --help or --version was answered.
    bool parse(const QStringList& arguments, QString* message, bool* exitNow);

    // The stored configuration with this run's overrides applied.
    SimulationConfig apply(SimulationConfig stored) const;

    // auto: the machine's modules when the probe finds them, else simulated ones.
    enum class ModuleMode { Auto, Simulated };
    ModuleMode moduleMode = ModuleMode::Auto;
    // Folder under which /proc, /sys and /run are read ("" for the real system).
    QString root;

    std::optional<int> modules;
    std::optional<int> leds;
    std::optional<std::vector<std::string>> models;
    std::optional<std::string> output;
    // Address of the OpenRGB SDK server; empty when it is off.
    QString sdkServerHost;
    quint16 sdkServerPort = 0;
};
