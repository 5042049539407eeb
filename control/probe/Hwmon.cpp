#include "Hwmon.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace {

QString readLine(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLatin1(file.readLine(256)).trimmed();
}

QStringList hwmonFolders(const QString& root)
{
    const QDir dir(root + QStringLiteral("/sys/class/hwmon"));
    QStringList folders;
    const QStringList names =
        dir.entryList({QStringLiteral("hwmon*")}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names)
        folders.append(dir.filePath(name));
    return folders;
}

// The device a hwmon folder belongs to: the target of its "device" link.
QString deviceName(const QString& folder)
{
    const QFileInfo link(folder + QStringLiteral("/device"));
    const QString target = link.isSymLink() ? link.symLinkTarget() : link.canonicalFilePath();
    return QFileInfo(target).fileName();
}

} // namespace

bool Hwmon::parseI2cName(const QString& name, int* bus, int* address)
{
    const int dash = name.indexOf(QLatin1Char('-'));
    if (dash <= 0 || name.size() - dash - 1 != 4)
        return false;
    bool busOk = false;
    bool addressOk = false;
    const int b = name.left(dash).toInt(&busOk);
    const int a = name.mid(dash + 1).toInt(&addressOk, 16);
    if (!busOk || !addressOk || b < 0 || a < 0 || a > 0x7F)
        return false;
    *bus = b;
    *address = a;
    return true;
}

std::optional<double> Hwmon::readMillidegrees(const QString& path)
{
    bool ok = false;
    const qlonglong value = readLine(path).toLongLong(&ok);
    if (!ok)
        return std::nullopt;
    return double(value) / 1000.0;
}

std::vector<Hwmon::ModuleSensor> Hwmon::moduleSensors(const QString& root)
{
    std::vector<ModuleSensor> sensors;
    for (const QString& folder : hwmonFolders(root)) {
        const QString name = readLine(folder + QStringLiteral("/name"));
        if (name != QLatin1String("jc42") && name != QLatin1String("spd5118"))
            continue;
        ModuleSensor sensor;
        if (!parseI2cName(deviceName(folder), &sensor.bus, &sensor.address))
            continue;
        if (const auto degrees = readMillidegrees(folder + QStringLiteral("/temp1_input")))
            sensor.celsius = int(std::lround(*degrees));
        sensors.push_back(sensor);
    }
    std::sort(sensors.begin(), sensors.end(), [](const ModuleSensor& a, const ModuleSensor& b) {
        return a.bus != b.bus ? a.bus < b.bus : (a.address & 7) < (b.address & 7);
    });
    return sensors;
}

std::optional<double> Hwmon::cpuTemperature(const QString& root)
{
    static const char* const drivers[] = {"coretemp", "k10temp", "zenpower", "cpu_thermal"};
    // Preferred labels, best first; an unlabelled temp1 comes last.
    static const char* const labels[] = {"Tdie", "Package id 0", "Tctl"};
    for (const QString& folder : hwmonFolders(root)) {
        const QString name = readLine(folder + QStringLiteral("/name"));
        if (std::none_of(std::begin(drivers), std::end(drivers),
                         [&](const char* d) { return name == QLatin1String(d); }))
            continue;
        const QStringList inputs =
            QDir(folder).entryList({QStringLiteral("temp*_input")}, QDir::Files, QDir::Name);
        std::optional<double> best;
        int bestRank = int(std::size(labels)) + 1;
        for (const QString& input : inputs) {
            const QString base = input.left(input.size() - int(qstrlen("_input")));
            const QString label =
                readLine(folder + QLatin1Char('/') + base + QStringLiteral("_label"));
            int rank = int(std::size(labels));
            for (int i = 0; i < int(std::size(labels)); ++i) {
                if (label == QLatin1String(labels[i]))
                    rank = i;
            }
            if (rank == int(std::size(labels)) && base != QLatin1String("temp1"))
                continue;
            if (rank >= bestRank)
                continue;
            if (const auto value = readMillidegrees(folder + QLatin1Char('/') + input)) {
                best = value;
                bestRank = rank;
            }
        }
        if (best)
            return best;
    }
    return std::nullopt;
}
