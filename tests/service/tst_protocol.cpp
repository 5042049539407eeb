// The control protocol on its own: framing, request validation, state updates, the record
// builder.

#include "ControlState.h"
#include "FrameDecoder.h"
#include "HardwareInfo.h"
#include "Messages.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>

using namespace nxproto;

namespace {

Request lightingRequest(int slot, int mode, int colorMode = 0, int speed = 2, bool off = false)
{
    Request request;
    request.type = MessageType::SetLighting;
    request.seq = 7;
    request.slot = slot;
    request.lightMode = mode;
    request.colorMode = colorMode;
    request.lightSpeed = speed;
    request.turnOff = off;
    return request;
}

Request colorsRequest(int slot, int count, float bright)
{
    Request request;
    request.type = MessageType::SetColors;
    request.seq = 8;
    request.slot = slot;
    request.count = count;
    for (int i = 0; i < kLedCount; ++i) {
        request.rgb[i] = 0x010203u * COLORREF(i + 1);
        request.bright[i] = bright;
    }
    request.singleRGB = 0x00AA55;
    request.singleBright = 0.5f;
    return request;
}

// Decodes the single frame in `bytes`.
bool decodeOne(const std::vector<uint8_t>& bytes, Frame* frame)
{
    FrameDecoder decoder;
    decoder.feed(bytes.data(), bytes.size());
    return decoder.next(*frame) == FrameDecoder::Status::Frame && decoder.buffered() == 0;
}

std::string refusal(const Request& request)
{
    Frame frame;
    if (!decodeOne(encodeRequest(request), &frame))
        return "framing";
    Request decoded;
    std::string error;
    return decodeRequest(frame, decoded, &error) ? std::string() : error;
}

std::vector<uint8_t> rawFrame(uint32_t length, uint16_t version, uint16_t type,
                              const std::vector<uint8_t>& payload = {})
{
    std::vector<uint8_t> bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(uint8_t(length >> shift));
    bytes.push_back(uint8_t(version));
    bytes.push_back(uint8_t(version >> 8));
    bytes.push_back(uint8_t(type));
    bytes.push_back(uint8_t(type >> 8));
    bytes.insert(bytes.end(), payload.begin(), payload.end());
    return bytes;
}

} // namespace

class TestProtocol : public QObject
{
    Q_OBJECT

private slots:
    void framesSurviveAnySplitOfTheStream();
    void brokenFramingFailsTheStreamForGood();
    void requestsRoundTripWithEveryField();
    void outOfRangeRequestsAreRefused();
    void wrongPayloadSizesAreRefused();
    void applyingChangesOnlyTheCurrentProfile();
    void stateAndHardwareRoundTripAndAreChecked();
    void recordsCarryReservedBytesUnchanged();
    void defaultRecordMatchesTheBoundary();
    void builtRecordReflectsModulesAndLighting();
};

void TestProtocol::framesSurviveAnySplitOfTheStream()
{
    std::vector<uint8_t> stream;
    const std::vector<Request> requests = {lightingRequest(1, 4), colorsRequest(2, 8, 0.25f),
                                           lightingRequest(7, 37, 3, 0, true)};
    for (const Request& request : requests) {
        const auto bytes = encodeRequest(request);
        stream.insert(stream.end(), bytes.begin(), bytes.end());
    }
    for (std::size_t chunk : {std::size_t(1), std::size_t(3), std::size_t(7), stream.size()}) {
        FrameDecoder decoder;
        std::vector<Frame> frames;
        for (std::size_t at = 0; at < stream.size(); at += chunk) {
            decoder.feed(stream.data() + at, std::min(chunk, stream.size() - at));
            Frame frame;
            while (decoder.next(frame) == FrameDecoder::Status::Frame)
                frames.push_back(frame);
        }
        QCOMPARE(frames.size(), requests.size());
        QCOMPARE(decoder.buffered(), std::size_t(0));
        Request decoded;
        QVERIFY(decodeRequest(frames[2], decoded, nullptr));
        QCOMPARE(decoded.slot, 7);
        QCOMPARE(decoded.lightMode, 37);
        QVERIFY(decoded.turnOff);
    }
}

