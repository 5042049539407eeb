// The protocol's codecs, and the service as a process driven through its socket without the
// library: a kill in the middle of a burst of changes, and frames it must refuse.

#include "ServiceHome.h"

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <limits>
#include <memory>

using namespace nxproto;

class TestControlService : public QObject
{
    Q_OBJECT

    ServiceHome home_;

private slots:
    void init() { QVERIFY(home_.setUp()); }
    void cleanup() { home_.tearDown(); }

    // Requests come through encoding and decoding whole, however the stream is cut.
    void roundTripOverAnySplit()
    {
        Request first = lightingRequest(7, 37);
        first.seq = 9;
        first.colorMode = 3;
        first.lightSpeed = 1;
        first.turnOff = true;
        Request second;
        second.type = MessageType::SetColors;
        second.seq = 10;
        second.slot = 5;
        second.count = kLedCount;
        for (int i = 0; i < kLedCount; ++i) {
            second.rgb[i] = 0x010203u * COLORREF(i + 1);
            second.bright[i] = float(i) / 16.0f;
        }
        second.singleRGB = 0x00AA55;
        second.singleBright = 0.5f;
        ControlState expected = defaultControlState();
        applyRequest(expected, first);
        applyRequest(expected, second);
        const QByteArray stream = bytesOf(encodeRequest(first)) + bytesOf(encodeRequest(second));

        for (int chunk : {1, 7, int(stream.size())}) {
            FrameDecoder decoder;
            ControlState decoded = defaultControlState();
            uint32_t seq = 9;
            for (int at = 0; at < stream.size(); at += chunk) {
                decoder.feed(reinterpret_cast<const uint8_t*>(stream.constData()) + at,
                             std::size_t(qMin(chunk, int(stream.size()) - at)));
                Frame frame;
                Request request;
                while (decoder.next(frame) == FrameDecoder::Status::Frame) {
                    QVERIFY(decodeRequest(frame, request, nullptr));
                    QCOMPARE(request.seq, seq++);
                    applyRequest(decoded, request);
                }
            }
            QCOMPARE(seq, 11u);
            QVERIFY(decoded == expected);
        }
    }

    // Rules and settings sent again unchanged report no change, whatever item the sender
    // names; any real difference does. Otherwise a panel that re-sends what it is shown echoes
    // with the service for ever.
    void unchangedRulesReportNoChange()
    {
        ControlState state = defaultControlState();
        Request noti;
        noti.type = MessageType::SetNotification;
        noti.noti = state.noti;
        noti.noti.changedItem = 3;
        QCOMPARE(applyRequest(state, noti), 0u);
        noti.noti.loadingValue += 1;
        QCOMPARE(applyRequest(state, noti), uint32_t(ChangeNotification));
        QCOMPARE(state.noti.loadingValue, noti.noti.loadingValue);
        noti.noti.changedItem = 1;
        QCOMPARE(applyRequest(state, noti), 0u);

        Request setting;
        setting.type = MessageType::SetSetting;
        setting.setting = state.setting;
        QCOMPARE(applyRequest(state, setting), 0u);
        setting.setting.languageIndex = (setting.setting.languageIndex + 1) % 10;
        QCOMPARE(applyRequest(state, setting), uint32_t(ChangeSetting));
    }

    void killedDuringBurstRestartsConsistent()
    {
        RawClient client;
        home_.connectAndReadState(client);
        // Each round sets slot 0 then slot 1 to the same mode, so a consistent file has slot 1
        // equal to slot 0 or one round behind.
        const int killAt = 100 + QRandomGenerator::global()->bounded(150);
        for (int round = 0; round <= killAt; ++round) {
            client.send(lightingRequest(0, round % 38));
            client.send(lightingRequest(1, round % 38));
            if (round % 20 == 0)
                QTest::qWait(15);
        }
        home_->kill();
        QVERIFY(home_->start());
        RawClient after;
        StateMessage state = home_.connectAndReadState(after);
        const QStringList files =
            QDir(home_.filePath(QStringLiteral("norvalex"))).entryList(QDir::Files | QDir::Hidden);
        QCOMPARE(files, QStringList{QStringLiteral("control-state.json")}); // nothing set aside
        const int first = state.state.module(0).lightMode;
        const int second = state.state.module(1).lightMode;
        QVERIFY2(first == second || first == (second + 1) % 38,
                 qPrintable(QStringLiteral("%1 %2").arg(first).arg(second)));

        // A change followed by a pause is on disk when the kill comes.
        QVERIFY(after.waitForState(&state, after.send(lightingRequest(5, 33))));
        QTest::qWait(500);
        home_->kill();
        QVERIFY(home_->start());
        RawClient third;
        QCOMPARE(home_.connectAndReadState(third).state.module(5).lightMode, 33);
    }

