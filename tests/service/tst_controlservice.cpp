// The service as a process, driven through its socket without the library: single instance,
// quitting, persistence across clean stops and kills, refusal of malformed frames, the
// hardware and preview it reports.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <limits>
#include <memory>

using namespace nxproto;

namespace {

// Longer than the service's save delay plus the write itself.
constexpr int kSaveMarginMs = 500;
// Where a request's payload starts in its frame.
constexpr int kPayload = int(kHeaderSize);

Request lighting(int slot, int mode, int colorMode = 0, int speed = 2, bool off = false)
{
    Request request;
    request.type = MessageType::SetLighting;
    request.slot = slot;
    request.lightMode = mode;
    request.colorMode = colorMode;
    request.lightSpeed = speed;
    request.turnOff = off;
    return request;
}

Request staticColor(int slot, COLORREF color, float bright)
{
    Request request;
    request.type = MessageType::SetColors;
    request.slot = slot;
    request.count = 8;
    std::fill(std::begin(request.rgb), std::end(request.rgb), color);
    std::fill(std::begin(request.bright), std::end(request.bright), bright);
    request.singleRGB = color;
    request.singleBright = bright;
    return request;
}

QByteArray bytesOf(const std::vector<uint8_t>& frame)
{
    return QByteArray(reinterpret_cast<const char*>(frame.data()), int(frame.size()));
}

QByteArray header(quint32 length, quint16 version, quint16 type)
{
    QByteArray bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.append(char(length >> shift));
    bytes.append(char(version)).append(char(version >> 8));
    bytes.append(char(type)).append(char(type >> 8));
    return bytes;
}

} // namespace

class TestControlService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void oneInstanceAndQuitMessage();
    void cleanStopsKeepEveryChange();
    void killedServiceRestartsConsistent();
    void unusableStateFileIsSetAside();
    void malformedFramesChangeNothing();
    void mutatedFramesNeverCrashIt();
    void clientsShareOneState();
    void repeatedRequestsApplyOnce();
    void reportsConfiguredModules();
    void previewFollowsTheFrameRate();

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
    // The platform layer of this process finds the service's window in the same place.
    qputenv("XDG_RUNTIME_DIR", runtime_->path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", config_->path().toLocal8Bit());
    service_ = std::make_unique<ServiceProcess>(runtime_->path(), config_->path());
}

void TestControlService::cleanup()
{
    if (QTest::currentTestFailed())
        qWarning().noquote() << "service log:\n" << service_->log();
    service_.reset();
    runtime_.reset();
    config_.reset();
}

StateMessage TestControlService::connectAndReadState(RawClient& client)
{
    StateMessage state;
    if (!client.connectTo(service_->socketPath()) || !client.waitForState(&state))
        qWarning("no state from the service");
    return state;
}

void TestControlService::oneInstanceAndQuitMessage()
{
    QVERIFY(service_->start());
    ServiceProcess second(runtime_->path(), config_->path());
    QCOMPARE(second.runToEnd({}), 0);
    QVERIFY(service_->isRunning());

    RawClient client;
    connectAndReadState(client);
    const uint32_t seq = client.send(lighting(2, 17));
    StateMessage state;
    QVERIFY(client.waitForState(&state, seq));
    QVERIFY(service_->quitByMessage());
    QCOMPARE(service_->exitStatus(), QProcess::NormalExit);
    QCOMPARE(service_->exitCode(), 0);
    QVERIFY(!QFile::exists(service_->socketPath()));

    // The freed instance name lets the next one start, with the change kept.
    QVERIFY(service_->start());
    RawClient again;
    QCOMPARE(connectAndReadState(again).state.module(2).lightMode, 17);
}