void TestProtocol::brokenFramingFailsTheStreamForGood()
{
    const auto valid = encodeRequest(lightingRequest(0, 1));
    const struct {
        const char* name;
        std::vector<uint8_t> bytes;
    } cases[] = {
        {"length below header", rawFrame(3, kProtocolVersion, 0x10)},
        {"length zero", rawFrame(0, kProtocolVersion, 0x10)},
        {"oversized", rawFrame(kMaxFrameLength + 1, kProtocolVersion, 0x10)},
        {"huge", rawFrame(0xFFFFFFFFu, kProtocolVersion, 0x10)},
        {"old version", rawFrame(4, 0, 0x10)},
        {"future version", rawFrame(4, kProtocolVersion + 1, 0x10)},
    };
    for (const auto& c : cases) {
        FrameDecoder decoder;
        decoder.feed(c.bytes.data(), c.bytes.size());
        Frame frame;
        std::string error;
        QVERIFY2(decoder.next(frame, &error) == FrameDecoder::Status::Error, c.name);
        QVERIFY2(!error.empty(), c.name);
        // Valid bytes after a broken header are never taken as a frame.
        decoder.feed(valid.data(), valid.size());
        QVERIFY2(decoder.next(frame) == FrameDecoder::Status::Error, c.name);
        QVERIFY(decoder.failed());
    }
    // A header alone is not a frame yet.
    FrameDecoder decoder;
    decoder.feed(valid.data(), kHeaderSize);
    Frame frame;
    QVERIFY(decoder.next(frame) == FrameDecoder::Status::NeedMore);
    QVERIFY(!decoder.failed());
}

void TestProtocol::requestsRoundTripWithEveryField()
{
    Request colors = colorsRequest(5, 12, 0.75f);
    Frame frame;
    QVERIFY(decodeOne(encodeRequest(colors), &frame));
    Request decoded;
    QVERIFY(decodeRequest(frame, decoded, nullptr));
    QCOMPARE(decoded.seq, 8u);
    QCOMPARE(decoded.count, 12);
    QCOMPARE(decoded.rgb[11], colors.rgb[11]);
    QCOMPARE(decoded.bright[11], 0.75f);
    QCOMPARE(decoded.singleRGB, COLORREF(0x00AA55));
    QCOMPARE(decoded.singleBright, 0.5f);

    Request order;
    order.type = MessageType::SetSlotOrder;
    order.count = 8;
    for (int i = 0; i < 8; ++i)
        order.order[i] = 7 - i;
    QVERIFY(decodeOne(encodeRequest(order), &frame));
    QVERIFY(decodeRequest(frame, decoded, nullptr));
    QCOMPARE(decoded.order[0], 7);
    QCOMPARE(decoded.order[7], 0);

    Request hello;
    hello.type = MessageType::Hello;
    hello.clientId = 0xFEDCBA9876543210ull;
    QVERIFY(decodeOne(encodeRequest(hello), &frame));
    QVERIFY(decodeRequest(frame, decoded, nullptr));
    QCOMPARE(decoded.clientId, hello.clientId);
    hello.clientId = 0;
    QCOMPARE(refusal(hello), std::string("client identity missing"));

    Request setting;
    setting.type = MessageType::SetSetting;
    setting.setting = SettingData{9, false, true, true, 0xAB};
    QVERIFY(decodeOne(encodeRequest(setting), &frame));
    QVERIFY(decodeRequest(frame, decoded, nullptr));
    QCOMPARE(std::memcmp(&decoded.setting, &setting.setting, sizeof(SettingData)), 0);
}

