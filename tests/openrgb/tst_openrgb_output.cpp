// Output "openrgb" against a scripted server speaking the recorded layouts of a DRAM
// controller: handshake, slot mapping, Direct mode, frame streaming, device list changes,
// reconnection and re-applying, and a server that lies about sizes.

#include "ControllerData.h"
#include "OpenRgbOutput.h"
#include "Recording.h"
#include "SdkPeers.h"

#include <QtTest>

namespace {

const char* const kLocations[] = {"I2C: /dev/i2c-0, address 0x40", // motherboard
                                  "I2C: /dev/i2c-1, address 0x73", "I2C: /dev/i2c-1, address 0x71",
                                  "I2C: /dev/i2c-1, address 0x70"};

// Controller `index` of the server; `lying` gets a data_size that disagrees with its packet.
FakeOrgbServer::Describe recorded(uint32_t lying = 99)
{
    return [lying](uint32_t index, uint32_t version) {
        std::vector<uint8_t> body = recordedDram(version, kLocations[index % 4], 5);
        if (index == 0)
            body[4] = 0; // a motherboard
        if (index == lying)
            body[0] += 7;
        return body;
    };
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

// The colours of the last LED update to `device`, empty when none.
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

class TestOpenRgbOutput : public QObject
{
    Q_OBJECT

private slots:
    void recordedConversation_data();
    void recordedConversation();
    void reconnectsReappliesAndFollowsTheList();
    void refusesLyingServer();
};

void TestOpenRgbOutput::recordedConversation_data()
{
    QTest::addColumn<uint>("serverVersion");
    QTest::addColumn<uint>("expected");
    QTest::newRow("protocol 3 server") << 3u << 3u;
    QTest::newRow("newer server") << 6u << 5u;
}

void TestOpenRgbOutput::recordedConversation()
{
    QFETCH(uint, serverVersion);
    QFETCH(uint, expected);
    FakeOrgbServer server(serverVersion, 3, recorded());
    OpenRgbOutput output(QStringLiteral("127.0.0.1"), server.port());
    output.start();
    QTRY_VERIFY_WITH_TIMEOUT(output.connected(), 10000);
    QCOMPARE(output.protocolVersion(), expected);

    // Name first, then one data request per controller carrying the agreed version.
    std::string name;
    QVERIFY(orgb::decodeName(server.last(orgb::SetClientName, 0)->body, &name));
    QCOMPARE(name, std::string("NORVALEX RGB"));
    QCOMPARE(server.count(orgb::RequestControllerData), 3);
    QCOMPARE(server.last(orgb::RequestControllerData, 2)->body, orgb::encodeU32(expected));

    // The two DRAM controllers by location: 0x71 (device 2) is slot 0.
    nxproto::HardwareInfo info;
    output.report(info);
    QCOMPARE(info.memoryCount, 2);
    QCOMPARE(output.modules()[0].device, 2u);
    QCOMPARE(info.modules[0].ledNum, 5);
    QCOMPARE(info.modules[0].type, std::string("ENE DRAM"));

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
    for (COLORREF i = 0; clock.elapsed() < 600; ++i) {
        output.showFrame(frameOf(i * 64).c);
        QTest::qWait(2);
    }
    QTest::qWait(100);
    const int perDevice = server.count(orgb::UpdateLeds) / 2;
    QVERIFY2(perDevice <= clock.elapsed() * OpenRgbOutput::kMaxFps / 1000 + 2,
             qPrintable(QString::number(perDevice)));
    QVERIFY(perDevice >= 3);
}

void TestOpenRgbOutput::reconnectsReappliesAndFollowsTheList()
{
    FakeOrgbServer server(4, 3, recorded());
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

    // After a resume the same happens on the open connection.
    server.clearReceived();
    output.reapply();
    QTRY_COMPARE(server.count(orgb::UpdateLeds), 2);
    QCOMPARE(server.count(orgb::UpdateMode), 2);
    QCOMPARE(server.connections(), 2);

    // A fourth controller at 0x70 appears: it takes slot 0, the others move up.
    server.setCount(4);
    server.push(orgb::DeviceListUpdated);
    QTRY_VERIFY(output.connected() && output.modules().size() == 3);
    QCOMPARE(output.modules()[0].device, 3u);
    QTRY_VERIFY(server.last(orgb::UpdateMode, 3) != nullptr);
}

void TestOpenRgbOutput::refusesLyingServer()
{
    FakeOrgbServer server(4, 3, recorded(1));
    OpenRgbOutput output(QStringLiteral("127.0.0.1"), server.port());
    output.start();
    QTRY_VERIFY_WITH_TIMEOUT(server.connections() >= 2, 20000); // closed and tried again
    QVERIFY(!output.connected() && output.modules().empty());
    QCOMPARE(server.count(orgb::UpdateLeds), 0);
}

QTEST_GUILESS_MAIN(TestOpenRgbOutput)
#include "tst_openrgb_output.moc"
