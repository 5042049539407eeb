// The Qt-free layer of the OpenRGB SDK protocol: framing, controller descriptions of protocol
// 0 to 5, update blocks, slot mapping and the helpers of the output and the server.

#include "ControllerData.h"
#include "DirectLighting.h"
#include "DramMapping.h"
#include "OrgbPacket.h"
#include "OutputChoice.h"
#include "PacketSplitter.h"
#include "Recording.h"
#include "ResumeWatch.h"

#include <QtTest>

using orgb::PacketSplitter;

namespace {

orgb::Controller richController()
{
    orgb::Controller c = expectedDram("I2C: /dev/i2c-3, address 0x72", 8);
    c.vendor = "Vendor";
    c.serial = "1234";
    orgb::Zone matrix;
    matrix.name = "Matrix";
    matrix.type = orgb::ZoneMatrix;
    matrix.ledsCount = 4;
    matrix.matrixHeight = 2;
    matrix.matrixWidth = 2;
    matrix.matrix = {0, 1, 2, 0xFFFFFFFF};
    matrix.segments = {{"Left", orgb::ZoneLinear, 0, 2}};
    matrix.flags = 3;
    c.zones.push_back(matrix);
    c.ledAltNames = {"A", "B"};
    c.flags = 7;
    return c;
}

// What a peer that speaks `version` keeps of a controller.
orgb::Controller asSeenAt(orgb::Controller c, uint32_t version)
{
    if (version < 1)
        c.vendor.clear();
    for (orgb::Mode& mode : c.modes) {
        if (version < 3)
            mode.brightnessMin = mode.brightnessMax = mode.brightness = 0;
    }
    for (orgb::Zone& zone : c.zones) {
        if (version < 4)
            zone.segments.clear();
        if (version < 5)
            zone.flags = 0;
    }
    if (version < 5) {
        c.ledAltNames.clear();
        c.flags = 0;
    }
    return c;
}

} // namespace

class TestOrgbProtocol : public QObject
{
    Q_OBJECT

private slots:
    void splitterReassemblesAndRefuses();
    void controllerRoundTrip_data();
    void controllerRoundTrip();
    void recordedLayouts_data();
    void recordedLayouts();
    void damagedControllerData();
    void updateBlocks();
    void slotsFollowLocations();
    void outputChoice_data();
    void outputChoice();
    void directLighting();
    void resumeWatch();
};

void TestOrgbProtocol::splitterReassemblesAndRefuses()
{
    // Two packets fed one byte at a time come out whole and in order.
    std::vector<uint8_t> stream = orgb::encodePacket(3, orgb::UpdateLeds, {1, 2, 3});
    const std::vector<uint8_t> second = orgb::encodePacket(0, orgb::RequestControllerCount);
    stream.insert(stream.end(), second.begin(), second.end());
    PacketSplitter splitter;
    std::vector<orgb::Packet> packets;
    for (uint8_t byte : stream) {
        splitter.feed(&byte, 1);
        orgb::Packet packet;
        while (splitter.next(packet) == PacketSplitter::Status::Packet)
            packets.push_back(packet);
    }
    QCOMPARE(packets.size(), std::size_t(2));
    QCOMPARE(packets[0].device, 3u);
    QCOMPARE(packets[0].id, uint32_t(orgb::UpdateLeds));
    QCOMPARE(packets[0].body, std::vector<uint8_t>({1, 2, 3}));
    QCOMPARE(packets[1].id, uint32_t(orgb::RequestControllerCount));
    QCOMPARE(splitter.buffered(), std::size_t(0));

    // A wrong magic is refused on its first byte, before any header is complete.
    PacketSplitter wrong;
    orgb::Packet packet;
    std::string error;
    wrong.feed(reinterpret_cast<const uint8_t*>("OX"), 2);
    QCOMPARE(wrong.next(packet, &error), PacketSplitter::Status::Error);
    QVERIFY(QString::fromStdString(error).contains("magic"));
    wrong.feed(stream.data(), stream.size());
    QCOMPARE(wrong.next(packet), PacketSplitter::Status::Error);

    // A body past the limit is refused from its header alone; one at the limit is awaited.
    std::vector<uint8_t> header = orgb::encodePacket(0, orgb::UpdateLeds);
    header[12] = 0x01, header[13] = 0x00, header[14] = 0x10, header[15] = 0x00; // 1 MiB + 1
    PacketSplitter big;
    big.feed(header.data(), header.size());
    QCOMPARE(big.next(packet, &error), PacketSplitter::Status::Error);
    header[12] = 0x00;
    PacketSplitter limit;
    limit.feed(header.data(), header.size());
    QCOMPARE(limit.next(packet), PacketSplitter::Status::NeedMore);
}

