#include "Messages.h"

#include "ByteReader.h"
#include "ByteWriter.h"

#include <cmath>
#include <cstring>

namespace nxproto {

namespace {

uint16_t typeCode(MessageType type)
{
    return static_cast<uint16_t>(type);
}

bool failWith(std::string* error, const std::string& reason)
{
    if (error)
        *error = reason;
    return false;
}

bool inRange(int32_t value, int32_t low, int32_t high)
{
    return value >= low && value <= high;
}

bool validBrightness(float value)
{
    return std::isfinite(value) && value >= 0.0f && value <= 1.0f;
}

bool validText(const std::string& text)
{
    return text.size() <= kMaxTextLength && text.find('\0') == std::string::npos;
}

void writeSetting(ByteWriter& out, const SettingData& setting)
{
    uint8_t raw[sizeof(SettingData)];
    std::memcpy(raw, &setting, sizeof raw);
    out.i32(setting.languageIndex);
    out.bytes(raw + 4, 4);
}

SettingData readSetting(ByteReader& in)
{
    SettingData setting;
    uint8_t raw[sizeof(SettingData)];
    const int32_t language = in.i32();
    std::memcpy(raw, &language, 4);
    in.bytes(raw + 4, 4);
    std::memcpy(&setting, raw, sizeof setting);
    return setting;
}

void writeNotification(ByteWriter& out, const NotiEventData& noti)
{
    uint32_t cells[kNotificationCells];
    notificationToCells(noti, cells);
    for (uint32_t cell : cells)
        out.u32(cell);
}

NotiEventData readNotification(ByteReader& in)
{
    uint32_t cells[kNotificationCells];
    for (uint32_t& cell : cells)
        cell = in.u32();
    return notificationFromCells(cells);
}

void writeModule(ByteWriter& out, const ModuleLighting& module)
{
    out.i32(module.lightMode);
    out.i32(module.colorMode);
    out.i32(module.lightSpeed);
    out.u8(module.turnOff ? 1 : 0);
    for (COLORREF color : module.rgb)
        out.u32(color);
    for (float bright : module.bright)
        out.f32(bright);
    out.u32(module.singleRGB);
    out.f32(module.singleBright);
}

bool readModule(ByteReader& in, ModuleLighting& module, std::string* error)
{
    module.lightMode = in.i32();
    module.colorMode = in.i32();
    module.lightSpeed = in.i32();
    module.turnOff = in.u8() != 0;
    for (COLORREF& color : module.rgb)
        color = in.u32();
    for (float& bright : module.bright)
        bright = in.f32();
    module.singleRGB = in.u32();
    module.singleBright = in.f32();
    if (!in.ok())
        return failWith(error, "payload too short");
    if (!inRange(module.lightMode, 0, kMaxLightMode) ||
        !inRange(module.colorMode, 0, kMaxColorMode) ||
        !inRange(module.lightSpeed, 0, kMaxLightSpeed))
        return failWith(error, "module value out of range");
    for (float bright : module.bright) {
        if (!validBrightness(bright))
            return failWith(error, "brightness not within 0..1");
    }
    if (!validBrightness(module.singleBright))
        return failWith(error, "brightness not within 0..1");
    return true;
}

// Checks the frame type and, after the reader has consumed the payload, that it matched
// the payload exactly.
bool expectType(const Frame& frame, MessageType type, std::string* error)
{
    if (frame.type != typeCode(type))
        return failWith(error, "unexpected message type");
    return true;
}

bool finish(const ByteReader& in, std::string* error)
{
    if (!in.ok())
        return failWith(error, "payload too short");
    if (!in.atEnd())
        return failWith(error, "payload too long");
    return true;
}

} // namespace

std::vector<uint8_t> encodeRequest(const Request& request)
{
    std::vector<uint8_t> payload;
    ByteWriter out(payload);
    out.u32(request.seq);
    switch (request.type) {
    case MessageType::Hello:
        out.u32(static_cast<uint32_t>(request.clientId));
        out.u32(static_cast<uint32_t>(request.clientId >> 32));
        break;
    case MessageType::SetLighting:
        out.i32(request.profile);
        out.i32(request.slot);
        out.i32(request.lightMode);
        out.i32(request.colorMode);
        out.i32(request.lightSpeed);
        out.u8(request.turnOff ? 1 : 0);
        break;
    case MessageType::SetColors:
        out.i32(request.profile);
        out.i32(request.slot);
        out.i32(request.count);
        for (COLORREF color : request.rgb)
            out.u32(color);
        for (float bright : request.bright)
            out.f32(bright);
        out.u32(request.singleRGB);
        out.f32(request.singleBright);
        break;
    case MessageType::SetSlotOrder:
        out.i32(request.count);
        for (int32_t value : request.order)
            out.i32(value);
        break;
    case MessageType::SetProfile:
        out.i32(request.profile);
        break;
    case MessageType::SetNotification:
        writeNotification(out, request.noti);
        break;
    case MessageType::SetSetting:
        writeSetting(out, request.setting);
        break;
    case MessageType::SetPreview:
        out.u8(request.preview ? 1 : 0);
        break;
    default:
        break;
    }
    return encodeFrame(typeCode(request.type), payload);
}

bool decodeRequest(const Frame& frame, Request& request, std::string* error)
{
    if (!isRequestType(frame.type))
        return failWith(error, "not a request type");
    request = Request{};
    request.type = static_cast<MessageType>(frame.type);
    ByteReader in(frame.payload.data(), frame.payload.size());
    request.seq = in.u32();
    switch (request.type) {
    case MessageType::Hello: {
        const uint64_t low = in.u32();
        const uint64_t high = in.u32();
        request.clientId = low | (high << 32);
        break;
    }
    case MessageType::SetLighting:
        request.profile = in.i32();
        request.slot = in.i32();
        request.lightMode = in.i32();
        request.colorMode = in.i32();
        request.lightSpeed = in.i32();
        request.turnOff = in.u8() != 0;
        break;
    case MessageType::SetColors:
        request.profile = in.i32();
        request.slot = in.i32();
        request.count = in.i32();
        for (COLORREF& color : request.rgb)
            color = in.u32();
        for (float& bright : request.bright)
            bright = in.f32();
        request.singleRGB = in.u32();
        request.singleBright = in.f32();
        break;
    case MessageType::SetSlotOrder:
        request.count = in.i32();
        for (int32_t& value : request.order)
            value = in.i32();
        break;
    case MessageType::SetProfile:
        request.profile = in.i32();
        break;
    case MessageType::SetNotification:
        request.noti = readNotification(in);
        break;
    case MessageType::SetSetting:
        request.setting = readSetting(in);
        break;
    case MessageType::SetPreview:
        request.preview = in.u8() != 0;
        break;
    default:
        break;
    }
    if (!finish(in, error))
        return false;
    const std::string invalid = validateRequest(request);
    if (!invalid.empty())
        return failWith(error, invalid);
    return true;
}

uint32_t requestSeq(const Frame& frame)
{
    ByteReader in(frame.payload.data(), frame.payload.size());
    const uint32_t seq = in.u32();
    return in.ok() ? seq : 0;
}

std::vector<uint8_t> encodeState(const StateMessage& message)
{
    std::vector<uint8_t> payload;
    payload.reserve(5000);
    ByteWriter out(payload);
    const ControlState& state = message.state;
    out.u32(message.ackSeq);
    out.u32(message.changes);
    out.i32(state.profile);
    for (int32_t value : state.slotOrder)
        out.i32(value);
    for (const auto& profile : state.profiles) {
        for (const ModuleLighting& module : profile)
            writeModule(out, module);
    }
    writeNotification(out, state.noti);
    writeSetting(out, state.setting);
    return encodeFrame(typeCode(MessageType::State), payload);
}

bool decodeState(const Frame& frame, StateMessage& message, std::string* error)
{
    if (!expectType(frame, MessageType::State, error))
        return false;
    ByteReader in(frame.payload.data(), frame.payload.size());
    StateMessage decoded;
    ControlState& state = decoded.state;
    decoded.ackSeq = in.u32();
    decoded.changes = in.u32();
    state.profile = in.i32();
    for (int32_t& value : state.slotOrder)
        value = in.i32();
    if (!in.ok())
        return failWith(error, "payload too short");
    if (!inRange(state.profile, 0, kProfileCount - 1))
        return failWith(error, "profile out of range");
    for (int32_t value : state.slotOrder) {
        if (!inRange(value, 0, kSlotCount - 1))
            return failWith(error, "slot out of range");
    }
    for (auto& profile : state.profiles) {
        for (ModuleLighting& module : profile) {
            if (!readModule(in, module, error))
                return false;
        }
    }
    state.noti = readNotification(in);
    state.setting = readSetting(in);
    if (!finish(in, error))
        return false;
    message = decoded;
    return true;
}

std::vector<uint8_t> encodeHardware(const HardwareInfo& hardware)
{
    std::vector<uint8_t> payload;
    ByteWriter out(payload);
    out.u32(hardware.updateTime);
    out.i32(hardware.memoryCount);
    out.i32(hardware.slotCount);
    out.f64(hardware.frequency);
    out.f64(hardware.casLatency);
    out.i32(hardware.tRCD);
    out.i32(hardware.channel);
    out.i32(hardware.physicalMemoryUsed);
    out.f64(hardware.memoryLoad);
    for (const ModuleInfo& module : hardware.modules) {
        out.u8(module.present ? 1 : 0);
        out.i32(module.temperature);
        out.text(module.modelCode);
        out.text(module.type);
        out.i32(module.sizeMB);
        out.f64(module.frequency);
        out.i32(module.ledNum);
    }
    return encodeFrame(typeCode(MessageType::Hardware), payload);
}

bool decodeHardware(const Frame& frame, HardwareInfo& hardware, std::string* error)
{
    if (!expectType(frame, MessageType::Hardware, error))
        return false;
    ByteReader in(frame.payload.data(), frame.payload.size());
    HardwareInfo decoded;
    decoded.updateTime = in.u32();
    decoded.memoryCount = in.i32();
    decoded.slotCount = in.i32();
    decoded.frequency = in.f64();
    decoded.casLatency = in.f64();
    decoded.tRCD = in.i32();
    decoded.channel = in.i32();
    decoded.physicalMemoryUsed = in.i32();
    decoded.memoryLoad = in.f64();
    for (ModuleInfo& module : decoded.modules) {
        module.present = in.u8() != 0;
        module.temperature = in.i32();
        module.modelCode = in.text();
        module.type = in.text();
        module.sizeMB = in.i32();
        module.frequency = in.f64();
        module.ledNum = in.i32();
        if (!validText(module.modelCode) || !validText(module.type))
            return failWith(error, "text field too long");
        if (!inRange(module.ledNum, -1, kLedCount))
            return failWith(error, "LED count out of range");
    }
    if (!finish(in, error))
        return false;
    if (!inRange(decoded.memoryCount, -1, kSlotCount) || !inRange(decoded.slotCount, 0, kSlotCount))
        return failWith(error, "module count out of range");
    if (!std::isfinite(decoded.frequency) || !std::isfinite(decoded.casLatency) ||
        !std::isfinite(decoded.memoryLoad))
        return failWith(error, "number not finite");
    hardware = decoded;
    return true;
}

std::vector<uint8_t> encodePreview(const PreviewMessage& message)
{
    std::vector<uint8_t> out;
    encodePreview(message, out);
    return out;
}

void encodePreview(const PreviewMessage& message, std::vector<uint8_t>& out)
{
    constexpr std::size_t payloadSize = 4 + sizeof message.colors;
    // Stored at known offsets rather than appended byte by byte: this is the one message sent
    // at the frame rate.
    out.resize(kHeaderSize + payloadSize);
    uint8_t* at = out.data();
    const auto put = [&at](uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i)
            *at++ = static_cast<uint8_t>(value >> (8 * i));
    };
    put(static_cast<uint32_t>(kHeaderSize - kLengthFieldSize + payloadSize), 4);
    put(kProtocolVersion, 2);
    put(typeCode(MessageType::Preview), 2);
    put(message.frame, 4);
    for (const auto& slot : message.colors) {
        for (COLORREF color : slot)
            put(color, 4);
    }
}

