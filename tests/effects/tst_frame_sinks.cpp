// Outputs fed by the service in process: a sink makes the service render, gets a still
// picture once and a moving one at the frame rate, and nothing once it is removed.

#include "ControlService.h"
#include "RawClient.h"

#include <QTemporaryDir>
#include <QtTest>

class FrameSinksTest : public QObject
{
    Q_OBJECT

private slots:
    void sinksDriveRendering();
};

void FrameSinksTest::sinksDriveRendering()
{
    QTemporaryDir dir;
    ServiceOptions options;
    options.modules = 2;
    ControlService service(options, dir.filePath(QStringLiteral("state.json")),
                           dir.filePath(QStringLiteral("control.sock")));
    QString error;
    QVERIFY2(service.start(&error), qPrintable(error));

    // Two modules in a still mode, set the way the panel sets them.
    RawClient client;
    QVERIFY(client.connectTo(dir.filePath(QStringLiteral("control.sock"))));
    client.send(lightingRequest(0, 6));
    client.send(lightingRequest(1, 6));
    QTRY_VERIFY(service.state().module(0).lightMode == 6 &&
                service.state().module(1).lightMode == 6);

    int frames = 0;
    nxproto::PreviewMessage last;
    const int id = service.addFrameSink([&](const nxproto::PreviewMessage& message) {
        ++frames;
        last = message;
    });
    // The current picture at once, and not again while it stands.
    QCOMPARE(frames, 1);
    QCOMPARE(last.colors[0][0], service.state().module(0).rgb[0]);
    QCOMPARE(last.colors[2][0], COLORREF(0)); // no third module
    QTest::qWait(500);
    QCOMPARE(frames, 1);

    // A moving picture streams.
    client.send(lightingRequest(1, 0));
    QTRY_VERIFY(frames >= 10);

    service.removeFrameSink(id);
    const int removed = frames;
    QTest::qWait(300);
    QCOMPARE(frames, removed);
    service.stop();
}

QTEST_GUILESS_MAIN(FrameSinksTest)
#include "tst_frame_sinks.moc"
