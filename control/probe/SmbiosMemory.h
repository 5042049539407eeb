#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// One memory device (SMBIOS structure type 17): a slot, populated or not.
struct MemoryDevice {
    bool present = false;
    int sizeMB = -1;   // -1 unknown
    QString type;      // "DDR4", "DDR5", "LPDDR5"...; empty when unknown
    int speedMTs = -1; // configured speed, else the rated one; -1 unknown
    QString locator;
    QString bankLocator;
    QString manufacturer;
    QString partNumber;

    bool operator==(const MemoryDevice& other) const;
};

// The memory part of the SMBIOS table: the slot count of the system memory arrays (type 16)
// and every memory device (type 17) in table order.
struct SmbiosMemory {
    int slotCount = -1;
    std::vector<MemoryDevice> devices;

    bool operator==(const SmbiosMemory& other) const
    {
        return slotCount == other.slotCount && devices == other.devices;
    }

    // Decodes a raw structure table (the content of /sys/firmware/dmi/tables/DMI). Truncated
    // or malformed structures end the walk; what was decoded before them is kept.
    static SmbiosMemory decode(const QByteArray& table);
    // Text of a type 17 memory-type byte; empty for "other", "unknown" and unassigned values.
    static QString memoryTypeName(int value);
};