void TestOrgbProtocol::controllerRoundTrip_data()
{
    QTest::addColumn<uint>("version");
    for (uint v = 0; v <= 5; ++v)
        QTest::addRow("protocol %u", v) << v;
}

void TestOrgbProtocol::controllerRoundTrip()
{
    QFETCH(uint, version);
    const orgb::Controller sent = richController();
    const std::vector<uint8_t> body = orgb::encodeController(sent, version);
    orgb::Controller got;
    std::string error;
    QVERIFY2(orgb::decodeController(body, version, &got, &error), error.c_str());
    QVERIFY(got == asSeenAt(sent, version));
    // Read at another version the same bytes do not pass as a controller.
    const uint32_t other = version == 5 ? 4 : 5;
    QVERIFY(!orgb::decodeController(body, other, &got, &error));
}

void TestOrgbProtocol::recordedLayouts_data()
{
    QTest::addColumn<uint>("version");
    QTest::newRow("protocol 3") << 3u;
    QTest::newRow("protocol 4") << 4u;
    QTest::newRow("protocol 5") << 5u;
}

void TestOrgbProtocol::recordedLayouts()
{
    QFETCH(uint, version);
    const char* location = "I2C: /dev/i2c-1, address 0x71";
    const std::vector<uint8_t> recorded = recordedDram(version, location, 5);
    orgb::Controller got;
    std::string error;
    QVERIFY2(orgb::decodeController(recorded, version, &got, &error), error.c_str());
    QVERIFY(got == expectedDram(location, 5));
    QCOMPARE(got.findMode("direct"), 0);
    QCOMPARE(got.findMode("Rainbow"), -1);
    // Our encoder writes the same bytes as the server.
    QVERIFY(orgb::encodeController(got, version) == recorded);
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
    // A trailing byte, counted or not.
    std::vector<uint8_t> longer = good;
    longer.push_back(0);
    QVERIFY(!orgb::decodeController(longer, 5, &got, &error));
    longer[0] = uint8_t(longer.size());
    longer[1] = uint8_t(longer.size() >> 8);
    QVERIFY(!orgb::decodeController(longer, 5, &got, &error));

    // Counts that claim far more than the bytes hold fail without reserving for them.
    Recording r;
    r.u32(1);
    r.str("x");
    r.str("v");
    r.str("d");
    r.str("1");
    r.str("");
    r.str("l");
    r.u16(0xFFFF); // modes
    r.u32(0);
    QVERIFY(!orgb::decodeController(r.sized(), 5, &got, &error));
    QVERIFY(QString::fromStdString(error).contains("mode count"));

    // A zone whose matrix size disagrees with its height and width: 3 x 2 cells in 16 bytes.
    std::vector<uint8_t> matrix = good;
    const uint8_t header[] = {24, 0, 2, 0, 0, 0, 2, 0, 0, 0}; // size, height 2, width 2
    const auto at = std::search(matrix.begin(), matrix.end(), std::begin(header), std::end(header));
    QVERIFY(at != matrix.end());
    at[2] = 3;
    QVERIFY(!orgb::decodeController(matrix, 5, &got, &error));
    QVERIFY(QString::fromStdString(error).contains("matrix"));

    // A string without its NUL.
    std::vector<uint8_t> noNul = orgb::encodeController(richController(), 5);
    const std::size_t nameEnd = 4 + 4 + 2 + richController().name.size();
    noNul[nameEnd] = 'x';
    QVERIFY(!orgb::decodeController(noNul, 5, &got, &error));
    QVERIFY(!orgb::decodeController(good, 6, &got, &error));
}

