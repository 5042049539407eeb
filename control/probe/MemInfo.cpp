#include "MemInfo.h"

#include <QFile>

#include <cstdint>

MemInfo MemInfo::parse(const QByteArray& text)
{
    qint64 totalKB = -1;
    qint64 availableKB = -1;
    for (const QByteArray& line : text.split('\n')) {
        const QList<QByteArray> parts = line.simplified().split(' ');
        if (parts.size() < 2)
            continue;
        bool ok = false;
        const qint64 value = parts.at(1).toLongLong(&ok);
        if (!ok)
            continue;
        if (parts.at(0) == "MemTotal:")
            totalKB = value;
        else if (parts.at(0) == "MemAvailable:")
            availableKB = value;
    }
    MemInfo info;
    if (totalKB <= 0 || availableKB < 0 || availableKB > totalKB)
        return info;
    const qint64 usedKB = totalKB - availableKB;
    info.load = static_cast<double>((usedKB * 100 + totalKB / 2) / totalKB);
    info.usedMB = static_cast<int>(qMin<qint64>(usedKB / 1024, INT32_MAX));
    return info;
}

MemInfo MemInfo::read(const QString& root)
{
    QFile file(root + QStringLiteral("/proc/meminfo"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return parse(file.read(64 * 1024));
}
