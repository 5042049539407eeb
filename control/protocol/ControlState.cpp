#include "ControlState.h"

#include <algorithm>
#include <cstring>

namespace nxproto {

const COLORREF kDefaultColors[kLedCount] = {0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200,
                                            0xFF00A7, 0x0000FF, 0x00FFD8, 0x3BFF00,
                                            0xFF6200, 0xFF00A7, 0x0000FF, 0x00FFD8};

namespace {

constexpr COLORREF kColorMask = 0x00FFFFFF;

} // namespace

bool operator==(const ModuleLighting& a, const ModuleLighting& b)
{
    return a.lightMode == b.lightMode && a.colorMode == b.colorMode &&
           a.lightSpeed == b.lightSpeed && a.turnOff == b.turnOff &&
           std::equal(std::begin(a.rgb), std::end(a.rgb), std::begin(b.rgb)) &&
           std::equal(std::begin(a.bright), std::end(a.bright), std::begin(b.bright)) &&
           a.singleRGB == b.singleRGB && a.singleBright == b.singleBright;
}

bool operator==(const ControlState& a, const ControlState& b)
{
    if (a.profile != b.profile ||
        !std::equal(std::begin(a.slotOrder), std::end(a.slotOrder), std::begin(b.slotOrder)))
        return false;
    for (int p = 0; p < kProfileCount; ++p) {
        for (int s = 0; s < kSlotCount; ++s) {
            if (a.profiles[p][s] != b.profiles[p][s])
                return false;
        }
    }
    return std::memcmp(&a.noti, &b.noti, sizeof a.noti) == 0 &&
           std::memcmp(&a.setting, &b.setting, sizeof a.setting) == 0;
}

void notificationToCells(const NotiEventData& noti, uint32_t (&cells)[kNotificationCells])
{
    static_assert(sizeof(NotiEventData) == sizeof cells, "fifteen cells");
    std::memcpy(cells, &noti, sizeof cells);
}

NotiEventData notificationFromCells(const uint32_t (&cells)[kNotificationCells])
{
    NotiEventData noti;
    std::memcpy(&noti, cells, sizeof noti);
    return noti;
}

ModuleLighting defaultModuleLighting()
{
    ModuleLighting module;
    std::copy(std::begin(kDefaultColors), std::end(kDefaultColors), module.rgb);
    std::fill(std::begin(module.bright), std::end(module.bright), 1.0f);
    return module;
}

NotiEventData defaultNotification()
{
    NotiEventData noti = {};
    noti.changedItem = 1;
    noti.loadingSwitch = false;
    noti.loadingValue = 80;
    noti.loadingColor = 0x0000FF;
    noti.shutdownMemorySwitch = false;
    noti.shutdownMemoryValue = 85;
    noti.shutdownMemoryUnit = 0;
    noti.fanSpeedSwitch = false;
    noti.fanSpeedValue = 70;
    noti.fanSpeedUnit = 0;
    noti.shutdownCPUSwitch = false;
    noti.shutdownCPUValue = 95;
    noti.shutdownCPUUnit = 0;
    return noti;
}

SettingData defaultSetting()
{
    SettingData setting = {};
    setting.languageIndex = 0;
    setting.autoUpdate = true;
    setting.autoRun = true;
    setting.currentLocation = false;
    return setting;
}

ControlState defaultControlState()
{
    ControlState state;
    for (int s = 0; s < kSlotCount; ++s)
        state.slotOrder[s] = s;
    const ModuleLighting module = defaultModuleLighting();
    for (auto& profile : state.profiles)
        std::fill(std::begin(profile), std::end(profile), module);
    state.noti = defaultNotification();
    state.setting = defaultSetting();
    return state;
}

uint32_t applyRequest(ControlState& state, const Request& request)
{
    switch (request.type) {
    case MessageType::SetLighting: {
        ModuleLighting& module = state.profiles[request.profile][request.slot];
        const ModuleLighting before = module;
        module.lightMode = request.lightMode;
        module.colorMode = request.colorMode;
        module.lightSpeed = request.lightSpeed;
        module.turnOff = request.turnOff;
        return module != before ? uint32_t(ChangeLighting) : 0u;
    }
    case MessageType::SetColors: {
        ModuleLighting& module = state.profiles[request.profile][request.slot];
        const ModuleLighting before = module;
        for (int i = 0; i < request.count; ++i) {
            module.rgb[i] = request.rgb[i] & kColorMask;
            module.bright[i] = request.bright[i];
        }
        module.singleRGB = request.singleRGB & kColorMask;
        module.singleBright = request.singleBright;
        return module != before ? uint32_t(ChangeColors) : 0u;
    }
    case MessageType::SetSlotOrder: {
        if (std::equal(request.order, request.order + request.count, state.slotOrder))
            return 0;
        std::copy(request.order, request.order + request.count, state.slotOrder);
        return ChangeSlotOrder;
    }
    case MessageType::SetProfile:
        if (state.profile == request.profile)
            return 0;
        state.profile = request.profile;
        return ChangeProfile;
    case MessageType::SetNotification: {
        // The item number only says what the sender touched: a record that differs in nothing
        // else changes no rule. The panel re-sends its rules whenever it is shown them, so
        // calling that a change would echo for ever. Byte-wise, so that a boolean cell's spare
        // bytes count as they are stored.
        NotiEventData previous = state.noti;
        previous.changedItem = request.noti.changedItem;
        if (std::memcmp(&previous, &request.noti, sizeof previous) == 0)
            return 0;
        state.noti = request.noti;
        return ChangeNotification;
    }
    case MessageType::SetSetting:
        if (std::memcmp(&state.setting, &request.setting, sizeof state.setting) == 0)
            return 0;
        state.setting = request.setting;
        return ChangeSetting;
    default:
        return 0;
    }
}

} // namespace nxproto