void TestControlService::cleanStopsKeepEveryChange()
{
    QVERIFY(service_->start());
    RawClient client;
    connectAndReadState(client);
    client.send(lighting(0, 4, 1, 3, true));
    client.send(staticColor(1, 0x00123456, 0.4f));
    Request order;
    order.type = MessageType::SetSlotOrder;
    order.count = 8;
    for (int i = 0; i < 8; ++i)
        order.order[i] = 7 - i;
    client.send(order);
    Request setting;
    setting.type = MessageType::SetSetting;
    setting.setting = SettingData{3, false, false, true, 9};
    client.send(setting);
    Request noti;
    noti.type = MessageType::SetNotification;
    noti.noti.loadingValue = 55;
    noti.noti.reserved20 = -7;
    const uint32_t last = client.send(noti);
    StateMessage sent;
    QVERIFY(client.waitForState(&sent, last));
    // SIGTERM right away, well inside the save delay.
    QVERIFY(service_->terminate());
    QCOMPARE(service_->exitCode(), 0);

    QVERIFY(service_->start());
    RawClient again;
    const StateMessage back = connectAndReadState(again);
    QVERIFY(back.state == sent.state);
    QCOMPARE(back.state.module(0).lightMode, 4);
    QVERIFY(back.state.module(0).turnOff);
    QCOMPARE(back.state.module(1).rgb[7], COLORREF(0x00123456));
    QCOMPARE(back.state.slotOrder[0], 7);
    QCOMPARE(back.state.setting.languageIndex, 3);
    QCOMPARE(back.state.noti.reserved20, -7);
    QCOMPARE(back.changes, uint32_t(ChangeAll));
}

void TestControlService::killedServiceRestartsConsistent()
{
    QVERIFY(service_->start());
    RawClient client;
    connectAndReadState(client);
    // A burst of changes, killed in the middle: each round sets slot 0 then slot 1 to the
    // same mode, so a consistent file has slot 1 equal to slot 0 or one round behind.
    const int rounds = 300;
    const int killAt = 100 + QRandomGenerator::global()->bounded(150);
    for (int round = 0; round < rounds; ++round) {
        client.send(lighting(0, round % 38));
        client.send(lighting(1, round % 38));
        if (round % 20 == 0)
            QTest::qWait(15);
        if (round == killAt) {
            service_->kill();
            break;
        }
    }
    QVERIFY(!service_->isRunning());
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
    const uint32_t seq = after.send(lighting(5, 33, 2, 1));
    QVERIFY(after.waitForState(&state, seq));
    QTest::qWait(kSaveMarginMs);
    service_->kill();
    QVERIFY(service_->start());
    RawClient third;
    QCOMPARE(connectAndReadState(third).state.module(5).lightMode, 33);
}

void TestControlService::unusableStateFileIsSetAside()
{
    QDir().mkpath(config_->filePath(QStringLiteral("norvalex")));
    QFile file(service_->statePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"format\": \"norvalex-control-state\", \"version\": 1, \"profile\": 9");
    file.close();

    QVERIFY(service_->start());
    RawClient client;
    QVERIFY(connectAndReadState(client).state == defaultControlState());
    const QStringList aside = QDir(config_->filePath(QStringLiteral("norvalex")))
                                  .entryList({QStringLiteral("control-state.json.unusable-*")});
    QCOMPARE(aside.size(), 1);
    // The replacement is a good file at once.
    QFile replaced(service_->statePath());
    QVERIFY(replaced.open(QIODevice::ReadOnly));
    QVERIFY(QJsonDocument::fromJson(replaced.readAll()).isObject());
    QVERIFY(service_->terminate());
    QVERIFY(service_->log().contains("unusable"));
}

