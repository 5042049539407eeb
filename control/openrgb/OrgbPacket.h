#pragma once

// Framing of the OpenRGB SDK protocol. Every packet is a 16-byte header
//   char[4] magic "ORGB", u32 device index, u32 packet id, u32 body size (little-endian)
// followed by the body. Strings inside bodies are a u16 length (NUL included) and the bytes.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orgb {

constexpr uint16_t kDefaultPort = 6742;
constexpr std::size_t kHeaderSize = 16;
// Bodies past this are refused; a DRAM controller's description is a few kilobytes.
constexpr uint32_t kMaxBodySize = 1024 * 1024;
// Highest protocol version we speak: indexed device ids, zone and controller flags.
constexpr uint32_t kProtocolVersion = 5;

enum PacketId : uint32_t {
    RequestControllerCount = 0,
    RequestControllerData = 1,
    RequestProtocolVersion = 40,
    SetClientName = 50,
    DeviceListUpdated = 100,
    RequestRescanDevices = 140,
    ResizeZone = 1000,
    UpdateLeds = 1050,
    UpdateZoneLeds = 1051,
    UpdateSingleLed = 1052,
    SetCustomMode = 1100,
    UpdateMode = 1101,
    SaveMode = 1102,
};

struct Packet {
    uint32_t device = 0;
    uint32_t id = 0;
    std::vector<uint8_t> body;
};

std::vector<uint8_t> encodePacket(uint32_t device, uint32_t id, const std::vector<uint8_t>& body);
std::vector<uint8_t> encodePacket(uint32_t device, uint32_t id);

// A body that is one u32 (protocol version, controller count).
std::vector<uint8_t> encodeU32(uint32_t value);
bool decodeU32(const std::vector<uint8_t>& body, uint32_t* value);

// A NUL-terminated string body (client name).
std::vector<uint8_t> encodeName(const std::string& name);
// The bytes up to the first NUL; false when the body holds none.
bool decodeName(const std::vector<uint8_t>& body, std::string* name);

// u16 length with the NUL, bytes, NUL. Longer strings are cut.
void writeString(std::vector<uint8_t>& out, const std::string& text);

} // namespace orgb
