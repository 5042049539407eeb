// The service's renderer: the canvas in slot order, and the service rendering and sending only
// what is wanted, to preview clients and to frame sinks.

#include "ControlService.h"
#include "EffectRenderer.h"
#include "PrivateSoundServer.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace nxproto;

namespace {

constexpr int kShootingStar = 17;

HardwareInfo fourModules()
{
    HardwareInfo hardware;
    for (int slot = 0; slot < 4; ++slot) {
        hardware.modules[slot].present = true;
        hardware.modules[slot].ledNum = 8;
        hardware.modules[slot].temperature = 40;
    }
    return hardware;
}

// The first moment the slot shows a bright LED, -1 if never within the time.
double firstLit(const ControlState& state, const HardwareInfo& hardware, int slot)
{
    EffectRenderer::Colors colors;
    for (double t = 0; t < 5; t += 0.01) {
        nxfx::SceneInput scene;
        scene.seconds = t;
        EffectRenderer::render(state, hardware, scene, colors);
        for (COLORREF c : colors[slot])
            if (nxfx::peak(c) > 128)
                return t;
    }
    return -1;
}

} // namespace

class EffectRendererTest : public QObject
{
    Q_OBJECT

private slots:
    void canvasFollowsSlotOrder();
    void rendersOnlyWhatIsWanted();
    void sinksDriveRendering();
    void listensOnlyDuringParty();
};

void EffectRendererTest::canvasFollowsSlotOrder()
{
    ControlState state = defaultControlState();
    HardwareInfo hardware = fourModules();
    for (int slot = 0; slot < kSlotCount; ++slot) {
        state.module(slot).lightMode = kShootingStar;
        state.module(slot).colorMode = 1;
        state.module(slot).singleRGB = 0xFFFFFF;
    }
    // Slot order as laid out: the star reaches slot 0 first and slot 3 last.
    QVERIFY(firstLit(state, hardware, 0) < firstLit(state, hardware, 1));
    QVERIFY(firstLit(state, hardware, 1) < firstLit(state, hardware, 3));

    // Reversed in Edit mode: slot 3 stands in column 0 and is reached first.
    for (int slot = 0; slot < kSlotCount; ++slot)
        state.slotOrder[slot] = kSlotCount - 1 - slot;
    int column[kSlotCount];
    QCOMPARE(EffectRenderer::columns(state, hardware, column), 4);
    QCOMPARE(column[3], 0);
    QCOMPARE(column[0], 3);
    QCOMPARE(column[5], -1);
    QVERIFY(firstLit(state, hardware, 3) < firstLit(state, hardware, 0));

    // An absent slot between present ones leaves no gap on the canvas.
    for (int slot = 0; slot < kSlotCount; ++slot)
        state.slotOrder[slot] = slot;
    hardware.modules[1].present = false;
    hardware.modules[4] = hardware.modules[0];
    QCOMPARE(EffectRenderer::columns(state, hardware, column), 4);
    QCOMPARE(column[2], 1);
    QCOMPARE(column[4], 3);
    EffectRenderer::Colors colors;
    EffectRenderer::render(state, hardware, nxfx::SceneInput(), colors);
    for (COLORREF c : colors[1])
        QCOMPARE(c, COLORREF(0));
}

void EffectRendererTest::rendersOnlyWhatIsWanted()
{
    std::signal(SIGPIPE, SIG_IGN);
    QTemporaryDir dir;
    ServiceProcess service(dir.path(), dir.path());
    QVERIFY(service.start({QStringLiteral("--modules"), QStringLiteral("4")}));
    RawClient client;
    QVERIFY(client.connectTo(service.socketPath()));
    StateMessage state;
    QVERIFY(client.waitForState(&state));

    // Nobody asked: no frames, whatever the mode.
    QCOMPARE(client.countFor(MessageType::Preview, 400), 0);

    uint32_t seq = 0;
    for (int slot = 0; slot < 4; ++slot)
        seq = client.send(lightingRequest(slot, 6));
    QVERIFY(client.waitForState(&state, seq));
    Request preview;
    preview.type = MessageType::SetPreview;
    preview.preview = true;
    client.send(preview);
    // A static picture arrives once and is not sent again while it stands.
    QCOMPARE(client.countFor(MessageType::Preview, 1500), 1);

    // An animated one streams.
    client.send(lightingRequest(2, 0));
    QVERIFY(client.countFor(MessageType::Preview, 1500) >= 10);

    preview.preview = false;
    client.send(preview);
    client.countFor(MessageType::Preview, 300);
    QCOMPARE(client.countFor(MessageType::Preview, 500), 0);
    QVERIFY(service.terminate());
}