void TestControlService::malformedFramesChangeNothing()
{
    QVERIFY(service_->start());
    RawClient watcher;
    const StateMessage before = connectAndReadState(watcher);

    const Request valid = lighting(3, 12);
    const QByteArray good = bytesOf(encodeRequest(valid));
    struct Case {
        const char* name;
        QByteArray bytes;
        bool closes; // framing broken: the service hangs up
    };
    QByteArray badSlot = good;
    badSlot[kPayload + 4] = char(8);
    QByteArray negativeSlot = good;
    negativeSlot[kPayload + 4] = char(0xFF);
    negativeSlot[kPayload + 7] = char(0xFF);
    QByteArray badMode = good;
    badMode[kPayload + 8] = char(38);
    Request nanBright = staticColor(0, 0xFF, 1.0f);
    nanBright.bright[3] = std::numeric_limits<float>::quiet_NaN();
    Request infSingle = staticColor(0, 0xFF, 1.0f);
    infSingle.singleBright = std::numeric_limits<float>::infinity();
    Request badProfile;
    badProfile.type = MessageType::SetProfile;
    badProfile.profile = 5;
    const Case cases[] = {
        {"short length", header(2, kProtocolVersion, 0x10), true},
        {"oversized length", header(kMaxFrameLength + 1, kProtocolVersion, 0x10), true},
        {"bad version", header(4 + 21, 7, 0x10) + good.mid(kPayload), true},
        {"unknown type", header(8, kProtocolVersion, 0x4242) + QByteArray(4, '\1'), false},
        {"server type from client", bytesOf(encodeState(before)), false},
        {"truncated payload", header(4 + 10, kProtocolVersion, 0x10) + good.mid(8, 10), false},
        {"extra payload", header(4 + 22, kProtocolVersion, 0x10) + good.mid(8) + '\0', false},
        {"slot 8", badSlot, false},
        {"slot -1", negativeSlot, false},
        {"mode 38", badMode, false},
        {"NaN brightness", bytesOf(encodeRequest(nanBright)), false},
        {"inf brightness", bytesOf(encodeRequest(infSingle)), false},
        {"profile 5", bytesOf(encodeRequest(badProfile)), false},
    };
    for (const Case& c : cases) {
        RawClient client;
        QVERIFY(client.connectTo(service_->socketPath()));
        client.sendBytes(c.bytes);
        Frame reply;
        QVERIFY2(client.waitFor(MessageType::Error, &reply), c.name);
        ErrorMessage error;
        QVERIFY2(decodeError(reply, error, nullptr), c.name);
        QVERIFY2(!error.text.empty(), c.name);
        if (c.closes)
            QVERIFY2(client.waitForDisconnected(), c.name);
        else
            QVERIFY2(client.isConnected(), c.name);
    }
    // Nothing was applied or pushed; the service still answers.
    Frame frame;
    QCOMPARE(watcher.countFor(MessageType::State, 100, &frame), 0);
    RawClient last;
    const StateMessage after = connectAndReadState(last);
    QVERIFY(after.state == before.state);
    const uint32_t seq = last.send(valid);
    StateMessage applied;
    QVERIFY(last.waitForState(&applied, seq));
    QCOMPARE(applied.state.module(3).lightMode, 12);
    QVERIFY(service_->terminate());
    QVERIFY(service_->log().contains("refused"));
}

