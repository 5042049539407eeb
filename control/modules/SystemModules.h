#pragma once

#include "MemoryProbe.h"
#include "ModuleSource.h"

// The machine's own modules as the probe found them; nothing here can light them, so each
// reports its part number.
class SystemModules : public ModuleSource
{
public:
    // Takes a probe on which probe() succeeded.
    explicit SystemModules(MemoryProbe probe);

    QString description() const override;
    bool isReal() const override { return true; }
    void refresh(nxproto::HardwareInfo& info) override;

private:
    MemoryProbe probe_;
    bool filled_ = false;
};