void TestOrgbProtocol::updateBlocks()
{
    std::string error;
    std::vector<orgb::Color> colors;
    const std::vector<orgb::Color> sent = {0x0000FF, 0x00FF00, 0xFF0000};
    QVERIFY(orgb::decodeLedUpdate(orgb::encodeLedUpdate(sent), &colors, &error));
    QCOMPARE(colors, sent);
    // The pad byte of a colour is dropped.
    std::vector<uint8_t> padded = orgb::encodeLedUpdate({0x123456});
    padded[9] = 0xAB;
    QVERIFY(orgb::decodeLedUpdate(padded, &colors, &error));
    QCOMPARE(colors.front(), 0x123456u);

    // data_size or count that disagree with the packet are refused.
    std::vector<uint8_t> body = orgb::encodeLedUpdate(sent);
    body[0] += 4;
    QVERIFY(!orgb::decodeLedUpdate(body, &colors, &error));
    body = orgb::encodeLedUpdate(sent);
    body[4] = 200;
    QVERIFY(!orgb::decodeLedUpdate(body, &colors, &error));
    QVERIFY(!orgb::decodeLedUpdate({}, &colors, &error));

    uint32_t zone = 9;
    QVERIFY(orgb::decodeZoneLedUpdate(orgb::encodeZoneLedUpdate(2, sent), &zone, &colors, &error));
    QCOMPARE(zone, 2u);
    QCOMPARE(colors, sent);
    body = orgb::encodeZoneLedUpdate(0, sent);
    body.pop_back();
    QVERIFY(!orgb::decodeZoneLedUpdate(body, &zone, &colors, &error));

    int32_t led = 0;
    orgb::Color color = 0;
    QVERIFY(orgb::decodeSingleLedUpdate(orgb::encodeSingleLedUpdate(4, 0xABCDEF), &led, &color,
                                        &error));
    QCOMPARE(led, 4);
    QCOMPARE(color, 0xABCDEFu);
    QVERIFY(!orgb::decodeSingleLedUpdate({1, 2, 3}, &led, &color, &error));

    // Mode updates: the brightness fields exist from protocol 3 on.
    const orgb::Controller c = expectedDram("l", 5);
    for (uint32_t version : {2u, 3u}) {
        int32_t index = -1;
        orgb::Mode mode;
        QVERIFY(orgb::decodeModeUpdate(orgb::encodeModeUpdate(1, c.modes[1], version), version,
                                       &index, &mode, &error));
        QCOMPARE(index, 1);
        QCOMPARE(mode.brightness, version >= 3 ? 200u : 0u);
        QCOMPARE(mode.colors, c.modes[1].colors);
        QVERIFY(!orgb::decodeModeUpdate(orgb::encodeModeUpdate(1, c.modes[1], version),
                                        version == 3 ? 2 : 3, &index, &mode, &error));
    }

    std::string name;
    QVERIFY(orgb::decodeName(orgb::encodeName("NORVALEX RGB"), &name));
    QCOMPARE(name, std::string("NORVALEX RGB"));
    QVERIFY(!orgb::decodeName({'a', 'b'}, &name));
    uint32_t value = 0;
    QVERIFY(!orgb::decodeU32({1, 0, 0}, &value));
}

void TestOrgbProtocol::slotsFollowLocations()
{
    QVERIFY(DramMapping::locationLess("I2C: /dev/i2c-2, address 0x58",
                                      "I2C: /dev/i2c-10, address 0x50"));
    QVERIFY(DramMapping::locationLess("address 0x58", "address 0x5A"));
    QVERIFY(DramMapping::locationLess("address 0x5a", "address 0x5B"));
    QVERIFY(!DramMapping::locationLess("Slot 2", "Slot 2"));
    QVERIFY(DramMapping::locationLess("Slot 2", "Slot 2b"));

    // Listed in any order, the same modules get the same slots; other types are left out.
    orgb::Controller board = expectedDram("I2C: /dev/i2c-0, address 0x40", 4);
    board.type = orgb::DeviceMotherboard;
    orgb::Controller noDirect = expectedDram("I2C: /dev/i2c-1, address 0x73", 5);
    noDirect.modes.erase(noDirect.modes.begin());
    const std::vector<orgb::Controller> listed = {noDirect, board,
                                                  expectedDram("I2C: /dev/i2c-1, address 0x71", 8),
                                                  expectedDram("I2C: /dev/i2c-1, address 0x72", 5)};
    std::vector<orgb::Controller> reversed(listed.rbegin(), listed.rend());
    for (const auto& list : {listed, reversed}) {
        const std::vector<DramModule> modules = DramMapping::map(list);
        QCOMPARE(modules.size(), std::size_t(3));
        QCOMPARE(modules[0].location, std::string("I2C: /dev/i2c-1, address 0x71"));
        QCOMPARE(modules[0].leds, 8);
        QCOMPARE(modules[0].directMode, 0);
        QCOMPARE(modules[0].direct.name, std::string("Direct"));
        QCOMPARE(modules[2].directMode, -1);
        QCOMPARE(list[modules[1].device].location, modules[1].location);
    }
    // More than eight: the first eight by location.
    std::vector<orgb::Controller> many;
    for (int i = 9; i >= 0; --i)
        many.push_back(expectedDram(("DIMM " + std::to_string(i)).c_str(), 5));
    const std::vector<DramModule> eight = DramMapping::map(many);
    QCOMPARE(eight.size(), std::size_t(8));
    QCOMPARE(eight.back().location, std::string("DIMM 7"));
}