void TestProtocol::outOfRangeRequestsAreRefused()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    QCOMPARE(refusal(lightingRequest(0, 0)), std::string());
    QCOMPARE(refusal(lightingRequest(7, 37, 3, 3)), std::string());
    QVERIFY(!refusal(lightingRequest(-1, 0)).empty());
    QVERIFY(!refusal(lightingRequest(8, 0)).empty());
    QVERIFY(!refusal(lightingRequest(0, 38)).empty());
    QVERIFY(!refusal(lightingRequest(0, -1)).empty());
    QVERIFY(!refusal(lightingRequest(0, 1, 4)).empty());
    QVERIFY(!refusal(lightingRequest(0, 1, 0, 4)).empty());

    QCOMPARE(refusal(colorsRequest(0, 8, 1.0f)), std::string());
    QVERIFY(!refusal(colorsRequest(8, 8, 1.0f)).empty());
    QVERIFY(!refusal(colorsRequest(0, 13, 1.0f)).empty());
    QVERIFY(!refusal(colorsRequest(0, -1, 1.0f)).empty());
    for (float bad : {nan, inf, -inf, -0.5f, 1.5f}) {
        QVERIFY(!refusal(colorsRequest(0, 8, bad)).empty());
        Request single = colorsRequest(0, 8, 1.0f);
        single.singleBright = bad;
        QVERIFY(!refusal(single).empty());
    }
    // Entries past the count are not looked at.
    Request partial = colorsRequest(0, 2, 1.0f);
    partial.bright[5] = nan;
    QCOMPARE(refusal(partial), std::string());

    Request order;
    order.type = MessageType::SetSlotOrder;
    order.count = 9;
    QVERIFY(!refusal(order).empty());
    order.count = 8;
    order.order[3] = 8;
    QVERIFY(!refusal(order).empty());

    Request profile;
    profile.type = MessageType::SetProfile;
    profile.profile = 5;
    QVERIFY(!refusal(profile).empty());
    profile.profile = -1;
    QVERIFY(!refusal(profile).empty());
    profile.profile = 4;
    QCOMPARE(refusal(profile), std::string());
}

void TestProtocol::wrongPayloadSizesAreRefused()
{
    Frame frame;
    QVERIFY(decodeOne(encodeRequest(lightingRequest(0, 1)), &frame));
    Request decoded;
    Frame shorter = frame;
    shorter.payload.pop_back();
    QVERIFY(!decodeRequest(shorter, decoded, nullptr));
    Frame longer = frame;
    longer.payload.push_back(0);
    QVERIFY(!decodeRequest(longer, decoded, nullptr));
    Frame empty = frame;
    empty.payload.clear();
    QVERIFY(!decodeRequest(empty, decoded, nullptr));
    QCOMPARE(requestSeq(empty), 0u);

    Frame unknown = frame;
    unknown.type = 0x0042;
    QVERIFY(!isRequestType(unknown.type));
    QVERIFY(!decodeRequest(unknown, decoded, nullptr));
    // A state is not a request, even from a client.
    QVERIFY(decodeOne(encodeState(StateMessage{}), &frame));
    QVERIFY(!decodeRequest(frame, decoded, nullptr));
}

void TestProtocol::applyingChangesOnlyTheCurrentProfile()
{
    ControlState state = defaultControlState();
    const ControlState before = state;
    QCOMPARE(applyRequest(state, lightingRequest(3, 9, 1, 0, true)), uint32_t(ChangeLighting));
    QCOMPARE(state.module(3).lightMode, 9);
    QVERIFY(state.module(3).turnOff);
    QVERIFY(state.profiles[1][3] == before.profiles[1][3]);
    QVERIFY(state.module(2) == before.module(2));

    Request profile;
    profile.type = MessageType::SetProfile;
    profile.profile = 1;
    QCOMPARE(applyRequest(state, profile), uint32_t(ChangeProfile));
    QCOMPARE(state.module(3).lightMode, 5);
    QCOMPARE(applyRequest(state, colorsRequest(3, 2, 0.5f)), uint32_t(ChangeColors));
    QCOMPARE(state.module(3).bright[0], 0.5f);
    QCOMPARE(state.module(3).bright[2], 1.0f); // past the count: unchanged
    QCOMPARE(state.module(3).rgb[2], kDefaultColors[2]);
    QCOMPARE(state.profiles[0][3].bright[0], 1.0f);

    Request colors = colorsRequest(0, 1, 1.0f);
    colors.rgb[0] = 0xFF123456;
    colors.singleRGB = 0xEE00FF00;
    applyRequest(state, colors);
    QCOMPARE(state.module(0).rgb[0], COLORREF(0x123456));
    QCOMPARE(state.module(0).singleRGB, COLORREF(0x00FF00));

    Request preview;
    preview.type = MessageType::SetPreview;
    const ControlState unchanged = state;
    QCOMPARE(applyRequest(state, preview), 0u);
    QVERIFY(state == unchanged);
}

