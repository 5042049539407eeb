#pragma once

// The description of one controller as REQUEST_CONTROLLER_DATA answers it, in the layouts of
// protocol versions 0 to 5, and the blocks that UPDATEMODE and the LED updates carry.

#include <cstdint>
#include <string>
#include <vector>

namespace orgb {

// 0x00BBGGRR, as on the wire (red first, one pad byte).
using Color = uint32_t;

enum DeviceType : int32_t { DeviceMotherboard = 0, DeviceDram = 1 };
enum ZoneType : int32_t { ZoneSingle = 0, ZoneLinear = 1, ZoneMatrix = 2 };

enum ModeFlag : uint32_t {
    ModeHasSpeed = 1u << 0,
    ModeHasBrightness = 1u << 4,
    ModeHasPerLedColor = 1u << 5,
    ModeHasModeSpecificColor = 1u << 6,
    ModeHasRandomColor = 1u << 7,
};

enum ColorMode : uint32_t {
    ColorModeNone = 0,
    ColorModePerLed = 1,
    ColorModeModeSpecific = 2,
    ColorModeRandom = 3,
};

struct Mode {
    std::string name;
    int32_t value = 0;
    uint32_t flags = 0;
    uint32_t speedMin = 0;
    uint32_t speedMax = 0;
    uint32_t brightnessMin = 0; // protocol 3 on
    uint32_t brightnessMax = 0;
    uint32_t colorsMin = 0;
    uint32_t colorsMax = 0;
    uint32_t speed = 0;
    uint32_t brightness = 0;
    uint32_t direction = 0;
    uint32_t colorMode = ColorModeNone;
    std::vector<Color> colors;

    bool operator==(const Mode& other) const;
};

struct Segment { // protocol 4 on
    std::string name;
    int32_t type = ZoneLinear;
    uint32_t startIndex = 0;
    uint32_t ledCount = 0;

    bool operator==(const Segment& other) const;
};

struct Zone {
    std::string name;
    int32_t type = ZoneLinear;
    uint32_t ledsMin = 0;
    uint32_t ledsMax = 0;
    uint32_t ledsCount = 0;
    uint32_t matrixHeight = 0; // both 0 when the zone has no matrix map
    uint32_t matrixWidth = 0;
    std::vector<uint32_t> matrix;
    std::vector<Segment> segments; // protocol 4 on
    uint32_t flags = 0;            // protocol 5 on

    bool operator==(const Zone& other) const;
};

struct Led {
    std::string name;
    uint32_t value = 0;

    bool operator==(const Led& other) const;
};

struct Controller {
    int32_t type = DeviceDram;
    std::string name;
    std::string vendor; // protocol 1 on
    std::string description;
    std::string version;
    std::string serial;
    std::string location;
    int32_t activeMode = 0;
    std::vector<Mode> modes;
    std::vector<Zone> zones;
    std::vector<Led> leds;
    std::vector<Color> colors;
    std::vector<std::string> ledAltNames; // protocol 5 on
    uint32_t flags = 0;                   // protocol 5 on

    bool operator==(const Controller& other) const;
    // Index of the mode of that name, ignoring case; -1 when there is none.
    int findMode(const std::string& name) const;
};

// The whole answer body: data_size, then the description in the layout of `version`.
std::vector<uint8_t> encodeController(const Controller& controller, uint32_t version);
// False with a reason when the block is short, long, or an inner count or size disagrees with
// the bytes that hold it; `out` is then unspecified.
bool decodeController(const std::vector<uint8_t>& body, uint32_t version, Controller* out,
                      std::string* error);

// UPDATEMODE / SAVEMODE: data_size, mode index, the mode.
std::vector<uint8_t> encodeModeUpdate(int32_t index, const Mode& mode, uint32_t version);
bool decodeModeUpdate(const std::vector<uint8_t>& body, uint32_t version, int32_t* index,
                      Mode* mode, std::string* error);

// UPDATELEDS: data_size, count, colours.
std::vector<uint8_t> encodeLedUpdate(const std::vector<Color>& colors);
bool decodeLedUpdate(const std::vector<uint8_t>& body, std::vector<Color>* colors,
                     std::string* error);

// UPDATEZONELEDS: data_size, zone index, count, colours.
std::vector<uint8_t> encodeZoneLedUpdate(uint32_t zone, const std::vector<Color>& colors);
bool decodeZoneLedUpdate(const std::vector<uint8_t>& body, uint32_t* zone,
                         std::vector<Color>* colors, std::string* error);

// UPDATESINGLELED: LED index, colour.
std::vector<uint8_t> encodeSingleLedUpdate(int32_t led, Color color);
bool decodeSingleLedUpdate(const std::vector<uint8_t>& body, int32_t* led, Color* color,
                           std::string* error);

} // namespace orgb