void TestControlService::mutatedFramesNeverCrashIt()
{
    QVERIFY(service_->start());
    // Valid frames of every request type, mutated at random: flipped bytes, cut or grown
    // tails, spliced headers. Seeded, so a failure repeats.
    std::vector<QByteArray> seeds;
    seeds.push_back(bytesOf(encodeRequest(lighting(1, 2))));
    seeds.push_back(bytesOf(encodeRequest(staticColor(2, 0x00FF00, 0.5f))));
    for (MessageType type :
         {MessageType::SetSlotOrder, MessageType::SetProfile, MessageType::SetNotification,
          MessageType::SetSetting, MessageType::SetPreview}) {
        Request request;
        request.type = type;
        request.count = 8;
        seeds.push_back(bytesOf(encodeRequest(request)));
    }
    QRandomGenerator random(20240611);
    auto client = std::make_unique<RawClient>();
    QVERIFY(client->connectTo(service_->socketPath()));
    for (int i = 0; i < 400; ++i) {
        QByteArray frame = seeds[random.bounded(int(seeds.size()))];
        switch (random.bounded(4)) {
        case 0:
            for (int flips = 1 + random.bounded(4); flips > 0; --flips)
                frame[random.bounded(frame.size())] = char(random.bounded(256));
            break;
        case 1:
            frame.truncate(random.bounded(frame.size()));
            break;
        case 2:
            frame.append(QByteArray(1 + random.bounded(16), char(random.bounded(256))));
            break;
        default: {
            const int at = kPayload + random.bounded(frame.size() - kPayload);
            frame[at] = char(frame.at(at) ^ 0x80);
            break;
        }
        }
        client->sendBytes(frame);
        // Now and then let the service answer or hang up, and go on with a fresh connection.
        if (i % 10 == 9) {
            client->countFor(MessageType::State, 5);
            if (!client->isConnected()) {
                client = std::make_unique<RawClient>();
                QVERIFY(client->connectTo(service_->socketPath()));
            }
        }
    }
    QVERIFY(service_->isRunning());
    RawClient probe;
    connectAndReadState(probe);
    const uint32_t seq = probe.send(lighting(4, 21));
    StateMessage state;
    QVERIFY(probe.waitForState(&state, seq));
    QCOMPARE(state.state.module(4).lightMode, 21);
    QVERIFY(service_->terminate());
    QCOMPARE(service_->exitCode(), 0);
    QFile file(service_->statePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(QJsonDocument::fromJson(file.readAll()).isObject());
}

void TestControlService::clientsShareOneState()
{
    QVERIFY(service_->start());
    RawClient a;
    RawClient b;
    connectAndReadState(a);
    connectAndReadState(b);
    const uint32_t seq = a.send(lighting(6, 28, 3, 0));
    StateMessage seenByA;
    StateMessage seenByB;
    QVERIFY(a.waitForState(&seenByA, seq));
    QVERIFY(b.waitForState(&seenByB));
    QCOMPARE(seenByB.state.module(6).lightMode, 28);
    QCOMPARE(seenByB.changes, uint32_t(ChangeLighting));
    QCOMPARE(seenByB.ackSeq, 0u); // b sent nothing

    Request profile;
    profile.type = MessageType::SetProfile;
    profile.profile = 3;
    const uint32_t bSeq = b.send(profile);
    QVERIFY(b.waitForState(&seenByB, bSeq));
    QVERIFY(a.waitForState(&seenByA));
    QCOMPARE(seenByA.state.profile, 3);
    QCOMPARE(seenByA.state.module(6).lightMode, 5); // profile 3 untouched so far
    QVERIFY(seenByA.state == seenByB.state);
}

void TestControlService::repeatedRequestsApplyOnce()
{
    QVERIFY(service_->start());
    Request hello;
    hello.type = MessageType::Hello;
    hello.clientId = 0x1234567890ABCDEFull;

    RawClient first;
    connectAndReadState(first);
    first.send(hello, 0);
    first.send(lighting(0, 10), 5);
    StateMessage state;
    QVERIFY(first.waitForState(&state, 5));
    QCOMPARE(state.state.module(0).lightMode, 10);

    // The same client after a reconnection: its repeat and a late older request are
    // acknowledged but not applied again, a newer one is.
    RawClient second;
    connectAndReadState(second);
    second.send(hello, 0);
    QVERIFY(second.waitForState(&state, 5));
    QCOMPARE(state.changes, 0u);
    second.send(lighting(0, 20), 5);
    second.send(lighting(0, 30), 4);
    second.send(lighting(1, 12), 6);
    QVERIFY(second.waitForState(&state, 6));
    QCOMPARE(state.state.module(0).lightMode, 10);
    QCOMPARE(state.state.module(1).lightMode, 12);

    // Anonymous clients are taken as they come.
    RawClient anonymous;
    connectAndReadState(anonymous);
    anonymous.send(lighting(0, 21), 5);
    anonymous.send(lighting(0, 22), 5);
    QVERIFY(QTest::qWaitFor(
        [&] {
            return anonymous.waitForState(&state, 5, 100) && state.state.module(0).lightMode == 22;
        },
        2000));

    Request noIdentity;
    noIdentity.type = MessageType::Hello;
    anonymous.send(noIdentity);
    Frame reply;
    QVERIFY(anonymous.waitFor(MessageType::Error, &reply));
}

void TestControlService::reportsConfiguredModules()
{
    QCOMPARE(service_->runToEnd({QStringLiteral("--modules"), QStringLiteral("9")}), 2);
    QCOMPARE(service_->runToEnd({QStringLiteral("--leds"), QStringLiteral("7")}), 2);

    QVERIFY(service_->start({QStringLiteral("--modules"), QStringLiteral("6"),
                             QStringLiteral("--leds"), QStringLiteral("5"),
                             QStringLiteral("--model"), QStringLiteral("KX44,KZ80")}));
    RawClient client;
    QVERIFY(client.connectTo(service_->socketPath()));
    Frame frame;
    QVERIFY(client.waitFor(MessageType::Hardware, &frame));
    HardwareInfo first;
    QVERIFY(decodeHardware(frame, first, nullptr));
    QCOMPARE(first.memoryCount, 6);
    QCOMPARE(first.slotCount, 8);
    QCOMPARE(first.modules[5].ledNum, 5);
    QCOMPARE(first.modules[1].modelCode, std::string("KZ80"));
    QVERIFY(!first.modules[6].present);
    QVERIFY(first.memoryLoad >= 0.0 && first.memoryLoad <= 100.0);
    // Refreshed every second.
    QVERIFY(client.waitFor(MessageType::Hardware, &frame, 2500));
    HardwareInfo next;
    QVERIFY(decodeHardware(frame, next, nullptr));
    QVERIFY(next.updateTime >= first.updateTime);
    QVERIFY(client.waitFor(MessageType::Hardware, &frame, 2500));
    QVERIFY(decodeHardware(frame, next, nullptr));
    QVERIFY(next.updateTime > first.updateTime);
    QVERIFY(service_->terminate());

    // A run's options are not stored: the next plain start has the stored four modules.
    QVERIFY(service_->start());
    RawClient plain;
    QVERIFY(plain.connectTo(service_->socketPath()));
    QVERIFY(plain.waitFor(MessageType::Hardware, &frame));
    QVERIFY(decodeHardware(frame, first, nullptr));
    QCOMPARE(first.memoryCount, 4);
    QCOMPARE(first.slotCount, 4);
    QVERIFY(service_->terminate());

    // The stored configuration key chooses the modules of a plain start.
    QFile file(service_->statePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    file.close();
    QJsonObject simulation = object.value(QStringLiteral("simulation")).toObject();
    simulation.insert(QStringLiteral("modules"), 0);
    object.insert(QStringLiteral("simulation"), simulation);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(QJsonDocument(object).toJson());
    file.close();
    QVERIFY(service_->start());
    RawClient empty;
    QVERIFY(empty.connectTo(service_->socketPath()));
    QVERIFY(empty.waitFor(MessageType::Hardware, &frame));
    QVERIFY(decodeHardware(frame, first, nullptr));
    QCOMPARE(first.memoryCount, 0);
    QCOMPARE(first.slotCount, 4);
    QVERIFY(!first.modules[0].present);
}

void TestControlService::previewFollowsTheFrameRate()
{
    QVERIFY(service_->start());
    RawClient client;
    connectAndReadState(client);
    Frame frame;
    QCOMPARE(client.countFor(MessageType::Preview, 200), 0); // not asked for yet

    client.send(lighting(0, 6, 0));
    client.send(staticColor(0, 0x00204080, 0.5f));
    client.send(lighting(1, 6, 1, 2, true));
    Request preview;
    preview.type = MessageType::SetPreview;
    preview.preview = true;
    client.send(preview);
    const int frames = client.countFor(MessageType::Preview, 1000, &frame);
    QVERIFY2(frames >= 20 && frames <= 40, qPrintable(QString::number(frames)));
    PreviewMessage message;
    QVERIFY(decodePreview(frame, message, nullptr));
    QCOMPARE(message.colors[0][0], COLORREF(0x00102040));
    QCOMPARE(message.colors[1][0], COLORREF(0));
    QCOMPARE(message.colors[5][0], COLORREF(0)); // no module there

    preview.preview = false;
    client.send(preview);
    client.countFor(MessageType::Preview, 100);
    QCOMPARE(client.countFor(MessageType::Preview, 300), 0);
}

QTEST_GUILESS_MAIN(TestControlService)
#include "tst_controlservice.moc"