    // Each frame of the corpus gets an error with a reason and changes nothing; seeded random
    // mutations of valid frames do not bring the service down.
    void malformedFramesChangeNothing()
    {
        RawClient watcher;
        const StateMessage before = home_.connectAndReadState(watcher);
        const std::vector<uint8_t> good = encodeRequest(lightingRequest(3, 12));
        const std::vector<uint8_t> payload(good.begin() + kHeaderSize, good.end());
        Request nanBright;
        nanBright.type = MessageType::SetColors;
        nanBright.count = 8;
        nanBright.bright[3] = std::numeric_limits<float>::quiet_NaN();
        const QByteArray corpus[] = {
            QByteArray::fromHex("0300000001001000"), // length 3, below version and type
            QByteArray::fromHex("0100010001001000"), // length 65537, above the maximum
            bytesOf(encodeFrame(0x10, payload, kProtocolVersion + 1)),
            bytesOf(encodeFrame(0x4242, {1, 1, 1, 1})),
            bytesOf(encodeFrame(0x10, std::vector<uint8_t>(payload.begin(), payload.end() - 1))),
            bytesOf(encodeRequest(lightingRequest(8, 0))),
            bytesOf(encodeRequest(lightingRequest(-1, 0))),
            bytesOf(encodeRequest(lightingRequest(0, 38))),
            bytesOf(encodeRequest(lightingRequest(0, -1))),
            bytesOf(encodeRequest(nanBright)),
        };
        for (const QByteArray& bytes : corpus) {
            RawClient client;
            QVERIFY(client.connectTo(home_->socketPath()));
            client.sendBytes(bytes);
            Frame reply;
            ErrorMessage error;
            QVERIFY2(client.waitFor(MessageType::Error, &reply) &&
                         decodeError(reply, error, nullptr) && !error.text.empty(),
                     bytes.toHex().constData());
        }
        QCOMPARE(watcher.countFor(MessageType::State, 100), 0);
        RawClient probe;
        QVERIFY(home_.connectAndReadState(probe).state == before.state);

        const QByteArray seeds[] = {bytesOf(good), corpus[5], corpus[9]};
        QRandomGenerator random(20240611);
        std::unique_ptr<RawClient> client;
        for (int i = 0; i < 300; ++i) {
            if (i % 10 == 0 && !(client && client->isConnected())) {
                client = std::make_unique<RawClient>();
                QVERIFY(client->connectTo(home_->socketPath()));
            }
            QByteArray frame = seeds[random.bounded(3)];
            const int choice = random.bounded(3);
            if (choice == 0)
                frame[random.bounded(frame.size())] = char(random.bounded(256));
            else if (choice == 1)
                frame.truncate(random.bounded(frame.size()));
            else
                frame.append(QByteArray(1 + random.bounded(16), char(random.bounded(256))));
            client->sendBytes(frame);
            if (i % 10 == 9)
                client->countFor(MessageType::State, 5);
        }
        QVERIFY(home_->isRunning());
        StateMessage applied;
        QVERIFY(watcher.waitForState(&applied, watcher.send(lightingRequest(4, 21))));
        QCOMPARE(applied.state.module(4).lightMode, 21);
        QVERIFY(home_->terminate());
        QCOMPARE(home_->exitCode(), 0);
    }
};

QTEST_GUILESS_MAIN(TestControlService)
#include "tst_controlservice.moc"
