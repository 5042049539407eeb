#include "SpdEeproms.h"

#include "Hwmon.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

constexpr qint64 kMaxImage = 1024;

} // namespace

std::vector<SpdEeproms::Eeprom> SpdEeproms::scan(const QString& root)
{
    std::vector<Eeprom> eeproms;
    for (const char* driver : {"ee1004", "spd5118"}) {
        const QDir dir(root + QStringLiteral("/sys/bus/i2c/drivers/") + QLatin1String(driver));
        const QStringList devices = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QString& device : devices) {
            Eeprom eeprom;
            if (!Hwmon::parseI2cName(device, &eeprom.bus, &eeprom.address))
                continue;
            QFile file(dir.filePath(device) + QStringLiteral("/eeprom"));
            if (file.open(QIODevice::ReadOnly))
                eeprom.spd = SpdInfo::decode(file.read(kMaxImage));
            eeproms.push_back(eeprom);
        }
    }
    std::sort(eeproms.begin(), eeproms.end(), [](const Eeprom& a, const Eeprom& b) {
        return a.bus != b.bus ? a.bus < b.bus : a.address < b.address;
    });
    return eeproms;
}
