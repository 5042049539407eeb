#pragma once

#include "HardwareInfo.h"
#include "SmbiosMemory.h"
#include "SpdDecoder.h"

#include <QString>

#include <utility>
#include <vector>

// The machine's memory modules from SMBIOS, with timings from their SPD EEPROMs and
// temperatures from their sensors, everything read below one root folder ("" for the real
// system, a fixture folder in tests). Figures whose source is absent stay -1.
class MemoryProbe
{
public:
    explicit MemoryProbe(QString root);

    // Reads SMBIOS (table or cache) and the SPD EEPROMs. False when no module was found.
    bool probe();
    // Where the module list came from ("SMBIOS table", "SMBIOS cache").
    const QString& source() const { return source_; }

    // Slot count, memory-wide figures and one entry per present module at its slot's place
    // (the first eight slots); model codes are the modules' part numbers and no LED count is set.
    void fill(nxproto::HardwareInfo& info) const;
    // The current module temperatures into the entries `fill` wrote.
    void readTemperatures(nxproto::HardwareInfo& info) const;

private:
    // Position among the module EEPROMs and sensors: bus, then the address's low three bits.
    using DimmKey = std::pair<int, int>;

    QString root_;
    QString source_;
    SmbiosMemory smbios_;
    std::vector<MemoryDevice> present_;
    std::vector<int> slots_;    // per present module, its place among the slots
    std::vector<SpdInfo> spd_;  // per present module, generation Unknown when unmatched
    std::vector<DimmKey> keys_; // per present module, when the EEPROMs matched
};
