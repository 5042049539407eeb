#include "ControllerData.h"

#include "BodyReader.h"
#include "OrgbPacket.h"

#include "ByteWriter.h"

#include <algorithm>
#include <cctype>

namespace orgb {

namespace {

using nxproto::ByteWriter;

constexpr uint32_t kMaxVersion = 5;
constexpr Color kColorMask = 0x00FFFFFF;
// Smallest encodings, for checking a count against the bytes left before trusting it.
constexpr std::size_t kMinStringSize = 3;
constexpr std::size_t kMinLedSize = kMinStringSize + 4;
constexpr std::size_t kMinSegmentSize = kMinStringSize + 12;
constexpr std::size_t kMinZoneSize = kMinStringSize + 18;
constexpr std::size_t kMinModeSize = kMinStringSize + 38;

bool fail(std::string* error, const std::string& reason)
{
    if (error)
        *error = reason;
    return false;
}

// True when `count` elements of at least `size` bytes each can follow.
bool fits(const BodyReader& in, std::size_t count, std::size_t size)
{
    return in.ok() && count <= in.remaining() / size;
}

void writeColors(ByteWriter& out, const std::vector<Color>& colors)
{
    for (Color color : colors)
        out.u32(color & kColorMask);
}

bool readColors(BodyReader& in, std::size_t count, std::vector<Color>* colors)
{
    if (!fits(in, count, 4))
        return false;
    colors->resize(count);
    for (Color& color : *colors)
        color = in.u32() & kColorMask;
    return in.ok();
}

std::size_t cappedCount(std::size_t size)
{
    return std::min<std::size_t>(size, 0xFFFF);
}

void writeMode(std::vector<uint8_t>& buffer, const Mode& mode, uint32_t version)
{
    writeString(buffer, mode.name);
    ByteWriter out(buffer);
    out.i32(mode.value);
    out.u32(mode.flags);
    out.u32(mode.speedMin);
    out.u32(mode.speedMax);
    if (version >= 3) {
        out.u32(mode.brightnessMin);
        out.u32(mode.brightnessMax);
    }
    out.u32(mode.colorsMin);
    out.u32(mode.colorsMax);
    out.u32(mode.speed);
    if (version >= 3)
        out.u32(mode.brightness);
    out.u32(mode.direction);
    out.u32(mode.colorMode);
    const std::size_t count = cappedCount(mode.colors.size());
    out.u16(static_cast<uint16_t>(count));
    writeColors(out, std::vector<Color>(mode.colors.begin(), mode.colors.begin() + count));
}

bool readMode(BodyReader& in, uint32_t version, Mode* mode)
{
    mode->name = in.string();
    mode->value = in.i32();
    mode->flags = in.u32();
    mode->speedMin = in.u32();
    mode->speedMax = in.u32();
    if (version >= 3) {
        mode->brightnessMin = in.u32();
        mode->brightnessMax = in.u32();
    }
    mode->colorsMin = in.u32();
    mode->colorsMax = in.u32();
    mode->speed = in.u32();
    if (version >= 3)
        mode->brightness = in.u32();
    mode->direction = in.u32();
    mode->colorMode = in.u32();
    const uint16_t count = in.u16();
    return readColors(in, count, &mode->colors);
}

void writeZone(std::vector<uint8_t>& buffer, const Zone& zone, uint32_t version)
{
    writeString(buffer, zone.name);
    ByteWriter out(buffer);
    out.i32(zone.type);
    out.u32(zone.ledsMin);
    out.u32(zone.ledsMax);
    out.u32(zone.ledsCount);
    const std::size_t cells = std::size_t(zone.matrixHeight) * zone.matrixWidth;
    if (cells == 0 || cells != zone.matrix.size() || 8 + cells * 4 > 0xFFFF) {
        out.u16(0);
    } else {
        out.u16(static_cast<uint16_t>(8 + cells * 4));
        out.u32(zone.matrixHeight);
        out.u32(zone.matrixWidth);
        for (uint32_t cell : zone.matrix)
            out.u32(cell);
    }
    if (version >= 4) {
        const std::size_t count = cappedCount(zone.segments.size());
        out.u16(static_cast<uint16_t>(count));
        for (std::size_t i = 0; i < count; ++i) {
            const Segment& segment = zone.segments[i];
            writeString(buffer, segment.name);
            out.i32(segment.type);
            out.u32(segment.startIndex);
            out.u32(segment.ledCount);
        }
    }
    if (version >= 5)
        out.u32(zone.flags);
}

bool readZone(BodyReader& in, uint32_t version, Zone* zone, std::string* error)
{
    zone->name = in.string();
    zone->type = in.i32();
    zone->ledsMin = in.u32();
    zone->ledsMax = in.u32();
    zone->ledsCount = in.u32();
    const uint16_t matrixSize = in.u16();
    if (!in.ok())
        return fail(error, "zone block is short");
    if (matrixSize != 0) {
        if (matrixSize < 8 || matrixSize > in.remaining())
            return fail(error, "zone matrix size disagrees with the data");
        zone->matrixHeight = in.u32();
        zone->matrixWidth = in.u32();
        const std::size_t cells = (matrixSize - 8u) / 4u;
        if ((matrixSize - 8u) % 4u != 0 || matrixSize == 8 ||
            uint64_t(zone->matrixHeight) * zone->matrixWidth != cells)
            return fail(error, "zone matrix size disagrees with its height and width");
        zone->matrix.resize(cells);
        for (uint32_t& cell : zone->matrix)
            cell = in.u32();
    }
    if (version >= 4) {
        const uint16_t count = in.u16();
        if (!fits(in, count, kMinSegmentSize))
            return fail(error, "segment count disagrees with the data");
        zone->segments.resize(count);
        for (Segment& segment : zone->segments) {
            segment.name = in.string();
            segment.type = in.i32();
            segment.startIndex = in.u32();
            segment.ledCount = in.u32();
        }
    }
    if (version >= 5)
        zone->flags = in.u32();
    return in.ok() || fail(error, "zone block is short");
}

} // namespace

bool Mode::operator==(const Mode& o) const
{
    return name == o.name && value == o.value && flags == o.flags && speedMin == o.speedMin &&
           speedMax == o.speedMax && brightnessMin == o.brightnessMin &&
           brightnessMax == o.brightnessMax && colorsMin == o.colorsMin &&
           colorsMax == o.colorsMax && speed == o.speed && brightness == o.brightness &&
           direction == o.direction && colorMode == o.colorMode && colors == o.colors;
}

bool Segment::operator==(const Segment& o) const
{
    return name == o.name && type == o.type && startIndex == o.startIndex && ledCount == o.ledCount;
}

bool Zone::operator==(const Zone& o) const
{
    return name == o.name && type == o.type && ledsMin == o.ledsMin && ledsMax == o.ledsMax &&
           ledsCount == o.ledsCount && matrixHeight == o.matrixHeight &&
           matrixWidth == o.matrixWidth && matrix == o.matrix && segments == o.segments &&
           flags == o.flags;
}

bool Led::operator==(const Led& o) const
{
    return name == o.name && value == o.value;
}

bool Controller::operator==(const Controller& o) const
{
    return type == o.type && name == o.name && vendor == o.vendor && description == o.description &&
           version == o.version && serial == o.serial && location == o.location &&
           activeMode == o.activeMode && modes == o.modes && zones == o.zones && leds == o.leds &&
           colors == o.colors && ledAltNames == o.ledAltNames && flags == o.flags;
}

int Controller::findMode(const std::string& wanted) const
{
    const auto same = [&wanted](const Mode& mode) {
        return std::equal(mode.name.begin(), mode.name.end(), wanted.begin(), wanted.end(),
                          [](char a, char b) {
                              return std::tolower(static_cast<unsigned char>(a)) ==
                                     std::tolower(static_cast<unsigned char>(b));
                          });
    };
    const auto found = std::find_if(modes.begin(), modes.end(), same);
    return found == modes.end() ? -1 : static_cast<int>(found - modes.begin());
}

std::vector<uint8_t> encodeController(const Controller& c, uint32_t version)
{
    version = std::min(version, kMaxVersion);
    std::vector<uint8_t> buffer(4, 0); // data_size, filled in at the end
    ByteWriter out(buffer);
    out.i32(c.type);
    writeString(buffer, c.name);
    if (version >= 1)
        writeString(buffer, c.vendor);
    writeString(buffer, c.description);
    writeString(buffer, c.version);
    writeString(buffer, c.serial);
    writeString(buffer, c.location);
    const std::size_t modes = cappedCount(c.modes.size());
    out.u16(static_cast<uint16_t>(modes));
    out.i32(c.activeMode);
    for (std::size_t i = 0; i < modes; ++i)
        writeMode(buffer, c.modes[i], version);
    const std::size_t zones = cappedCount(c.zones.size());
    out.u16(static_cast<uint16_t>(zones));
    for (std::size_t i = 0; i < zones; ++i)
        writeZone(buffer, c.zones[i], version);
    const std::size_t leds = cappedCount(c.leds.size());
    out.u16(static_cast<uint16_t>(leds));
    for (std::size_t i = 0; i < leds; ++i) {
        writeString(buffer, c.leds[i].name);
        out.u32(c.leds[i].value);
    }
    const std::size_t colors = cappedCount(c.colors.size());
    out.u16(static_cast<uint16_t>(colors));
    writeColors(out, std::vector<Color>(c.colors.begin(), c.colors.begin() + colors));
    if (version >= 5) {
        const std::size_t names = cappedCount(c.ledAltNames.size());
        out.u16(static_cast<uint16_t>(names));
        for (std::size_t i = 0; i < names; ++i)
            writeString(buffer, c.ledAltNames[i]);
        out.u32(c.flags);
    }
    const uint32_t size = static_cast<uint32_t>(buffer.size());
    for (int i = 0; i < 4; ++i)
        buffer[static_cast<std::size_t>(i)] = static_cast<uint8_t>(size >> (8 * i));
    return buffer;
}

bool decodeController(const std::vector<uint8_t>& body, uint32_t version, Controller* c,
                      std::string* error)
{
    if (version > kMaxVersion)
        return fail(error, "protocol version " + std::to_string(version) + " is not spoken");
    BodyReader in(body.data(), body.size());
    const uint32_t dataSize = in.u32();
    if (!in.ok() || dataSize != body.size())
        return fail(error, "data size disagrees with the packet size");
    *c = Controller();
    c->type = in.i32();
    c->name = in.string();
    if (version >= 1)
        c->vendor = in.string();
    c->description = in.string();
    c->version = in.string();
    c->serial = in.string();
    c->location = in.string();
    const uint16_t modes = in.u16();
    c->activeMode = in.i32();
    if (!fits(in, modes, kMinModeSize))
        return fail(error, "mode count disagrees with the data");
    c->modes.resize(modes);
    for (Mode& mode : c->modes) {
        if (!readMode(in, version, &mode))
            return fail(error, "mode block is short");
    }
    const uint16_t zones = in.u16();
    if (!fits(in, zones, kMinZoneSize))
        return fail(error, "zone count disagrees with the data");
    c->zones.resize(zones);
    for (Zone& zone : c->zones) {
        if (!readZone(in, version, &zone, error))
            return false;
    }
    const uint16_t leds = in.u16();
    if (!fits(in, leds, kMinLedSize))
        return fail(error, "LED count disagrees with the data");
    c->leds.resize(leds);
    for (Led& led : c->leds) {
        led.name = in.string();
        led.value = in.u32();
    }
    const uint16_t colors = in.u16();
    if (!readColors(in, colors, &c->colors))
        return fail(error, "colour count disagrees with the data");
    if (version >= 5) {
        const uint16_t names = in.u16();
        if (!fits(in, names, kMinStringSize))
            return fail(error, "LED name count disagrees with the data");
        c->ledAltNames.resize(names);
        for (std::string& name : c->ledAltNames)
            name = in.string();
        c->flags = in.u32();
    }
    if (!in.ok())
        return fail(error, "controller block is short");
    if (!in.atEnd())
        return fail(error, "controller block has bytes past its end");
    return true;
}

std::vector<uint8_t> encodeModeUpdate(int32_t index, const Mode& mode, uint32_t version)
{
    std::vector<uint8_t> buffer(4, 0);
    ByteWriter(buffer).i32(index);
    writeMode(buffer, mode, std::min(version, kMaxVersion));
    const uint32_t size = static_cast<uint32_t>(buffer.size());
    for (int i = 0; i < 4; ++i)
        buffer[static_cast<std::size_t>(i)] = static_cast<uint8_t>(size >> (8 * i));
    return buffer;
}

bool decodeModeUpdate(const std::vector<uint8_t>& body, uint32_t version, int32_t* index,
                      Mode* mode, std::string* error)
{
    BodyReader in(body.data(), body.size());
    const uint32_t dataSize = in.u32();
    if (!in.ok() || dataSize != body.size())
        return fail(error, "data size disagrees with the packet size");
    *index = in.i32();
    *mode = Mode();
    if (!readMode(in, std::min(version, kMaxVersion), mode))
        return fail(error, "mode block is short");
    if (!in.atEnd())
        return fail(error, "mode block has bytes past its end");
    return true;
}

std::vector<uint8_t> encodeLedUpdate(const std::vector<Color>& colors)
{
    const std::size_t count = cappedCount(colors.size());
    std::vector<uint8_t> buffer;
    buffer.reserve(6 + count * 4);
    ByteWriter out(buffer);
    out.u32(static_cast<uint32_t>(6 + count * 4));
    out.u16(static_cast<uint16_t>(count));
    for (std::size_t i = 0; i < count; ++i)
        out.u32(colors[i] & kColorMask);
    return buffer;
}

bool decodeLedUpdate(const std::vector<uint8_t>& body, std::vector<Color>* colors,
                     std::string* error)
{
    BodyReader in(body.data(), body.size());
    const uint32_t dataSize = in.u32();
    const uint16_t count = in.u16();
    if (!in.ok() || dataSize != body.size() || body.size() != 6 + std::size_t(count) * 4)
        return fail(error, "LED update sizes disagree with the packet size");
    return readColors(in, count, colors);
}

std::vector<uint8_t> encodeZoneLedUpdate(uint32_t zone, const std::vector<Color>& colors)
{
    const std::size_t count = cappedCount(colors.size());
    std::vector<uint8_t> buffer;
    ByteWriter out(buffer);
    out.u32(static_cast<uint32_t>(10 + count * 4));
    out.u32(zone);
    out.u16(static_cast<uint16_t>(count));
    for (std::size_t i = 0; i < count; ++i)
        out.u32(colors[i] & kColorMask);
    return buffer;
}

bool decodeZoneLedUpdate(const std::vector<uint8_t>& body, uint32_t* zone,
                         std::vector<Color>* colors, std::string* error)
{
    BodyReader in(body.data(), body.size());
    const uint32_t dataSize = in.u32();
    *zone = in.u32();
    const uint16_t count = in.u16();
    if (!in.ok() || dataSize != body.size() || body.size() != 10 + std::size_t(count) * 4)
        return fail(error, "zone LED update sizes disagree with the packet size");
    return readColors(in, count, colors);
}

std::vector<uint8_t> encodeSingleLedUpdate(int32_t led, Color color)
{
    std::vector<uint8_t> buffer;
    ByteWriter out(buffer);
    out.i32(led);
    out.u32(color & kColorMask);
    return buffer;
}

bool decodeSingleLedUpdate(const std::vector<uint8_t>& body, int32_t* led, Color* color,
                           std::string* error)
{
    if (body.size() != 8)
        return fail(error, "single LED update is not 8 bytes");
    BodyReader in(body.data(), body.size());
    *led = in.i32();
    *color = in.u32() & kColorMask;
    return true;
}

} // namespace orgb
