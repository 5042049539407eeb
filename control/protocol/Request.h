#pragma once

#include "norvalex_lighting.h"

#include <cstdint>
#include <string>

namespace nxproto {

constexpr int kSlotCount = NX_MODULE_COUNT;
constexpr int kLedCount = NX_LED_ARRAY;
constexpr int kProfileCount = 5;
constexpr int kMaxLightMode = 37;
constexpr int kMaxColorMode = 3;
constexpr int kMaxLightSpeed = 3;

enum class MessageType : uint16_t {
    // client to service
    Hello = 0x0001, // names the client, so that its requests apply once across reconnections
    SetLighting = 0x0010,
    SetColors = 0x0011,
    SetSlotOrder = 0x0012,
    SetProfile = 0x0013,
    SetNotification = 0x0014,
    SetSetting = 0x0015,
    SetPreview = 0x0016,
    // service to client
    State = 0x0080,
    Hardware = 0x0081,
    Preview = 0x0082,
    Error = 0x00FF,
};

// One client request. Only the fields of its type are meaningful; seq is chosen by the client
// and echoed back as the acknowledgement of the state that includes it.
struct Request {
    MessageType type = MessageType::SetProfile;
    uint32_t seq = 0;

    // SetLighting, SetColors
    int32_t slot = 0;
    // SetLighting
    int32_t lightMode = 0;
    int32_t colorMode = 0;
    int32_t lightSpeed = 0;
    bool turnOff = false;
    // SetColors: the first `count` entries of rgb and bright; SetSlotOrder: of order
    int32_t count = 0;
    COLORREF rgb[kLedCount] = {};
    float bright[kLedCount] = {};
    COLORREF singleRGB = 0;
    float singleBright = 0.0f;
    int32_t order[kSlotCount] = {};
    // SetProfile: the profile to show; SetLighting, SetColors: the profile the change is made
    // for, whichever is current when it arrives
    int32_t profile = 0;
    // SetNotification, SetSetting
    NotiEventData noti = {};
    SettingData setting = {};
    // SetPreview
    bool preview = false;
    // Hello: a random identity, kept for the life of the client; its seqs only grow
    uint64_t clientId = 0;
};

// Empty when the request may be applied, else why not.
std::string validateRequest(const Request& request);
bool isRequestType(uint16_t type);

} // namespace nxproto
