#include "Request.h"

#include <cmath>

namespace nxproto {

namespace {

bool inRange(int32_t value, int32_t low, int32_t high)
{
    return value >= low && value <= high;
}

bool validBrightness(float value)
{
    return std::isfinite(value) && value >= 0.0f && value <= 1.0f;
}

} // namespace

bool isRequestType(uint16_t type)
{
    return type == static_cast<uint16_t>(MessageType::Hello) ||
           (type >= static_cast<uint16_t>(MessageType::SetLighting) &&
            type <= static_cast<uint16_t>(MessageType::SetPreview));
}

std::string validateRequest(const Request& request)
{
    switch (request.type) {
    case MessageType::SetLighting:
        if (!inRange(request.profile, 0, kProfileCount - 1))
            return "profile out of range";
        if (!inRange(request.slot, 0, kSlotCount - 1))
            return "slot out of range";
        if (!inRange(request.lightMode, 0, kMaxLightMode))
            return "light mode out of range";
        if (!inRange(request.colorMode, 0, kMaxColorMode))
            return "colour mode out of range";
        if (!inRange(request.lightSpeed, 0, kMaxLightSpeed))
            return "light speed out of range";
        return {};
    case MessageType::SetColors:
        if (!inRange(request.profile, 0, kProfileCount - 1))
            return "profile out of range";
        if (!inRange(request.slot, 0, kSlotCount - 1))
            return "slot out of range";
        if (!inRange(request.count, 0, kLedCount))
            return "colour count out of range";
        for (int i = 0; i < request.count; ++i) {
            if (!validBrightness(request.bright[i]))
                return "brightness not within 0..1";
        }
        if (!validBrightness(request.singleBright))
            return "single brightness not within 0..1";
        return {};
    case MessageType::SetSlotOrder:
        if (!inRange(request.count, 0, kSlotCount))
            return "slot count out of range";
        for (int i = 0; i < request.count; ++i) {
            if (!inRange(request.order[i], 0, kSlotCount - 1))
                return "slot out of range";
        }
        return {};
    case MessageType::SetProfile:
        if (!inRange(request.profile, 0, kProfileCount - 1))
            return "profile out of range";
        return {};
    case MessageType::Hello:
        return request.clientId != 0 ? std::string() : "client identity missing";
    case MessageType::SetNotification:
    case MessageType::SetSetting:
    case MessageType::SetPreview:
        return {};
    default:
        return "not a request";
    }
}

} // namespace nxproto
