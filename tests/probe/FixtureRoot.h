#pragma once

// Builds the files the probe reads, from their public layouts, below a temporary root:
// SMBIOS structures, SPD EEPROM images, hwmon folders and /proc/meminfo.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdint>
#include <tuple>

namespace fixture {

inline void put(QByteArray& b, int offset, uint32_t v, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        b[offset + i] = char((v >> (8 * i)) & 0xFF);
}

// One structure: header, formatted area of `length` bytes, the strings, the double NUL.
inline QByteArray structure(uint8_t type, int length, uint16_t handle,
                            const QStringList& strings = {})
{
    QByteArray s(length, '\0');
    s[0] = char(type);
    s[1] = char(length);
    put(s, 2, handle, 2);
    for (const QString& text : strings)
        s += text.toLatin1() + '\0';
    return s + (strings.isEmpty() ? QByteArray(2, '\0') : QByteArray(1, '\0'));
}

// Type 16, system memory.
inline QByteArray memoryArray(int count)
{
    QByteArray s = structure(16, 0x17, 0x1000);
    s[0x07] = 0x03; // use: system memory
    put(s, 0x0D, uint16_t(count), 2);
    return s;
}

struct Device {
    uint16_t size = 0;         // the 16-bit size word
    uint32_t extendedSize = 0; // MB, used with size 0x7FFF
    uint8_t type = 0x1A;       // DDR4
    uint16_t speed = 0;        // rated, MT/s
    uint16_t configured = 0;   // configured, MT/s
    uint32_t extendedConfigured = 0;
    QString locator;
    QString bank;
    QString part;
};

// Type 17 of SMBIOS 3.3 (0x5C bytes).
inline QByteArray memoryDevice(const Device& d, uint16_t handle)
{
    QStringList strings;
    QByteArray s(0x5C, '\0');
    for (const auto& [offset, text] :
         {std::pair{0x10, d.locator}, {0x11, d.bank}, {0x1A, d.part}}) {
        if (!text.isEmpty()) {
            strings << text;
            s[offset] = char(strings.size());
        }
    }
    put(s, 0x04, 0x1000, 2);
    put(s, 0x0C, d.size, 2);
    put(s, 0x1C, d.extendedSize, 4);
    s[0x0E] = 0x09; // DIMM
    s[0x12] = char(d.type);
    put(s, 0x15, d.speed, 2);
    put(s, 0x20, d.configured, 2);
    put(s, 0x58, d.extendedConfigured, 4);
    return structure(17, 0x5C, handle, strings).replace(4, 0x5C - 4, s.mid(4));
}

inline QByteArray endOfTable()
{
    return structure(127, 4, 0xFFFE);
}

// DDR4 SPD (512 bytes): times in ps split into 125 ps units and a signed fine correction.
inline QByteArray ddr4Spd(int tckPs, int taaPs, int trcdPs, uint32_t casFlags,
                          const QByteArray& part = "DDR4-TEST-PART")
{
    QByteArray b(512, '\0');
    b[2] = 0x0C;
    for (const auto& [coarse, fine, ps] :
         {std::tuple{18, 125, tckPs}, {24, 123, taaPs}, {25, 122, trcdPs}}) {
        const int units = (ps + 124) / 125; // round up, correct downward
        b[coarse] = char(units);
        b[fine] = char(int8_t(ps - units * 125));
    }
    put(b, 20, casFlags, 4);
    return b.replace(329, 20, part.leftJustified(20, ' '));
}

// DDR5 SPD (1024 bytes): times in ps, CAS latencies as CL 20 + 2 * bit.
inline QByteArray ddr5Spd(int tckPs, int taaPs, int trcdPs, const QList<int>& latencies,
                          const QByteArray& part = "DDR5-TEST-PART")
{
    QByteArray b(1024, '\0');
    b[2] = 0x12;
    put(b, 20, uint16_t(tckPs), 2);
    put(b, 30, uint16_t(taaPs), 2);
    put(b, 32, uint16_t(trcdPs), 2);
    for (int cl : latencies) {
        const int bit = (cl - 20) / 2;
        b[24 + bit / 8] = char(uint8_t(b[24 + bit / 8]) | (1 << (bit % 8)));
    }
    return b.replace(521, 30, part.leftJustified(30, ' '));
}

class Root
{
public:
    QString path() const { return dir_.path(); }
    QString file(const QString& relative) const { return path() + QLatin1Char('/') + relative; }

    void write(const QString& relative, const QByteArray& content)
    {
        QDir().mkpath(QFileInfo(file(relative)).absolutePath());
        QFile f(file(relative));
        f.open(QIODevice::WriteOnly);
        f.write(content);
    }
    void mkdir(const QString& relative) { QDir().mkpath(file(relative)); }

    void meminfo(qint64 totalKB, qint64 availableKB)
    {
        write(QStringLiteral("proc/meminfo"),
              QStringLiteral("MemTotal: %1 kB\nMemFree: 1000 kB\nMemAvailable: %2 kB\n")
                  .arg(totalKB)
                  .arg(availableKB)
                  .toLatin1());
    }
    void dmiTable(const QByteArray& table)
    {
        write(QStringLiteral("sys/firmware/dmi/tables/DMI"), table);
    }
    // An EEPROM bound to `driver` ("ee1004", "spd5118") at "<bus>-00<address>".
    void eeprom(const char* driver, int bus, int address, const QByteArray& image)
    {
        write(QStringLiteral("sys/bus/i2c/drivers/%1/%2-%3/eeprom")
                  .arg(QLatin1String(driver))
                  .arg(bus)
                  .arg(address, 4, 16, QLatin1Char('0')),
              image);
    }
    // hwmon<index>, its I2C `device` if any, temps as {"temp1", millidegrees or "-", label}.
    void hwmon(int index, const QByteArray& name, const QString& device,
               const QList<QStringList>& temps)
    {
        const QString folder = QStringLiteral("sys/class/hwmon/hwmon%1/").arg(index);
        write(folder + QStringLiteral("name"), name + '\n');
        if (!device.isEmpty()) {
            mkdir(QStringLiteral("sys/devices/i2c/") + device);
            QFile::link(file(QStringLiteral("sys/devices/i2c/") + device),
                        file(folder + QStringLiteral("device")));
        }
        for (const QStringList& t : temps) {
            if (t.value(1) != QLatin1String("-"))
                write(folder + t.at(0) + QStringLiteral("_input"), t.at(1).toLatin1() + '\n');
            if (!t.value(2).isEmpty())
                write(folder + t.at(0) + QStringLiteral("_label"), t.at(2).toLatin1() + '\n');
        }
    }

private:
    QTemporaryDir dir_;
};

} // namespace fixture
