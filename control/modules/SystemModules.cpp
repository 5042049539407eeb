#include "SystemModules.h"

#include <utility>

SystemModules::SystemModules(MemoryProbe probe) : probe_(std::move(probe)) {}

QString SystemModules::description() const
{
    return QStringLiteral("real modules from the ") + probe_.source();
}

void SystemModules::refresh(nxproto::HardwareInfo& info)
{
    if (!filled_) {
        filled_ = true;
        probe_.fill(info);
    }
    probe_.readTemperatures(info);
}
