// The OpenRGB SDK protocol layer (framing, controller descriptions, update blocks, slot
// mapping, output choices) and output "openrgb" against a scripted server speaking the
// recorded layouts of a DRAM controller.

#include "ControllerData.h"
#include "DramMapping.h"
#include "OpenRgbOutput.h"
#include "OrgbPacket.h"
#include "OutputChoice.h"
#include "PacketSplitter.h"
#include "Recording.h"
#include "SdkPeers.h"

#include <QtTest>

using orgb::PacketSplitter;

namespace {

orgb::Controller richController()
{
    orgb::Controller c = expectedDram("I2C: /dev/i2c-3, address 0x72", 8);
    // name, type, LEDs min, max and count, matrix height, width and map, segments, flags
    const std::vector<uint32_t> map = {0, 1, 2, 0xFFFFFFFF};
    const std::vector<orgb::Segment> segments(1, orgb::Segment{"Left", orgb::ZoneLinear, 0, 2});
    c.zones.push_back(orgb::Zone{"Matrix", orgb::ZoneMatrix, 0, 0, 4, 2, 2, map, segments, 3});
    c.ledAltNames = {"A", "B"};
    c.flags = 7;
    return c;
}

const char* const kLocations[] = {"address 0x40", "address 0x73", "address 0x71", "address 0x70"};

// Controller `index` of the server, the first a motherboard.
std::vector<uint8_t> recorded(uint32_t index, uint32_t version)
{
    std::vector<uint8_t> body = recordedDram(version, kLocations[index], 5);
    body[4] = index ? body[4] : 0;
    return body;
}

struct Frame {
    FrameOutput::Colors c = {};
};

Frame frameOf(COLORREF base)
{
    Frame frame;
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot)
        for (int led = 0; led < nxproto::kLedCount; ++led)
            frame.c[slot][led] = base + COLORREF(slot * 16 + led);
    return frame;
}

std::vector<orgb::Color> ledsOf(const FakeOrgbServer& server, uint32_t device)
{
    const orgb::Packet* packet = server.last(orgb::UpdateLeds, device);
    std::vector<orgb::Color> colors;
    std::string error;
    if (!packet || !orgb::decodeLedUpdate(packet->body, &colors, &error))
        return {};
    return colors;
}

} // namespace

class TestOrgbProtocol : public QObject
{
    Q_OBJECT

private slots:
    void splitterReassembles();
    void controllerData();
    void damagedControllerData();
    void updateBlocks();
    void slotsFollowLocations();
    void outputChoice();
    void outputConversation_data();
    void outputConversation();
    void outputReconnectsAndFollowsTheList();
};

void TestOrgbProtocol::splitterReassembles()
{
    // Two packets fed one byte at a time come out whole and in order.
    std::vector<uint8_t> stream = orgb::encodePacket(3, orgb::UpdateLeds, {1, 2, 3});
    const std::vector<uint8_t> second = orgb::encodePacket(0, orgb::RequestControllerCount);
    stream.insert(stream.end(), second.begin(), second.end());
    PacketSplitter splitter;
    std::vector<orgb::Packet> packets;
    orgb::Packet packet;
    for (uint8_t byte : stream) {
        splitter.feed(&byte, 1);
        while (splitter.next(packet) == PacketSplitter::Status::Packet)
            packets.push_back(packet);
    }
    QCOMPARE(packets.size(), std::size_t(2));
    QCOMPARE(packets[0].device, 3u);
    QCOMPARE(packets[0].body, std::vector<uint8_t>({1, 2, 3}));
    QCOMPARE(packets[1].id, uint32_t(orgb::RequestControllerCount));
}

void TestOrgbProtocol::controllerData()
{
    // Everything of protocol 5 survives a round trip; other versions do not read the bytes.
    const orgb::Controller rich = richController();
    const std::vector<uint8_t> body = orgb::encodeController(rich, 5);
    orgb::Controller got;
    std::string error;
    QVERIFY2(orgb::decodeController(body, 5, &got, &error), error.c_str());
    QVERIFY(got == rich);
    QVERIFY(!orgb::decodeController(body, 4, &got, &error));
    QVERIFY(!orgb::decodeController(body, 6, &got, &error));

    // The layouts a server sends at protocol 3 to 5, read and written byte for byte.
    const char* location = "I2C: /dev/i2c-1, address 0x71";
    for (uint32_t version : {3u, 4u, 5u}) {
        const std::vector<uint8_t> bytes = recordedDram(version, location, 5);
        QVERIFY2(orgb::decodeController(bytes, version, &got, &error), error.c_str());
        QVERIFY(got == expectedDram(location, 5));
        QVERIFY(orgb::encodeController(got, version) == bytes);
    }
}