void TestProtocol::stateAndHardwareRoundTripAndAreChecked()
{
    StateMessage message;
    message.ackSeq = 41;
    message.changes = ChangeColors | ChangeProfile;
    message.state = defaultControlState();
    message.state.profile = 3;
    message.state.slotOrder[0] = 6;
    message.state.profiles[4][7].lightMode = 36;
    message.state.profiles[2][1].bright[11] = 0.1f;
    message.state.setting.languageIndex = 8;
    Frame frame;
    QVERIFY(decodeOne(encodeState(message), &frame));
    StateMessage decoded;
    QVERIFY(decodeState(frame, decoded, nullptr));
    QCOMPARE(decoded.ackSeq, 41u);
    QCOMPARE(decoded.changes, message.changes);
    QVERIFY(decoded.state == message.state);

    // Offsets inside the state payload: ack, changes, profile, slot order.
    Frame tampered = frame;
    tampered.payload[8] = 5;
    QVERIFY(!decodeState(tampered, decoded, nullptr));
    tampered = frame;
    tampered.payload[12] = 8;
    QVERIFY(!decodeState(tampered, decoded, nullptr));
    tampered = frame;
    tampered.payload.resize(tampered.payload.size() - 1);
    QVERIFY(!decodeState(tampered, decoded, nullptr));

    HardwareInfo hardware;
    hardware.updateTime = 1700000000;
    hardware.memoryCount = 2;
    hardware.slotCount = 4;
    hardware.memoryLoad = 42.0;
    hardware.modules[1].present = true;
    hardware.modules[1].modelCode = "KX44";
    hardware.modules[1].type = "DDR5";
    hardware.modules[1].ledNum = 8;
    QVERIFY(decodeOne(encodeHardware(hardware), &frame));
    HardwareInfo back;
    QVERIFY(decodeHardware(frame, back, nullptr));
    QVERIFY(back == hardware);

    hardware.modules[1].modelCode = std::string(64, 'X');
    QVERIFY(decodeOne(encodeHardware(hardware), &frame));
    QVERIFY(!decodeHardware(frame, back, nullptr));
    hardware.modules[1].modelCode = "KX44";
    hardware.memoryLoad = std::nan("");
    QVERIFY(decodeOne(encodeHardware(hardware), &frame));
    QVERIFY(!decodeHardware(frame, back, nullptr));
}

void TestProtocol::recordsCarryReservedBytesUnchanged()
{
    NotiEventData noti;
    std::memset(&noti, 0, sizeof noti);
    noti.reserved0 = -123;
    noti.reserved20 = 77;
    noti.pad9[0] = 0x5A; // the upper bytes of a boolean cell
    noti.shutdownCPUUnit = 1;
    Request request;
    request.type = MessageType::SetNotification;
    request.noti = noti;
    Frame frame;
    QVERIFY(decodeOne(encodeRequest(request), &frame));
    Request decoded;
    QVERIFY(decodeRequest(frame, decoded, nullptr));
    QCOMPARE(std::memcmp(&decoded.noti, &noti, sizeof noti), 0);

    ControlState state = defaultControlState();
    applyRequest(state, decoded);
    StateMessage message;
    message.state = state;
    QVERIFY(decodeOne(encodeState(message), &frame));
    StateMessage back;
    QVERIFY(decodeState(frame, back, nullptr));
    QCOMPARE(std::memcmp(&back.state.noti, &noti, sizeof noti), 0);
}

