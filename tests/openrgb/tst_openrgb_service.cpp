// The service's SDK server, run for real: a second service drives the first through its
// "output" setting, hostile packets are shut out, and the openrgb-sdk npm client talks to it.

#include "ControllerData.h"
#include "Messages.h"
#include "RawClient.h"
#include "SdkPeers.h"
#include "ServiceProcess.h"
#include "TestEnvironment.h"

#include <QtTest>

namespace {

QString dir(const QString& name)
{
    const QString path = TestEnvironment::root().path() + QLatin1Char('/') + name;
    QDir().mkpath(path);
    QFile::setPermissions(path,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return path;
}

QString sdkArgument(quint16 port)
{
    return QStringLiteral("--sdk-server=127.0.0.1:%1").arg(port);
}

bool controllerData(SdkProbe& probe, uint32_t index, orgb::Controller* out)
{
    probe.send(index, orgb::RequestControllerData, orgb::encodeU32(orgb::kProtocolVersion));
    orgb::Packet packet;
    std::string error;
    return probe.waitFor(orgb::RequestControllerData, &packet) &&
           orgb::decodeController(packet.body, orgb::kProtocolVersion, out, &error);
}

bool anyLit(const std::vector<orgb::Color>& colors)
{
    return std::any_of(colors.begin(), colors.end(), [](orgb::Color c) { return c != 0; });
}

// Reads the panel's frames of `type` until one satisfies `accept`. Not for QTRY_*: those
// evaluate their condition more than once, and a still picture is sent only once.
template <typename Decode>
bool nextMatching(RawClient& panel, nxproto::MessageType type, Decode accept, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    for (qint64 left = timeoutMs; left > 0; left = timeoutMs - clock.elapsed()) {
        nxproto::Frame frame;
        if (panel.waitFor(type, &frame, int(left)) && accept(frame))
            return true;
    }
    return false;
}

} // namespace

class TestOpenRgbService : public QObject
{
    Q_OBJECT

private slots:
    void serviceDrivesService();
    void sdkClients();
};

void TestOpenRgbService::serviceDrivesService()
{
    // Service A serves two modules; an SDK client alone makes it render their own lighting.
    const quint16 port = freePort();
    ServiceProcess a(dir("sa/run"), dir("sa/config"));
    QVERIFY(
        a.start({sdkArgument(port), QStringLiteral("--modules=2"), QStringLiteral("--leds=5")}));
    SdkProbe probe;
    QVERIFY(probe.connectTo(port));
    orgb::Controller seen;
    QTRY_VERIFY_WITH_TIMEOUT(controllerData(probe, 1, &seen) && anyLit(seen.colors), 10000);
    QVERIFY(seen.activeMode != 0);

    // Service B drives A's modules, told so by the "output" key of its state file.
    ServiceProcess b(dir("sb/run"), dir("sb/config"));
    QVERIFY(b.start({QStringLiteral("--modules=0")}));
    QVERIFY(b.terminate());
    QFile state(dir("sb/config") + QStringLiteral("/norvalex/control-state.json"));
    QVERIFY(state.open(QIODevice::ReadWrite));
    const QByteArray json = state.readAll().replace(
        "\"output\": \"none\"",
        QStringLiteral("\"output\": \"openrgb:127.0.0.1:%1\"").arg(port).toUtf8());
    QVERIFY(json.contains("openrgb:") && state.resize(0) && state.write(json) == json.size());
    state.close();
    // B is itself an SDK server too, for the tool further down.
    const quint16 portB = freePort();
    QVERIFY(b.start({sdkArgument(portB)}));

    // B reports A's modules to its panel.
    RawClient panelB;
    QVERIFY(panelB.connectTo(b.socketPath()));
    nxproto::HardwareInfo info;
    QVERIFY(nextMatching(
        panelB, nxproto::MessageType::Hardware,
        [&](const nxproto::Frame& frame) {
            return nxproto::decodeHardware(frame, info, nullptr) && info.memoryCount == 2;
        },
        15000));
    QCOMPARE(info.modules[0].ledNum, 5);

    // B, with no preview wanted, renders onto A: A's slot 0 goes Direct and shows B's picture.
    QTRY_VERIFY_WITH_TIMEOUT(
        controllerData(probe, 0, &seen) && seen.activeMode == 0 && anyLit(seen.colors), 10000);

    // A tool driving B's second module directly reaches A's LEDs through B's output.
    SdkProbe tool;
    QVERIFY(tool.connectTo(portB));
    const std::vector<orgb::Color> colors{0x102030, 0x405060, 0x708090, 0xA0B0C0, 0xD0E0F0};
    tool.send(1, orgb::UpdateLeds, orgb::encodeLedUpdate(colors));
    QTRY_VERIFY_WITH_TIMEOUT(controllerData(probe, 1, &seen) && seen.colors == colors, 10000);

    // A's panel preview shows them too, until the user changes that module on A's panel.
    RawClient panelA;
    QVERIFY(panelA.connectTo(a.socketPath()));
    nxproto::Request preview;
    preview.type = nxproto::MessageType::SetPreview;
    preview.preview = true;
    panelA.send(preview);
    nxproto::PreviewMessage shown;
    const auto showsColors = [&](const nxproto::Frame& message) {
        return nxproto::decodePreview(message, shown, nullptr) &&
               std::equal(colors.begin(), colors.end(), shown.colors[1]);
    };
    QVERIFY(nextMatching(panelA, nxproto::MessageType::Preview, showsColors, 10000));
    panelA.send(lightingRequest(1, 6));
    QVERIFY(nextMatching(
        panelA, nxproto::MessageType::Preview,
        [&](const nxproto::Frame& message) { return !showsColors(message); }, 10000));

    QVERIFY(a.terminate() && b.terminate());
}

void TestOpenRgbService::sdkClients()
{
    const quint16 port = freePort();
    ServiceProcess service(dir("n/run"), dir("n/config"));
    QVERIFY(service.start(
        {sdkArgument(port), QStringLiteral("--modules=3"), QStringLiteral("--leds=8")}));

    // Hostile packets close their own connection only.
    std::vector<uint8_t> leds = orgb::encodeLedUpdate({1, 2});
    leds[0] = 99; // data_size disagrees
    std::vector<uint8_t> huge = orgb::encodePacket(0, orgb::UpdateLeds);
    huge[14] = 0x20; // 2 MiB body announced
    QByteArray magic = bytesOf(orgb::encodePacket(0, orgb::RequestControllerCount));
    magic[0] = 'X';
    const QByteArray packets[] = {
        magic, bytesOf(orgb::encodePacket(0, orgb::UpdateLeds, leds)), bytesOf(huge),
        bytesOf(
            orgb::encodePacket(0, orgb::UpdateMode, orgb::encodeModeUpdate(99, orgb::Mode(), 0)))};
    SdkProbe bystander;
    QVERIFY(bystander.connectTo(port));
    for (const QByteArray& packet : packets) {
        SdkProbe attacker;
        QVERIFY(attacker.connectTo(port));
        attacker.sendBytes(packet);
        QVERIFY2(attacker.waitForClose(), packet.toHex().constData());
        bystander.send(0, orgb::RequestControllerCount);
        orgb::Packet answer;
        QVERIFY(bystander.waitFor(orgb::RequestControllerCount, &answer));
        QCOMPARE(answer.body, orgb::encodeU32(3));
    }

    // The openrgb-sdk npm client, a real third-party peer.
    const QString node = QStandardPaths::findExecutable(QStringLiteral("node"));
    if (node.isEmpty())
        QSKIP("node is not installed: the openrgb-sdk client test needs Node.js");
    if (!QFile::exists(QStringLiteral(NX_NPM_DIR "/node_modules/openrgb-sdk/package.json")))
        QFAIL("openrgb-sdk is not installed in the build tree (test openrgb.npm_install)");
    QProcess script;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("NODE_PATH"), QStringLiteral(NX_NPM_DIR "/node_modules"));
    script.setProcessEnvironment(env);
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(node, {QStringLiteral(NX_SOURCE_DIR "/tests/openrgb/sdk_client.js"),
                        QString::number(port)});
    QVERIFY(script.waitForFinished(60000));
    QVERIFY2(script.exitCode() == 0, script.readAll().constData());

    // The client's change of mode reached the panel's state.
    RawClient panel;
    QVERIFY(panel.connectTo(service.socketPath()));
    nxproto::StateMessage state;
    QVERIFY(panel.waitForState(&state));
    QCOMPARE(state.state.module(2).lightMode, 4);
    QCOMPARE(state.state.module(2).lightSpeed, 0);
}

QTEST_GUILESS_MAIN(TestOpenRgbService)
#include "tst_openrgb_service.moc"