void TestOrgbProtocol::damagedControllerData()
{
    const std::vector<uint8_t> good = orgb::encodeController(richController(), 5);
    orgb::Controller got;
    std::string error;

    // Every cut, with data_size fixed to match or left to disagree, is refused.
    for (std::size_t size = 0; size < good.size(); ++size) {
        std::vector<uint8_t> cut(good.begin(), good.begin() + std::ptrdiff_t(size));
        QVERIFY(!orgb::decodeController(cut, 5, &got, &error));
        if (size >= 4) {
            cut[0] = uint8_t(size), cut[1] = uint8_t(size >> 8), cut[2] = 0, cut[3] = 0;
            QVERIFY2(!orgb::decodeController(cut, 5, &got, &error),
                     qPrintable(QString::number(size)));
        }
    }
    std::vector<uint8_t> longer = good;
    longer.push_back(0);
    longer[0] = uint8_t(longer.size()), longer[1] = uint8_t(longer.size() >> 8);
    QVERIFY(!orgb::decodeController(longer, 5, &got, &error));

    // Counts that claim far more than the bytes hold fail without reserving for them.
    Recording r;
    r.u32(1);
    for (const char* text : {"x", "v", "d", "1", "", "l"})
        r.str(text);
    r.u16(0xFFFF); // modes
    r.u32(0);
    QVERIFY(!orgb::decodeController(r.sized(), 5, &got, &error));
    QVERIFY(QString::fromStdString(error).contains("mode count"));
}

void TestOrgbProtocol::updateBlocks()
{
    std::string error;
    std::vector<orgb::Color> colors;
    const std::vector<orgb::Color> sent = {0x0000FF, 0x00FF00, 0xFF0000};
    uint32_t zone = 9;
    QVERIFY(orgb::decodeZoneLedUpdate(orgb::encodeZoneLedUpdate(2, sent), &zone, &colors, &error));
    QCOMPARE(zone, 2u);
    QCOMPARE(colors, sent);
}

void TestOrgbProtocol::slotsFollowLocations()
{
    QVERIFY(DramMapping::locationLess("/dev/i2c-2, address 0x58", "/dev/i2c-10, address 0x50"));
    // Listed in any order, the same modules get the same slots; other types are left out.
    orgb::Controller board = expectedDram("I2C: /dev/i2c-0, address 0x40", 4);
    board.type = orgb::DeviceMotherboard;
    orgb::Controller noDirect = expectedDram("I2C: /dev/i2c-1, address 0x73", 5);
    noDirect.modes.erase(noDirect.modes.begin());
    const std::vector<orgb::Controller> listed = {noDirect, board,
                                                  expectedDram("I2C: /dev/i2c-1, address 0x71", 8)};
    for (const auto& list :
         {listed, std::vector<orgb::Controller>(listed.rbegin(), listed.rend())}) {
        const std::vector<DramModule> modules = DramMapping::map(list);
        QCOMPARE(modules.size(), std::size_t(2));
        QCOMPARE(modules[1].directMode, -1);
    }
}

void TestOrgbProtocol::outputChoice()
{
    // Accepted forms with their normal form; refused ones (no normal form) with a message.
    const std::pair<const char*, const char*> cases[] = {
        {"none", "none"},
        {"openrgb:10.1.2.3", "openrgb:10.1.2.3:6742"},
        {"openrgb::6800", "openrgb:127.0.0.1:6800"},
        {"openrgb:[::1]:6742", "openrgb:[::1]:6742"},
        {"openrgb:::1:6742", ""},
        {"openrgb:h:65536", ""},
        {"openrgb:a b:1", ""}};
    for (const auto& [text, normal] : cases) {
        OutputChoice choice, again;
        std::string error;
        QCOMPARE(OutputChoice::parse(text, &choice, &error), *normal != 0);
        QCOMPARE(error.empty(), *normal != 0);
        if (*normal) {
            QCOMPARE(choice.text(), std::string(normal));
            QVERIFY(OutputChoice::parse(normal, &again, &error) && again.text() == choice.text());
        }
    }
}

void TestOrgbProtocol::outputConversation_data()
{
    QTest::addColumn<uint>("serverVersion");
    QTest::addColumn<uint>("expected");
    QTest::newRow("protocol 3 server") << 3u << 3u;
    QTest::newRow("newer server") << 6u << 5u;
}