void TestProtocol::defaultRecordMatchesTheBoundary()
{
    const HWData data = defaultHWData();
    for (int i = 0; i < 8; ++i)
        QCOMPARE(data.slotIndex[i], -1);
    QCOMPARE(data.memoryCount, -1);
    QCOMPARE(data.slotCount, 0);
    QCOMPARE(data.reserved40, -1);
    QCOMPARE(data.frequency, -1.0);
    QCOMPARE(QByteArray(data.systemText), QByteArray("N/A"));
    QCOMPARE(data.casLatency, -1.0);
    QCOMPARE(data.tRCD, -1);
    QCOMPARE(data.channel, -1);
    QCOMPARE(data.physicalMemoryUsed, -1);
    QCOMPARE(data.memoryLoad, -1.0);
    QCOMPARE(data.updateTime, 0u);
    const COLORREF expected[12] = {0x0000FF, 0x00FFD8, 0x3BFF00, 0xFF6200, 0xFF00A7, 0x0000FF,
                                   0x00FFD8, 0x3BFF00, 0xFF6200, 0xFF00A7, 0x0000FF, 0x00FFD8};
    for (int k = 0; k < 8; ++k) {
        const MemoryModuleData& m = data.memoryData[k];
        QCOMPARE(m.memorySlot, -1);
        QCOMPARE(m.temperature, -1);
        QCOMPARE(m.memoryModuleSize, -1);
        QCOMPARE(m.ledNum, -1);
        QCOMPARE(m.reserved288, -1);
        QCOMPARE(m.frequency, -1.0);
        QCOMPARE(QByteArray(m.modelCode), QByteArray("N/A"));
        QCOMPARE(QByteArray(m.type), QByteArray("N/A"));
        QCOMPARE(QByteArray(m.text12), QByteArray("N/A"));
        QCOMPARE(QByteArray(m.text216), QByteArray("N/A"));
        QCOMPARE(std::memcmp(m.defaultRGB, expected, sizeof expected), 0);
        QCOMPARE(std::memcmp(m.rgb, expected, sizeof expected), 0);
        QCOMPARE(m.singleRGB, COLORREF(0x0000FF));
        QCOMPARE(m.singleBright, 1.0f);
        QCOMPARE(m.lightMode, 5);
        QCOMPARE(m.colorMode, 0);
        QCOMPARE(m.lightSpeed, 2);
        QCOMPARE(m.turnOff, false);
        QCOMPARE(m.reserved462[94], uint8_t(0)); // the byte at 556
        for (int i = 0; i < 12; ++i)
            QCOMPARE(m.bright[i], i == k ? 1.0f : 0.0f);
    }
}

void TestProtocol::builtRecordReflectsModulesAndLighting()
{
    HardwareInfo hardware;
    hardware.updateTime = 1234;
    hardware.memoryCount = 2;
    hardware.slotCount = 4;
    hardware.tRCD = 38;
    for (int i : {0, 2}) {
        hardware.modules[i].present = true;
        hardware.modules[i].temperature = 40 + i;
        hardware.modules[i].modelCode = "KX44";
        hardware.modules[i].type = "DDR5";
        hardware.modules[i].sizeMB = 16384;
        hardware.modules[i].frequency = 6000;
        hardware.modules[i].ledNum = 5;
    }
    ControlState state = defaultControlState();
    state.profile = 2;
    state.profiles[2][2].lightMode = 14;
    state.profiles[2][2].turnOff = true;
    state.profiles[2][2].rgb[4] = 0x123456;
    state.profiles[0][2].lightMode = 1;

    const HWData data = buildHWData(hardware, state);
    QCOMPARE(data.updateTime, 1234u);
    QCOMPARE(data.memoryCount, 2);
    QCOMPARE(data.tRCD, 38);
    QCOMPARE(data.slotIndex[0], 0);
    QCOMPARE(data.slotIndex[1], -1);
    QCOMPARE(data.slotIndex[2], 2);
    const MemoryModuleData& present = data.memoryData[2];
    QCOMPARE(present.memorySlot, 2);
    QCOMPARE(present.temperature, 42);
    QCOMPARE(QByteArray(present.modelCode), QByteArray("KX44"));
    QCOMPARE(present.ledNum, 5);
    QCOMPARE(present.lightMode, 14);
    QVERIFY(present.turnOff);
    QCOMPARE(present.lightingOff, uint8_t(1));
    QCOMPARE(present.rgb[4], COLORREF(0x123456));
    QCOMPARE(present.bright[0], 1.0f);
    const HWData defaults = defaultHWData();
    QCOMPARE(std::memcmp(&data.memoryData[1], &defaults.memoryData[1], sizeof(MemoryModuleData)),
             0);
}

QTEST_APPLESS_MAIN(TestProtocol)
#include "tst_protocol.moc"