bool decodePreview(const Frame& frame, PreviewMessage& message, std::string* error)
{
    if (!expectType(frame, MessageType::Preview, error))
        return false;
    ByteReader in(frame.payload.data(), frame.payload.size());
    PreviewMessage decoded;
    decoded.frame = in.u32();
    for (auto& slot : decoded.colors) {
        for (COLORREF& color : slot)
            color = in.u32();
    }
    if (!finish(in, error))
        return false;
    message = decoded;
    return true;
}

std::vector<uint8_t> encodeError(const ErrorMessage& message)
{
    std::vector<uint8_t> payload;
    ByteWriter out(payload);
    out.u32(message.seq);
    out.u16(static_cast<uint16_t>(message.code));
    out.text(message.text);
    return encodeFrame(typeCode(MessageType::Error), payload);
}

bool decodeError(const Frame& frame, ErrorMessage& message, std::string* error)
{
    if (!expectType(frame, MessageType::Error, error))
        return false;
    ByteReader in(frame.payload.data(), frame.payload.size());
    ErrorMessage decoded;
    decoded.seq = in.u32();
    decoded.code = static_cast<ErrorCode>(in.u16());
    decoded.text = in.text();
    if (!finish(in, error))
        return false;
    message = decoded;
    return true;
}

} // namespace nxproto