void EffectRendererTest::sinksDriveRendering()
{
    // In process: a sink alone makes the service render, and nothing reaches it once removed.
    QTemporaryDir dir;
    ServiceOptions options;
    options.modules = 2;
    ControlService service(options, dir.filePath(QStringLiteral("state.json")),
                           dir.filePath(QStringLiteral("control.sock")));
    QString error;
    QVERIFY2(service.start(&error), qPrintable(error));
    RawClient client;
    QVERIFY(client.connectTo(dir.filePath(QStringLiteral("control.sock"))));
    client.send(lightingRequest(0, 6));
    client.send(lightingRequest(1, 0));
    QTRY_VERIFY(service.state().module(0).lightMode == 6 &&
                service.state().module(1).lightMode == 0);

    int frames = 0;
    PreviewMessage last;
    const int id = service.addFrameSink([&](const PreviewMessage& message) {
        ++frames;
        last = message;
    });
    QCOMPARE(frames, 1); // the current picture at once
    QCOMPARE(last.colors[0][0], service.state().module(0).rgb[0]);
    QCOMPARE(last.colors[2][0], COLORREF(0)); // no third module
    QTRY_VERIFY(frames >= 10);
    service.removeFrameSink(id);
    const int removed = frames;
    QTest::qWait(300);
    QCOMPARE(frames, removed);
    service.stop();
}

void EffectRendererTest::listensOnlyDuringParty()
{
    std::signal(SIGPIPE, SIG_IGN);
    PrivateSoundServer sound;
    if (!sound.start())
        QSKIP("pulseaudio is not installed");
    // The streams recording from the sound server, as its own tool lists them.
    auto recordings = [&sound]() {
        QProcess pactl;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("PULSE_SERVER"), QString::fromLocal8Bit(sound.address()));
        pactl.setProcessEnvironment(env);
        pactl.start(QStringLiteral("pactl"), {QStringLiteral("list"), QStringLiteral("short"),
                                              QStringLiteral("source-outputs")});
        pactl.waitForFinished(10000);
        return pactl.readAllStandardOutput().count('\n');
    };
    const QByteArray saved = qgetenv("PULSE_SERVER");
    qputenv("PULSE_SERVER", sound.address());
    QTemporaryDir dir;
    ServiceProcess service(dir.path(), dir.path());
    qputenv("PULSE_SERVER", saved);
    QVERIFY(service.start({QStringLiteral("--modules"), QStringLiteral("2")}));
    RawClient client;
    QVERIFY(client.connectTo(service.socketPath()));
    StateMessage state;
    QVERIFY(client.waitForState(&state));
    QCOMPARE(recordings(), 0);

    // Party with nobody watching: nothing to render, nothing to listen for.
    QVERIFY(client.waitForState(&state, client.send(lightingRequest(1, 10))));
    QTest::qWait(300);
    QCOMPARE(recordings(), 0);

    Request preview;
    preview.type = MessageType::SetPreview;
    preview.preview = true;
    client.send(preview);
    QTRY_COMPARE_WITH_TIMEOUT(recordings(), 1, 10000);

    // Another mode: the recording ends.
    QVERIFY(client.waitForState(&state, client.send(lightingRequest(1, 6))));
    QTRY_COMPARE_WITH_TIMEOUT(recordings(), 0, 10000);
    QVERIFY(service.terminate());
}

QTEST_GUILESS_MAIN(EffectRendererTest)
#include "tst_effect_renderer.moc"