void TestOrgbProtocol::outputConversation()
{
    QFETCH(uint, serverVersion);
    QFETCH(uint, expected);
    FakeOrgbServer server(serverVersion, 3, recorded);
    OpenRgbOutput output(QStringLiteral("127.0.0.1"), server.port());
    output.start();
    QTRY_VERIFY_WITH_TIMEOUT(output.connected(), 10000);
    QCOMPARE(output.protocolVersion(), expected);

    // One data request per controller, carrying the agreed version.
    QCOMPARE(server.count(orgb::RequestControllerData), 3);
    QCOMPARE(server.last(orgb::RequestControllerData, 2)->body, orgb::encodeU32(expected));

    // The two DRAM controllers by location: 0x71 (device 2) is slot 0.
    nxproto::HardwareInfo info;
    output.report(info);
    QCOMPARE(info.memoryCount, 2);
    QCOMPARE(output.modules()[0].device, 2u);
    QCOMPARE(info.modules[0].ledNum, 5);

    // Each is put into its Direct mode, as the server described it.
    QTRY_COMPARE(server.count(orgb::UpdateMode), 2);
    int32_t index = -1;
    orgb::Mode sent;
    std::string error;
    QVERIFY(orgb::decodeModeUpdate(server.last(orgb::UpdateMode, 1)->body, expected, &index, &sent,
                                   &error));
    QCOMPARE(index, 0);
    QVERIFY(sent == expectedDram("", 5).modes[0]);

    // A frame goes out per controller; the same frame again sends nothing, a change in slot 1
    // only updates its controller.
    Frame frame = frameOf(0x100000);
    output.showFrame(frame.c);
    QTRY_VERIFY(ledsOf(server, 2) == std::vector<orgb::Color>(frame.c[0], frame.c[0] + 5));
    QTRY_VERIFY(ledsOf(server, 1) == std::vector<orgb::Color>(frame.c[1], frame.c[1] + 5));
    QTest::qWait(100);
    const int updates = server.count(orgb::UpdateLeds);
    output.showFrame(frame.c);
    QTest::qWait(200);
    frame.c[1][4] = 0x0000FF;
    output.showFrame(frame.c);
    QTRY_COMPARE(ledsOf(server, 1).back(), orgb::Color(0x0000FF));
    QCOMPARE(server.count(orgb::UpdateLeds), updates + 1);

    // Frames offered far faster than 30 a second are sent at most 30 a second.
    server.clearReceived();
    QElapsedTimer clock;
    clock.start();
    for (COLORREF i = 0; clock.elapsed() < 600; QTest::qWait(2))
        output.showFrame(frameOf(++i * 64).c);
    QTest::qWait(100);
    const int perDevice = server.count(orgb::UpdateLeds) / 2;
    QVERIFY(perDevice >= 3 && perDevice <= clock.elapsed() * OpenRgbOutput::kMaxFps / 1000 + 2);
}

void TestOrgbProtocol::outputReconnectsAndFollowsTheList()
{
    FakeOrgbServer server(4, 3, recorded);
    const quint16 port = server.port();
    OpenRgbOutput output(QStringLiteral("127.0.0.1"), port);
    output.start();
    QTRY_VERIFY_WITH_TIMEOUT(output.connected(), 10000);
    const Frame frame = frameOf(0x200000);
    output.showFrame(frame.c);
    QTRY_COMPARE(server.count(orgb::UpdateLeds), 2);

    // The server goes away: the modules stay reported, marked stale by their time stamp.
    server.goAway();
    QTRY_VERIFY(!output.connected());
    const uint32_t contact = output.lastContact();
    nxproto::HardwareInfo info;
    info.updateTime = contact + 100;
    output.report(info);
    QCOMPARE(info.updateTime, contact);
    QCOMPARE(info.memoryCount, 2);
    output.showFrame(frame.c); // nowhere to go, and no crash

    // It comes back: mode and the unchanged frame are applied again.
    server.clearReceived();
    QTest::qWait(700);
    server.listenAgain(port);
    QTRY_VERIFY_WITH_TIMEOUT(output.connected(), 20000);
    QTRY_COMPARE(server.count(orgb::UpdateMode), 2);
    QTRY_VERIFY(ledsOf(server, 2) == std::vector<orgb::Color>(frame.c[0], frame.c[0] + 5));

    QCOMPARE(server.connections(), 2);

    // A fourth controller at 0x70 appears: it takes slot 0, the others move up.
    server.setCount(4);
    server.push(orgb::DeviceListUpdated);
    QTRY_VERIFY(output.connected() && output.modules().size() == 3);
    QCOMPARE(output.modules()[0].device, 3u);
    QTRY_VERIFY(server.last(orgb::UpdateMode, 3) != nullptr);
}

QTEST_GUILESS_MAIN(TestOrgbProtocol)
#include "tst_orgb_protocol.moc"
