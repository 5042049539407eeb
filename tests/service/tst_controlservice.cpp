// The service as a process, driven through its socket without the library: a kill in the
// middle of a burst of changes, and frames it must refuse.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <limits>
#include <memory>

using namespace nxproto;

namespace {

Request lighting(int slot, int mode)
{
    Request request;
    request.type = MessageType::SetLighting;
    request.slot = slot;
    request.lightMode = mode;
    return request;
}

QByteArray bytesOf(const Request& request)
{
    const std::vector<uint8_t> frame = encodeRequest(request);
    return QByteArray(reinterpret_cast<const char*>(frame.data()), int(frame.size()));
}

QByteArray header(quint32 length, quint16 version, quint16 type)
{
    QByteArray bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.append(char(length >> shift));
    bytes.append(char(version)).append(char(version >> 8));
    return bytes.append(char(type)).append(char(type >> 8));
}

} // namespace

class TestControlService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void killedDuringBurstRestartsConsistent();
    void malformedFramesChangeNothing();

private:
    StateMessage connectAndReadState(RawClient& client);

    std::unique_ptr<QTemporaryDir> runtime_;
    std::unique_ptr<QTemporaryDir> config_;
    std::unique_ptr<ServiceProcess> service_;
};

void TestControlService::initTestCase()
{
    // Writing to a connection the service has just closed must not end the test.
    std::signal(SIGPIPE, SIG_IGN);
}

void TestControlService::init()
{
    runtime_ = std::make_unique<QTemporaryDir>();
    config_ = std::make_unique<QTemporaryDir>();
    QVERIFY(runtime_->isValid() && config_->isValid());
    service_ = std::make_unique<ServiceProcess>(runtime_->path(), config_->path());
    QVERIFY(service_->start());
}

void TestControlService::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning().noquote() << "service log:\n" << service_->log();
    service_.reset();
}

StateMessage TestControlService::connectAndReadState(RawClient& client)
{
    StateMessage state;
    if (!client.connectTo(service_->socketPath()) || !client.waitForState(&state))
        qWarning("no state from the service");
    return state;
}

void TestControlService::killedDuringBurstRestartsConsistent()
{
    RawClient client;
    connectAndReadState(client);
    // Each round sets slot 0 then slot 1 to the same mode, so a consistent file has slot 1
    // equal to slot 0 or one round behind.
    const int killAt = 100 + QRandomGenerator::global()->bounded(150);
    for (int round = 0; round <= killAt; ++round) {
        client.send(lighting(0, round % 38));
        client.send(lighting(1, round % 38));
        if (round % 20 == 0)
            QTest::qWait(15);
    }
    service_->kill();
    QVERIFY(service_->start());
    RawClient after;
    StateMessage state = connectAndReadState(after);
    const QStringList files =
        QDir(config_->filePath(QStringLiteral("norvalex"))).entryList(QDir::Files | QDir::Hidden);
    QCOMPARE(files, QStringList{QStringLiteral("control-state.json")}); // nothing set aside
    const int first = state.state.module(0).lightMode;
    const int second = state.state.module(1).lightMode;
    QVERIFY2(first == second || first == (second + 1) % 38,
             qPrintable(QStringLiteral("%1 %2").arg(first).arg(second)));

    // A change followed by a pause is on disk when the kill comes.
    QVERIFY(after.waitForState(&state, after.send(lighting(5, 33))));
    QTest::qWait(500);
    service_->kill();
    QVERIFY(service_->start());
    RawClient third;
    QCOMPARE(connectAndReadState(third).state.module(5).lightMode, 33);
}

void TestControlService::malformedFramesChangeNothing()
{
    RawClient watcher;
    const StateMessage before = connectAndReadState(watcher);
    const QByteArray good = bytesOf(lighting(3, 12));
    const int payload = int(kHeaderSize);
    QByteArray badSlot = good;
    badSlot[payload + 4] = char(8);
    QByteArray badMode = good;
    badMode[payload + 8] = char(38);
    Request nanBright;
    nanBright.type = MessageType::SetColors;
    nanBright.count = 8;
    nanBright.bright[3] = std::numeric_limits<float>::quiet_NaN();
    const QByteArray corpus[] = {
        header(2, kProtocolVersion, 0x10),
        header(kMaxFrameLength + 1, kProtocolVersion, 0x10),
        header(quint32(good.size() - 4), 7, 0x10) + good.mid(payload),
        header(8, kProtocolVersion, 0x4242) + QByteArray(4, '\1'),
        header(4 + 10, kProtocolVersion, 0x10) + good.mid(payload, 10),
        badSlot,
        badMode,
        bytesOf(nanBright),
    };
    for (const QByteArray& bytes : corpus) {
        RawClient client;
        QVERIFY(client.connectTo(service_->socketPath()));
        client.sendBytes(bytes);
        Frame reply;
        QVERIFY2(client.waitFor(MessageType::Error, &reply), bytes.toHex().constData());
    }
    QCOMPARE(watcher.countFor(MessageType::State, 100), 0);
    RawClient probe;
    QVERIFY(connectAndReadState(probe).state == before.state);

    // Seeded random mutations of valid frames: flipped bytes, cut or grown tails.
    const QByteArray seeds[] = {good, bytesOf(nanBright), badSlot};
    QRandomGenerator random(20240611);
    auto client = std::make_unique<RawClient>();
    QVERIFY(client->connectTo(service_->socketPath()));
    for (int i = 0; i < 300; ++i) {
        QByteArray frame = seeds[random.bounded(3)];
        const int choice = random.bounded(3);
        if (choice == 0)
            frame[random.bounded(frame.size())] = char(random.bounded(256));
        else if (choice == 1)
            frame.truncate(random.bounded(frame.size()));
        else
            frame.append(QByteArray(1 + random.bounded(16), char(random.bounded(256))));
        client->sendBytes(frame);
        if (i % 10 == 9) {
            client->countFor(MessageType::State, 5);
            if (!client->isConnected()) {
                client = std::make_unique<RawClient>();
                QVERIFY(client->connectTo(service_->socketPath()));
            }
        }
    }
    QVERIFY(service_->isRunning());
    RawClient last;
    connectAndReadState(last);
    StateMessage applied;
    QVERIFY(last.waitForState(&applied, last.send(lighting(4, 21))));
    QCOMPARE(applied.state.module(4).lightMode, 21);
    QVERIFY(service_->terminate());
    QCOMPARE(service_->exitCode(), 0);
}

QTEST_GUILESS_MAIN(TestControlService)
#include "tst_controlservice.moc"
