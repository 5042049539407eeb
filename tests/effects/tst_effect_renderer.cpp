// The service's renderer: the canvas in slot order, and the service rendering, sending and
// listening to the desktop's music only when someone wants the picture.

#include "EffectRenderer.h"
#include "PrivateSoundServer.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>

using namespace nxproto;

class EffectRendererTest : public QObject
{
    Q_OBJECT

private slots:
    void canvasFollowsSlotOrder();
    void rendersAndListensOnlyWhenWanted();
};

void EffectRendererTest::canvasFollowsSlotOrder()
{
    // Reversed in Edit mode: slot 3 stands in column 0.
    ControlState state = defaultControlState();
    HardwareInfo hardware;
    for (int slot = 0; slot < kSlotCount; ++slot) {
        hardware.modules[slot].present = slot < 4;
        hardware.modules[slot].ledNum = 8;
        state.module(slot).lightMode = 6;
        state.slotOrder[slot] = kSlotCount - 1 - slot;
    }
    int column[kSlotCount];
    QCOMPARE(EffectRenderer::columns(state, hardware, column), 4);
    QCOMPARE(column[3], 0);
    QCOMPARE(column[5], -1);

    // An absent slot between present ones leaves no gap on the canvas, and stays dark.
    for (int slot = 0; slot < kSlotCount; ++slot)
        state.slotOrder[slot] = slot;
    hardware.modules[1].present = false;
    hardware.modules[4] = hardware.modules[0];
    QCOMPARE(EffectRenderer::columns(state, hardware, column), 4);
    QCOMPARE(column[2], 1);
    QCOMPARE(column[4], 3);
    EffectRenderer::Colors colors;
    EffectRenderer::render(state, hardware, nxfx::SceneInput(), colors);
    QVERIFY(std::all_of(colors[1], colors[1] + kLedCount, [](COLORREF c) { return c == 0; }));
}

void EffectRendererTest::rendersAndListensOnlyWhenWanted()
{
    std::signal(SIGPIPE, SIG_IGN);
    // The service hears a sound server of our own; pactl counts the streams recording from it.
    PrivateSoundServer sound;
    const bool hasSound = sound.start();
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
    QVERIFY(service.start({QStringLiteral("--modules"), QStringLiteral("4")}));
    RawClient client;
    QVERIFY(client.connectTo(service.socketPath()));
    StateMessage state;
    QVERIFY(client.waitForState(&state));
    uint32_t seq = 0;
    for (int slot = 0; slot < 4; ++slot)
        seq = client.send(lightingRequest(slot, 6));
    QVERIFY(client.waitForState(&state, seq));

    // Asked, a static picture arrives once and is not sent again.
    Request preview;
    preview.type = MessageType::SetPreview;
    preview.preview = true;
    client.send(preview);
    QCOMPARE(client.countFor(MessageType::Preview, 1500), 1);

    // Party with nobody watching: nothing to render, nothing to listen for.
    preview.preview = false;
    client.send(preview);
    QVERIFY(client.waitForState(&state, client.send(lightingRequest(1, 10))));
    client.countFor(MessageType::Preview, 300);
    QCOMPARE(client.countFor(MessageType::Preview, 500), 0);
    QCOMPARE(hasSound ? recordings() : 0, 0);

    // Watched, it streams and listens; another mode ends the recording.
    preview.preview = true;
    client.send(preview);
    QVERIFY(client.countFor(MessageType::Preview, 1500) >= 10);
    if (hasSound) {
        QTRY_COMPARE_WITH_TIMEOUT(recordings(), 1, 10000);
        QVERIFY(client.waitForState(&state, client.send(lightingRequest(1, 6))));
        QTRY_COMPARE_WITH_TIMEOUT(recordings(), 0, 10000);
    }
    QVERIFY(service.terminate());
}

QTEST_GUILESS_MAIN(EffectRendererTest)
#include "tst_effect_renderer.moc"
