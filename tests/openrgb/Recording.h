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
    void u16(quint16 v)
    {
        char b[2];
        qToLittleEndian(v, b);
        bytes_.append(b, 2);
    }
    void u32(quint32 v)
    {
        char b[4];
        qToLittleEndian(v, b);
        bytes_.append(b, 4);
    }
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
    QByteArray bytes_;
};

// A typical SMBus DRAM controller: Direct, Static with one colour, one linear zone; as sent at
// protocol 3 to 5.
inline std::vector<uint8_t> recordedDram(unsigned version, const char* location, int leds)
{
    Recording r;
    r.u32(1); // DRAM
    r.str("ENE DRAM");
    r.str("ENE");
    r.str("ENE SMBus Device");
    r.str("DIMM_LED-0103");
    r.str("");
    r.str(location);
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
    r.u32(1); // linear
    r.u32(quint32(leds));
    r.u32(quint32(leds));
    r.u32(quint32(leds));
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
    orgb::Controller c;
    c.type = orgb::DeviceDram;
    c.name = "ENE DRAM";
    c.vendor = "ENE";
    c.description = "ENE SMBus Device";
    c.version = "DIMM_LED-0103";
    c.location = location;
    c.activeMode = 1;
    orgb::Mode direct;
    direct.name = "Direct";
    direct.value = 0xFFFF;
    direct.flags = 0x20;
    direct.colorMode = 1;
    orgb::Mode fixed;
    fixed.name = "Static";
    fixed.value = 1;
    fixed.flags = 0x40;
    fixed.brightnessMax = 255;
    fixed.brightness = 200;
    fixed.colorsMin = fixed.colorsMax = 1;
    fixed.colorMode = 2;
    fixed.colors = {0x0000FF};
    c.modes = {direct, fixed};
    orgb::Zone zone;
    zone.name = "DRAM";
    zone.type = orgb::ZoneLinear;
    zone.ledsMin = zone.ledsMax = zone.ledsCount = uint32_t(leds);
    c.zones = {zone};
    for (int i = 0; i < leds; ++i) {
        c.leds.push_back({"DRAM LED " + std::to_string(i + 1), uint32_t(i)});
        c.colors.push_back(0x00FF00);
    }
    return c;
}
