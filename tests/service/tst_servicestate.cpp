// The service's state, driven as a process through its socket: requests that change nothing,
// kills in the middle of bursts, saves that cannot complete, unusual files at start and frames
// it must refuse.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <functional>
#include <limits>
#include <memory>
#include <sys/stat.h>

using namespace nxproto;

namespace {

// Identifies one version of the file: every save replaces it by a new inode.
QString fileVersion(const QString& path)
{
    struct stat info {
    };
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    return QStringLiteral("%1:%2").arg(info.st_ino).arg(info.st_mtim.tv_nsec);
}

} // namespace

class TestServiceState : public QObject
{
    Q_OBJECT

    // A service for each test function, in a fresh directory that is its runtime and config
    // directory.
    std::unique_ptr<QTemporaryDir> dir_;
    std::unique_ptr<ServiceProcess> service_;

    QString filePath(const QString& name) const { return dir_->filePath(name); }
    QString statePath() const { return filePath(QStringLiteral("norvalex/control-state.json")); }
    // Replaces the process by a new one for the same directory, not yet started.
    ServiceProcess& renew()
    {
        service_ = std::make_unique<ServiceProcess>(dir_->path(), dir_->path());
        return *service_;
    }
    // Connects `client` and returns the first state the service sends it.
    StateMessage connectAndReadState(RawClient& client) const
    {
        StateMessage state;
        if (!client.connectTo(service_->socketPath()) || !client.waitForState(&state))
            qWarning("no state from the service");
        return state;
    }

private slots:
    void init()
    {
        // Writing to a connection the service has just closed must not end the test.
        std::signal(SIGPIPE, SIG_IGN);
        dir_ = std::make_unique<QTemporaryDir>();
        QVERIFY(dir_->isValid() && renew().start());
    }
    void cleanup()
    {
        service_.reset();
        dir_.reset();
    }

    // A request that leaves the state as it was is acknowledged to its sender only: no change
    // mask, no push to the others, no save; a notification record differing only in the item
    // its sender names is no change either, or a panel re-sending what it is shown would echo
    // for ever. A real change still reaches everyone.
    void unchangedRequestsAreQuiet()
    {
        RawClient watcher;
        RawClient editor;
        const StateMessage initial = connectAndReadState(watcher);
        connectAndReadState(editor);
        QTRY_VERIFY(QFileInfo::exists(statePath()));
        const QString savedVersion = fileVersion(statePath());

        Request noti;
        noti.type = MessageType::SetNotification;
        noti.noti = initial.state.noti;
        noti.noti.changedItem = initial.state.noti.changedItem + 3;
        Request colors;
        colors.type = MessageType::SetColors;
        colors.slot = 2;
        colors.count = kLedCount;
        const ModuleLighting& module = initial.state.module(2);
        std::copy(std::begin(module.rgb), std::end(module.rgb), colors.rgb);
        std::copy(std::begin(module.bright), std::end(module.bright), colors.bright);
        colors.singleRGB = module.singleRGB;
        colors.singleBright = module.singleBright;
        Request profile;
        profile.type = MessageType::SetProfile;
        profile.profile = initial.state.profile;
        Request setting;
        setting.type = MessageType::SetSetting;
        setting.setting = initial.state.setting;
        Request lighting = lightingRequest(1, module.lightMode);
        lighting.colorMode = initial.state.module(1).colorMode;
        lighting.lightSpeed = initial.state.module(1).lightSpeed;
        lighting.lightMode = initial.state.module(1).lightMode;
        lighting.turnOff = initial.state.module(1).turnOff;

        for (const Request& request : {noti, colors, profile, setting, lighting}) {
            for (int repeat = 0; repeat < 20; ++repeat) {
                StateMessage ack;
                QVERIFY(editor.waitForState(&ack, editor.send(request)));
                QCOMPARE(ack.changes, 0u);
            }
        }
        QCOMPARE(watcher.countFor(MessageType::State, 300), 0);
        QCOMPARE(fileVersion(statePath()), savedVersion);

        noti.noti.loadingValue = initial.state.noti.loadingValue == 50 ? 60 : 50;
        StateMessage ack;
        QVERIFY(editor.waitForState(&ack, editor.send(noti)));
        QCOMPARE(ack.changes, uint32_t(ChangeNotification));
        StateMessage pushed;
        QVERIFY(watcher.waitForState(&pushed));
        QCOMPARE(pushed.changes, uint32_t(ChangeNotification));
        QCOMPARE(pushed.state.noti.loadingValue, noti.noti.loadingValue);
        QTRY_VERIFY(fileVersion(statePath()) != savedVersion);
        noti.noti.changedItem = 1;
        QVERIFY(editor.waitForState(&ack, editor.send(noti)));
        QCOMPARE(ack.changes, 0u);
    }

