// The service's state, driven as a process through its socket: requests that change nothing,
// saves that cannot complete, unusual files at start and frames it must refuse. Kills in the
// middle of bursts are the library test's.

#include "RawClient.h"
#include "ServiceProcess.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
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

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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
    StateMessage connectAndReadState(RawClient& client) const
    {
        return client.connectForState(service_->socketPath());
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
    // for ever. A real change still reaches everyone. An edit lands on the profile it was made
    // for, even after another client switched.
    void unchangedRequestsAreQuietAndEditsKeepTheirProfile()
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
        Request setting;
        setting.type = MessageType::SetSetting;
        setting.setting = initial.state.setting;
        for (const Request& request : {noti, setting}) {
            StateMessage ack;
            QVERIFY(editor.waitForState(&ack, editor.send(request)));
            QCOMPARE(ack.changes, 0u);
        }
        QCOMPARE(watcher.countFor(MessageType::State, 300), 0);
        QCOMPARE(fileVersion(statePath()), savedVersion);

        noti.noti.loadingValue = initial.state.noti.loadingValue == 50 ? 60 : 50;
        StateMessage state;
        QVERIFY(editor.waitForState(&state, editor.send(noti)));
        QCOMPARE(state.changes, uint32_t(ChangeNotification));
        QVERIFY(watcher.waitForState(&state));
        QCOMPARE(state.state.noti.loadingValue, noti.noti.loadingValue);
        QTRY_VERIFY(fileVersion(statePath()) != savedVersion);

        Request profile;
        profile.type = MessageType::SetProfile;
        profile.profile = 2;
        QVERIFY(watcher.waitForState(&state, watcher.send(profile)));
        Request late = lightingRequest(3, 20);
        late.profile = 0;
        QVERIFY(editor.waitForState(&state, editor.send(late)));
        QCOMPARE(state.state.profile, 2);
        QCOMPARE(state.state.profiles[0][3].lightMode, 20);
        QCOMPARE(state.state.profiles[2][3].lightMode, defaultModuleLighting().lightMode);
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

        // The others see the change at once; its acknowledgement waits for the disk.
        const QByteArray good = contents(statePath());
        QFile fault(control);
        QVERIFY(fault.open(QIODevice::WriteOnly));
        fault.close();
        const uint32_t seq = client.send(lightingRequest(0, 10));
        QVERIFY(other.waitForState(&state, 0, 5000));
        QCOMPARE(state.state.module(0).lightMode, 10);
        QVERIFY(!client.waitForState(&state, seq, 700));
        QCOMPARE(contents(statePath()), good);

        QVERIFY(QFile::remove(control));
        QVERIFY(client.waitForState(&state, seq, 15000));
        QVERIFY(contents(statePath()).contains("\"lightMode\": 10"));
        QVERIFY(service_->terminate());
        const QString log = service_->readAllErrors();
        QCOMPARE(log.count(QStringLiteral("cannot save the state")), 1);
        QCOMPARE(log.count(QStringLiteral("state saved again")), 1);
        QVERIFY2(log.contains(QStringLiteral("No space left on device")), qPrintable(log));
    }

    // Whatever sits at the state path, the service starts at once with defaults, sets it aside
    // and still obeys SIGTERM; the user's look-alike files stay; what it writes is
    // private. A lock file that names no process does not keep it from starting.
    void unusualFilesAtStart()
    {
        QVERIFY(service_->terminate());
        const QString folder = QFileInfo(statePath()).absolutePath();
        const QString lookAlike = statePath() + QStringLiteral(".a1B2c3");
        QFile user(lookAlike);
        QVERIFY(user.open(QIODevice::WriteOnly) && user.write("mine") == 4);
        user.close();
        // A FIFO would block a plain read for ever.
        QVERIFY(QFile::remove(statePath()) || !QFileInfo::exists(statePath()));
        QVERIFY(::mkfifo(QFile::encodeName(statePath()).constData(), 0600) == 0);
        QVERIFY(service_->start());
        RawClient client;
        QVERIFY(connectAndReadState(client).state == defaultControlState());
        QVERIFY(service_->terminate());
        QCOMPARE(service_->exitCode(), 0);
        QVERIFY(QFileInfo(statePath()).isFile());
        const QStringList aside = QDir(folder).entryList({QStringLiteral("*.unusable-*")},
                                                         QDir::AllEntries | QDir::System);
        QCOMPARE(aside.size(), 1);
        QVERIFY(QFileInfo::exists(lookAlike));
        QCOMPARE(QFileInfo(statePath()).permissions() & 0x7077,
                 QFile::ReadOwner | QFile::WriteOwner);
        QCOMPARE(QFileInfo(folder).permissions() & 0x7077,
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);

        QFile lock(filePath(QStringLiteral("norvalex-mutex-NORVALEX_Control.exe.lock")));
        QVERIFY(lock.open(QIODevice::WriteOnly | QIODevice::Truncate));
        lock.write("not a lock\n\x01\x02");
        lock.close();
        QVERIFY(service_->start());
    }

    // Each frame of the corpus gets an error with a reason and changes nothing.
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
        Request otherProfile = lightingRequest(3, 12);
        otherProfile.profile = kProfileCount;
        const QByteArray corpus[] = {
            QByteArray::fromHex("0100010001001000"), // length 65537, above the maximum
            bytesOf(encodeFrame(0x10, payload, kProtocolVersion + 1)),
            bytesOf(encodeFrame(0x10, std::vector<uint8_t>(payload.begin(), payload.end() - 1))),
            bytesOf(encodeRequest(lightingRequest(8, 0))),
            bytesOf(encodeRequest(nanBright)),
            bytesOf(encodeRequest(otherProfile)),
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
    }
};

QTEST_GUILESS_MAIN(TestServiceState)
#include "tst_servicestate.moc"
