#pragma once

// Controller descriptions written out field by field from the published layout, as an
// OpenRGB server sends them, independently of the encoder under test.

#include "ControllerData.h"

#include <QByteArray>
#include <QtEndian>

#include <string>
#include <vector>

class Recording
{
public:
    void u16(quint16 v) { put(v); }
    void u32(quint32 v) { put(v); }
    void str(const char* text)
    {
        u16(quint16(qstrlen(text) + 1));
        bytes_.append(text, int(qstrlen(text)) + 1);
    }
    // Prefixes the data_size field, which counts itself.
    std::vector<uint8_t> sized() const
    {
        Recording out;
        out.u32(quint32(bytes_.size() + 4));
        out.bytes_.append(bytes_);
        return std::vector<uint8_t>(out.bytes_.begin(), out.bytes_.end());
    }

private:
    template <typename T> void put(T v)
    {
        v = qToLittleEndian(v);
        bytes_.append(reinterpret_cast<const char*>(&v), int(sizeof v));
    }

    QByteArray bytes_;
};

// A DRAM controller (Direct, Static with one colour, one linear zone) as sent at protocol 3-5.
inline std::vector<uint8_t> recordedDram(unsigned version, const char* location, int leds)
{
    Recording r;
    r.u32(1); // DRAM
    for (const char* text : {"ENE DRAM", "ENE", "ENE SMBus Device", "DIMM_LED-0103", "", location})
        r.str(text);
    r.u16(2); // modes
    r.u32(1); // active: Static
    r.str("Direct");
    // value, flags, speed min and max, brightness min and max, colours min and max, speed,
    // brightness, direction
    for (quint32 v : {0xFFFFu, 0x20u, 0u, 0u, 0u, 0u, 0u, 0u, 0u, 0u, 0u})
        r.u32(v);
    r.u32(1); // per LED
    r.u16(0);
    r.str("Static");
    for (quint32 v : {1u, 0x40u, 0u, 0u, 0u, 255u, 1u, 1u, 0u, 200u, 0u})
        r.u32(v);
    r.u32(2); // mode specific
    r.u16(1);
    r.u32(0x0000FF);
    r.u16(1); // zones
    r.str("DRAM");
    for (quint32 v : {1, leds, leds, leds}) // linear, LEDs min, max and count
        r.u32(v);
    r.u16(0); // no matrix
    if (version >= 4)
        r.u16(0); // segments
    if (version >= 5)
        r.u32(0);
    r.u16(quint16(leds));
    for (int i = 0; i < leds; ++i) {
        r.str(("DRAM LED " + std::to_string(i + 1)).c_str());
        r.u32(quint32(i));
    }
    r.u16(quint16(leds));
    for (int i = 0; i < leds; ++i)
        r.u32(0x00FF00);
    if (version >= 5) {
        r.u16(0);
        r.u32(0);
    }
    return r.sized();
}

inline orgb::Controller expectedDram(const char* location, int leds)
{
    const uint32_t n = uint32_t(leds);
    // name, value, flags, speed min and max, brightness min and max, colours min and max,
    // speed, brightness, direction, colour mode, colours
    const orgb::Mode direct{"Direct", 0xFFFF, 0x20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, {}};
    const orgb::Mode fixed{"Static", 1, 0x40, 0, 0, 0, 255, 1, 1, 0, 200, 0, 2, {0x0000FF}};
    const orgb::Zone zone{"DRAM", orgb::ZoneLinear, n, n, n, 0, 0, {}, {}, 0};
    orgb::Controller c;
    c.name = "ENE DRAM";
    c.vendor = "ENE";
    c.description = "ENE SMBus Device";
    c.version = "DIMM_LED-0103";
    c.location = location;
    c.activeMode = 1;
    c.modes = {direct, fixed};
    c.zones = {zone};
    for (uint32_t i = 0; i < n; ++i) {
        c.leds.push_back({"DRAM LED " + std::to_string(i + 1), i});
        c.colors.push_back(0x00FF00);
    }
    return c;
}