    // An edit lands on the profile it was made for, even after another client switched.
    void editsLandOnTheirProfile()
    {
        RawClient editor;
        RawClient switcher;
        connectAndReadState(editor);
        connectAndReadState(switcher);
        Request profile;
        profile.type = MessageType::SetProfile;
        profile.profile = 2;
        StateMessage state;
        QVERIFY(switcher.waitForState(&state, switcher.send(profile)));
        Request late = lightingRequest(3, 20);
        late.profile = 0;
        QVERIFY(editor.waitForState(&state, editor.send(late)));
        QCOMPARE(state.state.profile, 2);
        QCOMPARE(state.state.profiles[0][3].lightMode, 20);
        QCOMPARE(state.state.profiles[2][3].lightMode, defaultModuleLighting().lightMode);
        late.profile = kProfileCount;
        editor.send(late);
        Frame refusal;
        QVERIFY(editor.waitFor(MessageType::Error, &refusal));
    }

    // SIGKILL at random moments of bursts of colour changes: every change the service
    // acknowledged, even in the last bytes before the kill, is there after the restart, and the
    // file is always one the service accepts.
    void killsLoseNothingAcknowledged()
    {
        constexpr int kKills = 55;
        QRandomGenerator random(QRandomGenerator::global()->generate());
        uint32_t value = 0;
        int sent = 0;
        int acknowledged = 0;
        for (int kill = 0; kill < kKills; ++kill) {
            RawClient client;
            connectAndReadState(client);
            // seq -> (slot, value): each change gives its slot a new, larger value in LED 0.
            QHash<uint32_t, QPair<int, uint32_t>> made;
            uint32_t ackedValue[kSlotCount] = {};
            const auto take = [&](const StateMessage& state) {
                for (auto it = made.begin(); it != made.end();) {
                    if (it.key() > state.ackSeq) {
                        ++it;
                        continue;
                    }
                    uint32_t& acked = ackedValue[it->first];
                    acked = qMax(acked, it->second);
                    ++acknowledged;
                    it = made.erase(it);
                }
            };
            const int burst = 20 + random.bounded(200);
            for (int i = 0; i < burst; ++i) {
                Request colors;
                colors.type = MessageType::SetColors;
                colors.slot = random.bounded(kSlotCount);
                colors.count = 1;
                colors.rgb[0] = ++value;
                colors.bright[0] = 1.0f;
                colors.singleBright = 1.0f;
                made.insert(client.send(colors), qMakePair(colors.slot, value));
                ++sent;
                StateMessage state;
                while (client.waitForState(&state, 0, 1))
                    take(state);
            }
            QThread::usleep(random.bounded(3000));
            service_->kill();
            StateMessage late;
            while (client.waitForState(&late, 0, 200))
                take(late);

            QVERIFY(service_->start());
            RawClient after;
            const StateMessage restarted = connectAndReadState(after);
            for (int slot = 0; slot < kSlotCount; ++slot) {
                const uint32_t kept = restarted.state.module(slot).rgb[0];
                // Not lost, and not invented: an untouched slot keeps its default.
                QVERIFY2(kept >= ackedValue[slot] && (kept <= value || ackedValue[slot] == 0),
                         qPrintable(QStringLiteral("kill %1, slot %2: %3 kept, %4 acknowledged")
                                        .arg(kill)
                                        .arg(slot)
                                        .arg(kept)
                                        .arg(ackedValue[slot])));
            }
            const QStringList files = QDir(filePath(QStringLiteral("norvalex")))
                                          .entryList(QDir::Files | QDir::Hidden | QDir::System);
            QCOMPARE(files, QStringList{QStringLiteral("control-state.json")});
        }
        qInfo("%d kills, %d changes sent, %d acknowledged, 0 lost", kKills, sent, acknowledged);
    }

