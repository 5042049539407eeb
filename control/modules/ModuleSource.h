#pragma once

#include "HardwareInfo.h"

#include <QString>

// Where the modules the service reports come from. A source fills the slot count, the
// memory-wide figures and the module entries; a module it can light carries a model code of
// the supported set and its LED count, one it cannot light its part number and no LEDs.
class ModuleSource
{
public:
    virtual ~ModuleSource() = default;

    // For the log: "simulated", "SMBIOS table"...
    virtual QString description() const = 0;
    // False when the figures are invented (a simulation), so that no rule acts on them.
    virtual bool isReal() const = 0;
    // Called once a second; `info` keeps what the previous call wrote.
    virtual void refresh(nxproto::HardwareInfo& info) = 0;
};
