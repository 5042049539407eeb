#include "DmiCache.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

constexpr int kFormat = 1;
constexpr qint64 kMaxTableBytes = 1024 * 1024;

QString text(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

int number(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toInt(-1);
}

} // namespace

QString DmiCache::cachePath(const QString& root)
{
    return root + QStringLiteral("/run/norvalex/memory-dmi.json");
}

QString DmiCache::tablePath(const QString& root)
{
    return root + QStringLiteral("/sys/firmware/dmi/tables/DMI");
}

QByteArray DmiCache::toJson(const SmbiosMemory& memory)
{
    QJsonArray devices;
    for (const MemoryDevice& d : memory.devices) {
        devices.append(QJsonObject{{QStringLiteral("present"), d.present},
                                   {QStringLiteral("sizeMB"), d.sizeMB},
                                   {QStringLiteral("type"), d.type},
                                   {QStringLiteral("speedMTs"), d.speedMTs},
                                   {QStringLiteral("locator"), d.locator},
                                   {QStringLiteral("bankLocator"), d.bankLocator},
                                   {QStringLiteral("manufacturer"), d.manufacturer},
                                   {QStringLiteral("partNumber"), d.partNumber}});
    }
    const QJsonObject root{{QStringLiteral("format"), kFormat},
                           {QStringLiteral("slotCount"), memory.slotCount},
                           {QStringLiteral("devices"), devices}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

bool DmiCache::fromJson(const QByteArray& json, SmbiosMemory* memory)
{
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return false;
    const QJsonObject root = document.object();
    if (root.value(QLatin1String("format")).toInt() != kFormat ||
        !root.value(QLatin1String("devices")).isArray())
        return false;
    SmbiosMemory result;
    result.slotCount = number(root, "slotCount");
    const QJsonArray devices = root.value(QLatin1String("devices")).toArray();
    for (const QJsonValue& value : devices) {
        if (!value.isObject())
            return false;
        const QJsonObject o = value.toObject();
        MemoryDevice d;
        d.present = o.value(QLatin1String("present")).toBool();
        d.sizeMB = number(o, "sizeMB");
        d.type = text(o, "type");
        d.speedMTs = number(o, "speedMTs");
        d.locator = text(o, "locator");
        d.bankLocator = text(o, "bankLocator");
        d.manufacturer = text(o, "manufacturer");
        d.partNumber = text(o, "partNumber");
        result.devices.push_back(d);
    }
    *memory = result;
    return true;
}

bool DmiCache::write(const QString& path, const SmbiosMemory& memory, QString* error)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath())) {
        *error = QStringLiteral("cannot create the folder of ") + path;
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        *error = file.errorString();
        return false;
    }
    file.write(toJson(memory));
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup |
                        QFileDevice::ReadOther);
    if (!file.commit()) {
        *error = file.errorString();
        return false;
    }
    return true;
}

bool DmiCache::load(const QString& root, SmbiosMemory* memory, QString* source)
{
    QFile table(tablePath(root));
    if (table.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = table.read(kMaxTableBytes);
        SmbiosMemory decoded = SmbiosMemory::decode(bytes);
        if (!decoded.devices.empty()) {
            *memory = decoded;
            *source = QStringLiteral("SMBIOS table");
            return true;
        }
    }
    QFile cache(cachePath(root));
    if (cache.open(QIODevice::ReadOnly) && fromJson(cache.read(kMaxTableBytes), memory) &&
        !memory->devices.empty()) {
        *source = QStringLiteral("SMBIOS cache");
        return true;
    }
    return false;
}
