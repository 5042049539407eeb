// norvalex-dmi-cache: run once as root at boot; decodes the memory devices of the SMBIOS
// table into a world-readable cache for the control service.
//   norvalex-dmi-cache [--root DIR]

#include "DmiCache.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    QString root;
    if (args.size() == 3 && args.at(1) == QLatin1String("--root")) {
        root = args.at(2);
    } else if (args.size() != 1) {
        std::fprintf(stderr, "usage: norvalex-dmi-cache [--root DIR]\n");
        return 2;
    }
    QFile table(DmiCache::tablePath(root));
    if (!table.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "norvalex-dmi-cache: cannot read the SMBIOS table: %s\n",
                     qPrintable(table.errorString()));
        return 1;
    }
    const SmbiosMemory memory = SmbiosMemory::decode(table.readAll());
    QString error;
    if (!DmiCache::write(DmiCache::cachePath(root), memory, &error)) {
        std::fprintf(stderr, "norvalex-dmi-cache: cannot write the cache: %s\n", qPrintable(error));
        return 1;
    }
    std::printf("norvalex-dmi-cache: %d memory devices, %d slots\n", int(memory.devices.size()),
                memory.slotCount);
    return 0;
}
