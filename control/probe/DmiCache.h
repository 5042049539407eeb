#pragma once

#include "SmbiosMemory.h"

#include <QByteArray>
#include <QString>

// The decoded memory part of the SMBIOS table as a small JSON file, so that a service without
// root rights can read what a root one-shot decoded from the root-only table.
class DmiCache
{
public:
    // <root>/run/norvalex/memory-dmi.json
    static QString cachePath(const QString& root);
    // <root>/sys/firmware/dmi/tables/DMI
    static QString tablePath(const QString& root);

    static QByteArray toJson(const SmbiosMemory& memory);
    // False for anything that is not a cache of ours.
    static bool fromJson(const QByteArray& json, SmbiosMemory* memory);

    // Writes the cache world-readable, by atomic replace. False with a reason on failure.
    static bool write(const QString& path, const SmbiosMemory& memory, QString* error);

    // The table itself when it is readable (running as root), else the cache; false when
    // neither is there.
    static bool load(const QString& root, SmbiosMemory* memory, QString* source);
};
