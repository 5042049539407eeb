#include "SpdDecoder.h"

#include <cstdint>

namespace {

constexpr uint8_t kDramDdr4 = 0x0C;
constexpr uint8_t kDramDdr5 = 0x12;
constexpr uint8_t kDramLpddr5 = 0x13;
constexpr uint8_t kDramLpddr5x = 0x15;

// DDR4: medium and fine time base of 125 ps and 1 ps, fine corrections are signed bytes.
constexpr int kDdr4Mtb = 125;
constexpr int kDdr4Size = 512;
constexpr int kDdr4TckMin = 18, kDdr4TckMinFine = 125;
constexpr int kDdr4CasFirst = 20; // four bytes of CAS latency flags
constexpr int kDdr4TaaMin = 24, kDdr4TaaMinFine = 123;
constexpr int kDdr4TrcdMin = 25, kDdr4TrcdMinFine = 122;
constexpr int kDdr4PartNumber = 329, kDdr4PartLength = 20;

// DDR5: times are 16-bit picosecond counts.
constexpr int kDdr5Size = 1024;
constexpr int kDdr5TckMin = 20;
constexpr int kDdr5CasFirst = 24; // five bytes of CAS latency flags, CL 20, 22, ...
constexpr int kDdr5TaaMin = 30;
constexpr int kDdr5TrcdMin = 32;
constexpr int kDdr5PartNumber = 521, kDdr5PartLength = 30;

int u8(const QByteArray& image, int offset)
{
    return static_cast<uint8_t>(image.at(offset));
}

int s8(const QByteArray& image, int offset)
{
    return static_cast<int8_t>(image.at(offset));
}

int u16(const QByteArray& image, int offset)
{
    return u8(image, offset) | u8(image, offset + 1) << 8;
}

QString asciiField(const QByteArray& image, int offset, int length)
{
    QString text;
    for (int i = 0; i < length; ++i) {
        const int c = u8(image, offset + i);
        if (c == 0)
            break;
        text += (c >= 0x20 && c < 0x7F) ? QChar(c) : QChar('?');
    }
    return text.trimmed();
}

int ddr4Time(const QByteArray& image, int coarse, int fine)
{
    return u8(image, coarse) * kDdr4Mtb + s8(image, fine);
}

SpdInfo decodeDdr4(const QByteArray& image)
{
    SpdInfo info;
    if (image.size() < kDdr4Size)
        return info;
    // Byte 17 selects the time bases; only 125 ps / 1 ps is defined.
    if ((u8(image, 17) & 0x0F) != 0)
        return info;
    info.generation = SpdInfo::Ddr4;
    info.tckMinPs = ddr4Time(image, kDdr4TckMin, kDdr4TckMinFine);
    info.taaMinPs = ddr4Time(image, kDdr4TaaMin, kDdr4TaaMinFine);
    info.trcdMinPs = ddr4Time(image, kDdr4TrcdMin, kDdr4TrcdMinFine);
    const uint32_t flags =
        uint32_t(u8(image, kDdr4CasFirst)) | uint32_t(u8(image, kDdr4CasFirst + 1)) << 8 |
        uint32_t(u8(image, kDdr4CasFirst + 2)) << 16 | uint32_t(u8(image, kDdr4CasFirst + 3)) << 24;
    // The top bit moves the range from CL 7..36 to CL 23..52.
    const int first = (flags & 0x80000000u) ? 23 : 7;
    for (int bit = 0; bit < 30; ++bit) {
        if (flags & (1u << bit))
            info.casLatencies.push_back(first + bit);
    }
    info.partNumber = asciiField(image, kDdr4PartNumber, kDdr4PartLength);
    return info;
}

SpdInfo decodeDdr5(const QByteArray& image)
{
    SpdInfo info;
    if (image.size() < kDdr5Size)
        return info;
    info.generation = SpdInfo::Ddr5;
    info.tckMinPs = u16(image, kDdr5TckMin);
    info.taaMinPs = u16(image, kDdr5TaaMin);
    info.trcdMinPs = u16(image, kDdr5TrcdMin);
    for (int bit = 0; bit < 40; ++bit) {
        if (u8(image, kDdr5CasFirst + bit / 8) & (1 << (bit % 8)))
            info.casLatencies.push_back(20 + 2 * bit);
    }
    info.partNumber = asciiField(image, kDdr5PartNumber, kDdr5PartLength);
    return info;
}

} // namespace

SpdInfo SpdInfo::decode(const QByteArray& image)
{
    if (image.size() < 3)
        return {};
    switch (u8(image, 2)) {
    case kDramDdr4:
        return decodeDdr4(image);
    case kDramDdr5:
    case kDramLpddr5:
    case kDramLpddr5x:
        return decodeDdr5(image);
    default:
        return {};
    }
}

int SpdInfo::clockPeriodPs(int speedMTs) const
{
    if (speedMTs > 0)
        return 2000000 / speedMTs;
    return tckMinPs;
}

int SpdInfo::cycles(int timePs, int tckPs) const
{
    if (timePs <= 0 || tckPs <= 0)
        return -1;
    const long long t = timePs;
    // DDR4 allows 2.5 % and DDR5 0.3 % below a whole cycle before rounding up.
    if (generation == Ddr5)
        return int((t * 997 / tckPs + 1000) / 1000);
    return int((t * 1000 / tckPs + 974) / 1000);
}

int SpdInfo::casLatency(int speedMTs) const
{
    if (!valid())
        return -1;
    const int needed = cycles(taaMinPs, clockPeriodPs(speedMTs));
    if (needed < 0)
        return -1;
    for (int cl : casLatencies) {
        if (cl >= needed)
            return cl;
    }
    // No supported latency is long enough (a speed beyond the module's rating): the cycle count
    // itself is what the timing asks for.
    return needed;
}

int SpdInfo::rasToCas(int speedMTs) const
{
    if (!valid())
        return -1;
    return cycles(trcdMinPs, clockPeriodPs(speedMTs));
}