void TestOrgbProtocol::outputChoice_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<QString>("normal");
    QTest::newRow("none") << "none" << true << "none";
    QTest::newRow("default") << "openrgb" << true << "openrgb:127.0.0.1:6742";
    QTest::newRow("host and port") << "openrgb:pc.lan:7000" << true << "openrgb:pc.lan:7000";
    QTest::newRow("host only") << "openrgb:10.1.2.3" << true << "openrgb:10.1.2.3:6742";
    QTest::newRow("port only") << "openrgb::6800" << true << "openrgb:127.0.0.1:6800";
    QTest::newRow("ipv6") << "openrgb:[::1]:6742" << true << "openrgb:[::1]:6742";
    QTest::newRow("bare ipv6") << "openrgb:::1:6742" << false << "";
    QTest::newRow("port zero") << "openrgb:h:0" << false << "";
    QTest::newRow("port too big") << "openrgb:h:65536" << false << "";
    QTest::newRow("port not a number") << "openrgb:h:67x" << false << "";
    QTest::newRow("empty address") << "openrgb:" << false << "";
    QTest::newRow("odd host") << "openrgb:a b:1" << false << "";
    QTest::newRow("unknown output") << "wled" << false << "";
    QTest::newRow("empty") << "" << false << "";
}

void TestOrgbProtocol::outputChoice()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(QString, normal);
    OutputChoice choice;
    std::string error;
    QCOMPARE(OutputChoice::parse(text.toStdString(), &choice, &error), ok);
    if (ok) {
        QCOMPARE(QString::fromStdString(choice.text()), normal);
        OutputChoice again;
        QVERIFY(OutputChoice::parse(choice.text(), &again, &error));
        QCOMPARE(again.text(), choice.text());
    } else {
        QVERIFY(!error.empty());
    }
}

void TestOrgbProtocol::directLighting()
{
    DirectLighting direct;
    DirectLighting::Colors frame = {};
    for (int slot = 0; slot < nxproto::kSlotCount; ++slot)
        std::fill(std::begin(frame[slot]), std::end(frame[slot]), COLORREF(0x111111 * slot));
    const DirectLighting::Colors rendered = {};
    QVERIFY(!direct.anyActive());

    // Entering keeps what the module showed; colours set later replace LED by LED.
    direct.enter(2, frame[2]);
    const COLORREF two[] = {0xAA, 0xBB};
    direct.set(2, 3, two, 2);
    direct.set(5, 11, two, 2); // enters slot 5; the second colour is past the row
    direct.set(8, 0, two, 2);  // no slot 8
    direct.set(1, -1, two, 2);
    DirectLighting::Colors out;
    std::copy(&rendered[0][0], &rendered[0][0] + sizeof rendered / sizeof(COLORREF), &out[0][0]);
    direct.apply(out);
    QCOMPARE(out[2][0], frame[2][0]);
    QCOMPARE(out[2][3], COLORREF(0xAA));
    QCOMPARE(out[2][4], COLORREF(0xBB));
    QCOMPARE(out[5][11], COLORREF(0xAA));
    QCOMPARE(out[5][0], COLORREF(0));
    QVERIFY(!direct.active(1));
    QCOMPARE(out[1][0], COLORREF(0));

    // Entering again does not reset the client's colours; leaving gives the slot back.
    direct.enter(2, frame[0]);
    QCOMPARE(direct.colors(2)[3], COLORREF(0xAA));
    direct.leave(2);
    QVERIFY(!direct.active(2));
    QVERIFY(direct.anyActive());
    direct.leaveAll();
    QVERIFY(!direct.anyActive());
}

void TestOrgbProtocol::resumeWatch()
{
    ResumeWatch watch;
    watch.check(1000000, 500);            // compared with the real clocks read at construction
    QVERIFY(!watch.check(1002000, 2500)); // both clocks moved alike
    QVERIFY(!watch.check(1006000, 6400)); // a little drift
    QVERIFY(watch.check(1100000, 8400));  // wall clock ran on while asleep
    QVERIFY(!watch.check(1102000, 10400));
    QVERIFY(watch.check(1090000, 12400)); // clock set back
}

QTEST_GUILESS_MAIN(TestOrgbProtocol)
#include "tst_orgb_protocol.moc"