    // A save that cannot complete leaves the good file as it was and is not acknowledged; the
    // service retries, acknowledges once the disk takes the state again, and logs one line for
    // each failing episode and one for its end.
    void failedSavesKeepTheGoodFile()
    {
        service_->kill();
        const QString control = filePath(QStringLiteral("fault"));
        renew();
        service_->setEnvironment(QStringLiteral("LD_PRELOAD"), QStringLiteral(NX_FAULT_SHIM));
        service_->setEnvironment(QStringLiteral("NX_FAULT_CONTROL"), control);
        service_->setEnvironment(QStringLiteral("QT_LOGGING_RULES"),
                                 QStringLiteral("*.debug=false"));
        service_->captureErrors();
        QVERIFY(service_->start());
        RawClient client;
        RawClient other;
        connectAndReadState(client);
        connectAndReadState(other);
        StateMessage state;
        QVERIFY(client.waitForState(&state, client.send(lightingRequest(0, 1))));
        QVERIFY(other.waitForState(&state));
        QFile file(statePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QByteArray good = file.readAll();
        file.close();

        int mode = 10;
        for (const char* fault : {"enospc", "short", "eio", "erofs"}) {
            QFile faultFile(control);
            QVERIFY(faultFile.open(QIODevice::WriteOnly | QIODevice::Truncate));
            faultFile.write(fault);
            faultFile.close();
            const uint32_t seq = client.send(lightingRequest(0, mode));
            // The others see the change at once; its acknowledgement waits for the disk.
            QVERIFY2(other.waitForState(&state, 0, 5000), fault);
            QCOMPARE(state.state.module(0).lightMode, mode);
            QVERIFY2(!client.waitForState(&state, seq, 700), fault);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QCOMPARE(file.readAll(), good);
            file.close();

            QVERIFY(QFile::remove(control));
            QVERIFY2(client.waitForState(&state, seq, 15000), fault);
            QVERIFY(file.open(QIODevice::ReadOnly));
            good = file.readAll();
            file.close();
            QVERIFY(good.contains("\"lightMode\": " + QByteArray::number(mode)));
            ++mode;
        }
        QVERIFY(service_->terminate());
        const QString log = service_->readAllErrors();
        QCOMPARE(log.count(QStringLiteral("cannot save the state")), 4);
        QCOMPARE(log.count(QStringLiteral("state saved again")), 4);
        QVERIFY2(log.contains(QStringLiteral("No space left on device")), qPrintable(log));

        // What the last episode kept is what a restart finds.
        renew();
        QVERIFY(service_->start());
        RawClient after;
        QCOMPARE(connectAndReadState(after).state.module(0).lightMode, mode - 1);
    }

    // Whatever sits at the state path, the service starts at once with defaults, sets the thing
    // aside and still obeys SIGTERM; the user's look-alike files stay; what it writes is
    // private. A lock file that names no process does not keep it from starting.
    void unusualFilesAtStart()
    {
        QVERIFY(service_->terminate());
        const QString folder = QFileInfo(statePath()).absolutePath();
        const QString lookAlike = statePath() + QStringLiteral(".a1B2c3");
        QFile user(lookAlike);
        QVERIFY(user.open(QIODevice::WriteOnly));
        user.write("mine");
        user.close();
        const QByteArray path = QFile::encodeName(statePath());
        const std::function<bool()> makers[] = {
            [&] { return ::mkfifo(path.constData(), 0600) == 0; },
            [&] { return ::symlink("/dev/zero", path.constData()) == 0; },
            [&] { return QDir().mkdir(statePath()); },
        };
        for (const auto& make : makers) {
            QVERIFY(QFile::remove(statePath()) || !QFileInfo::exists(statePath()));
            QVERIFY(make());
            QVERIFY(service_->start());
            RawClient client;
            QVERIFY(connectAndReadState(client).state == defaultControlState());
            QVERIFY(service_->terminate());
            QCOMPARE(service_->exitCode(), 0);
            QVERIFY(QFileInfo(statePath()).isFile() && !QFileInfo(statePath()).isSymLink());
            const QStringList aside = QDir(folder).entryList({QStringLiteral("*.unusable-*")},
                                                             QDir::AllEntries | QDir::System);
            QCOMPARE(aside.size(), 1);
            const QString set = folder + QLatin1Char('/') + aside.first();
            QVERIFY(QFile::remove(set) || QDir(set).removeRecursively());
        }
        QVERIFY(QFileInfo::exists(lookAlike));
        QCOMPARE(QFileInfo(statePath()).permissions() & 0x7077,
                 QFile::ReadOwner | QFile::WriteOwner);
        QCOMPARE(QFileInfo(folder).permissions() & 0x7077,
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        const QString lock = filePath(QStringLiteral("norvalex-mutex-NORVALEX_Control.exe.lock"));
        for (const QByteArray& junk : {QByteArray(), QByteArray("not a lock\n\x01\x02")}) {
            QFile lockFile(lock);
            QVERIFY(lockFile.open(QIODevice::WriteOnly | QIODevice::Truncate));
            lockFile.write(junk);
            lockFile.close();
            QVERIFY2(service_->start(), junk.constData());
            QVERIFY(service_->terminate());
        }
    }

    // Each frame of the corpus gets an error with a reason and changes nothing; seeded random
    // mutations of valid frames do not bring the service down.
    void malformedFramesChangeNothing()
    {
        RawClient watcher;
        const StateMessage before = connectAndReadState(watcher);
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
            QVERIFY(client.connectTo(service_->socketPath()));
            client.sendBytes(bytes);
            Frame reply;
            ErrorMessage error;
            QVERIFY2(client.waitFor(MessageType::Error, &reply) &&
                         decodeError(reply, error, nullptr) && !error.text.empty(),
                     bytes.toHex().constData());
        }
        QCOMPARE(watcher.countFor(MessageType::State, 100), 0);
        RawClient probe;
        QVERIFY(connectAndReadState(probe).state == before.state);

        const QByteArray seeds[] = {bytesOf(good), corpus[5], corpus[9]};
        QRandomGenerator random(20240611);
        std::unique_ptr<RawClient> client;
        for (int i = 0; i < 300; ++i) {
            if (i % 10 == 0 && !(client && client->isConnected())) {
                client = std::make_unique<RawClient>();
                QVERIFY(client->connectTo(service_->socketPath()));
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
        // Still serving: two valid requests dribbled one byte at a time come through whole.
        QVERIFY(service_->isRunning());
        Request lighting = lightingRequest(4, 21);
        lighting.seq = 1;
        lighting.colorMode = 3;
        lighting.lightSpeed = 1;
        lighting.turnOff = true;
        Request colors;
        colors.type = MessageType::SetColors;
        colors.seq = 2;
        colors.slot = 5;
        colors.count = kLedCount;
        for (int i = 0; i < kLedCount; ++i) {
            colors.rgb[i] = 0x010203u * COLORREF(i + 1);
            colors.bright[i] = float(i) / 16.0f;
        }
        colors.singleRGB = 0x00AA55;
        colors.singleBright = 0.5f;
        RawClient reader; // the mutations may have been valid requests
        ControlState expected = connectAndReadState(reader).state;
        QVERIFY(applyRequest(expected, lighting) && applyRequest(expected, colors));
        const QByteArray stream = bytesOf(encodeRequest(lighting)) + bytesOf(encodeRequest(colors));
        for (char byte : stream)
            watcher.sendBytes(QByteArray(1, byte));
        StateMessage applied;
        QVERIFY(watcher.waitForState(&applied, 2));
        QVERIFY(applied.state == expected);
        QVERIFY(service_->terminate());
        QCOMPARE(service_->exitCode(), 0);
    }
};

QTEST_GUILESS_MAIN(TestServiceState)
#include "tst_servicestate.moc"
