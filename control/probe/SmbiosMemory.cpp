#include "SmbiosMemory.h"

#include <QList>

#include <cstdint>

namespace {

constexpr int kHeaderLength = 4;
constexpr uint8_t kTypeMemoryArray = 16;
constexpr uint8_t kTypeMemoryDevice = 17;
constexpr uint8_t kTypeEndOfTable = 127;
constexpr uint8_t kUseSystemMemory = 0x03;

constexpr uint16_t kSizeUnknown = 0xFFFF;
constexpr uint16_t kSizeExtended = 0x7FFF;
constexpr uint16_t kSizeInKB = 0x8000;
constexpr uint16_t kSpeedExtended = 0xFFFF;

// One structure: its formatted area and its string set.
struct Structure {
    const uint8_t* data = nullptr;
    int length = 0;
    QList<QByteArray> strings;

    int byte(int offset) const { return offset < length ? data[offset] : -1; }
    long word(int offset) const
    {
        return offset + 1 < length ? long(data[offset] | data[offset + 1] << 8) : -1;
    }
    long long dword(int offset) const
    {
        if (offset + 3 >= length)
            return -1;
        return static_cast<long long>(uint32_t(data[offset]) | uint32_t(data[offset + 1]) << 8 |
                                      uint32_t(data[offset + 2]) << 16 |
                                      uint32_t(data[offset + 3]) << 24);
    }
    QString string(int offset) const
    {
        const int index = byte(offset);
        if (index <= 0 || index > strings.size())
            return {};
        return QString::fromLatin1(strings.at(index - 1)).trimmed();
    }
};

int deviceSize(const Structure& s)
{
    const long size = s.word(0x0C);
    if (size < 0 || size == kSizeUnknown)
        return -1;
    if (size == kSizeExtended) {
        const long long extended = s.dword(0x1C);
        return extended < 0 ? -1 : int(extended & 0x7FFFFFFF);
    }
    if (size & kSizeInKB)
        return int((size & 0x7FFF) / 1024);
    return int(size);
}

int speedField(const Structure& s, int offset, int extendedOffset)
{
    const long speed = s.word(offset);
    if (speed == kSpeedExtended) {
        const long long extended = s.dword(extendedOffset);
        return extended <= 0 ? -1 : int(extended & 0x7FFFFFFF);
    }
    return speed > 0 ? int(speed) : -1;
}

MemoryDevice decodeDevice(const Structure& s)
{
    MemoryDevice device;
    const long size = s.word(0x0C);
    device.present = size > 0;
    device.locator = s.string(0x10);
    device.bankLocator = s.string(0x11);
    if (!device.present)
        return device;
    device.sizeMB = deviceSize(s);
    device.type = SmbiosMemory::memoryTypeName(s.byte(0x12));
    device.speedMTs = speedField(s, 0x20, 0x58);
    if (device.speedMTs < 0)
        device.speedMTs = speedField(s, 0x15, 0x54);
    device.manufacturer = s.string(0x17);
    device.partNumber = s.string(0x1A);
    return device;
}

} // namespace

bool MemoryDevice::operator==(const MemoryDevice& other) const
{
    return present == other.present && sizeMB == other.sizeMB && type == other.type &&
           speedMTs == other.speedMTs && locator == other.locator &&
           bankLocator == other.bankLocator && manufacturer == other.manufacturer &&
           partNumber == other.partNumber;
}

QString SmbiosMemory::memoryTypeName(int value)
{
    static const char* const names[] = {
        nullptr, nullptr, nullptr,  "DRAM",   "EDRAM",        "VRAM",   "SRAM",   "RAM",
        "ROM",   "Flash", "EEPROM", "FEPROM", "EPROM",        "CDRAM",  "3DRAM",  "SDRAM",
        "SGRAM", "RDRAM", "DDR",    "DDR2",   "DDR2 FB-DIMM", nullptr,  nullptr,  nullptr,
        "DDR3",  "FBD2",  "DDR4",   "LPDDR",  "LPDDR2",       "LPDDR3", "LPDDR4", nullptr,
        "HBM",   "HBM2",  "DDR5",   "LPDDR5", "HBM3"};
    if (value < 0 || value >= int(sizeof names / sizeof names[0]) || !names[value])
        return {};
    return QString::fromLatin1(names[value]);
}

SmbiosMemory SmbiosMemory::decode(const QByteArray& table)
{
    SmbiosMemory memory;
    const auto* bytes = reinterpret_cast<const uint8_t*>(table.constData());
    const int total = table.size();
    int pos = 0;
    while (pos + kHeaderLength <= total) {
        Structure s;
        s.data = bytes + pos;
        s.length = bytes[pos + 1];
        const uint8_t type = bytes[pos];
        if (s.length < kHeaderLength || pos + s.length > total)
            break;
        // The string set runs to a double NUL.
        int end = pos + s.length;
        int start = end;
        bool terminated = false;
        while (end + 1 < total) {
            if (bytes[end] == 0) {
                if (end > start)
                    s.strings.append(
                        QByteArray(reinterpret_cast<const char*>(bytes + start), end - start));
                if (bytes[end + 1] == 0) {
                    terminated = true;
                    break;
                }
                start = end + 1;
            }
            ++end;
        }
        if (!terminated)
            break;
        if (type == kTypeMemoryArray && s.byte(0x07) == kUseSystemMemory) {
            const long count = s.word(0x0D);
            if (count > 0)
                memory.slotCount = qMax(memory.slotCount, 0) + int(count);
        } else if (type == kTypeMemoryDevice) {
            memory.devices.push_back(decodeDevice(s));
        } else if (type == kTypeEndOfTable) {
            break;
        }
        pos = end + 2;
    }
    if (memory.slotCount < 0 && !memory.devices.empty())
        memory.slotCount = int(memory.devices.size());
    return memory;
}
