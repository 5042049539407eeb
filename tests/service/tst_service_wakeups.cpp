// The service reads the hardware only while something uses the readings: a client, a rule or
// the picture. The real service on a fake root, whose readings the tests change.

#include "FixtureRoot.h"
#include "Messages.h"
#include "RawClient.h"
#include "ServiceProcess.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// One norvalex-control run on `root` with 8 simulated modules and its log kept.
class Service
{
public:
    explicit Service(const fixture::Root& root) : process_(home_.path(), home_.path())
    {
        process_.setEnvironment(QStringLiteral("QT_LOGGING_RULES"),
                                QStringLiteral("*.debug=false"));
        process_.captureErrors();
        started_ = process_.start({QStringLiteral("--root"), root.path(),
                                   QStringLiteral("--modules"), QStringLiteral("8")});
    }
    bool started() const { return started_; }
    bool connect(RawClient& client) { return started_ && client.connectTo(process_.socketPath()); }
    QString log()
    {
        log_ += process_.readAllErrors();
        return log_;
    }
    // Times the service's main thread has gone to sleep and woken up again so far.
    qint64 wakeUps() const
    {
        QFile status(QStringLiteral("/proc/%1/task/%1/status").arg(process_.pid()));
        if (!status.open(QIODevice::ReadOnly))
            return -1;
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("voluntary_ctxt_switches:"))
                return line.mid(line.indexOf(':') + 1).trimmed().toLongLong();
        }
        return -1;
    }

private:
    QTemporaryDir home_;
    ServiceProcess process_;
    bool started_ = false;
    QString log_;
};

// The next hardware report the client receives.
bool nextHardware(RawClient& client, nxproto::HardwareInfo& hardware)
{
    nxproto::Frame frame;
    return client.waitFor(nxproto::MessageType::Hardware, &frame, 10000) &&
           nxproto::decodeHardware(frame, hardware, nullptr);
}

// Sends the rules and waits until they are saved.
bool setRules(Service& service, const NotiEventData& noti)
{
    RawClient client;
    nxproto::StateMessage state;
    nxproto::Request request;
    request.type = nxproto::MessageType::SetNotification;
    request.noti = noti;
    return service.connect(client) && client.waitForState(&state, 0, 10000) &&
           client.waitForState(&state, client.send(request), 10000);
}

// Whether the main thread stays asleep for a few seconds: longer than the hardware's refresh
// period and the resume watch's tick, so that either would show.
bool staysAsleep(const Service& service)
{
    const qint64 before = service.wakeUps();
    QTest::qWait(2500);
    return before >= 0 && service.wakeUps() == before;
}

} // namespace

class TestServiceWakeups : public QObject
{
    Q_OBJECT

private slots:
    void readingsFollowClientsAndRules();
};

void TestServiceWakeups::readingsFollowClientsAndRules()
{
    fixture::Root root;
    root.meminfo(1000, 900);
    Service service(root);
    QVERIFY(service.started());

    // Nobody listens: the service sleeps, and the load it last read grows stale.
    QTRY_VERIFY_WITH_TIMEOUT(staysAsleep(service), 30000);
    root.meminfo(1000, 300);
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    {
        // The next client is told the load of now at once, not the one read before the pause,
        // and sees it change; a client that only listens keeps the service awake.
        RawClient client;
        nxproto::HardwareInfo hardware;
        QVERIFY(service.connect(client));
        QVERIFY(nextHardware(client, hardware));
        QCOMPARE(hardware.memoryLoad, 70.0);
        QVERIFY(qint64(hardware.updateTime) >= before);
        root.meminfo(1000, 500);
        QTRY_VERIFY_WITH_TIMEOUT(nextHardware(client, hardware) && hardware.memoryLoad == 50.0,
                                 20000);
        QVERIFY(!staysAsleep(service));
    }

    // No client is left, but a load rule still follows the readings.
    NotiEventData noti = {};
    noti.loadingSwitch = true;
    noti.loadingValue = 50;
    QVERIFY(setRules(service, noti));
    root.meminfo(1000, 100);
    QTRY_VERIFY_WITH_TIMEOUT(service.log().contains(QStringLiteral("memory load 90 % above 50 %")),
                             20000);
    root.meminfo(1000, 800);
    QTRY_VERIFY_WITH_TIMEOUT(service.log().contains(QStringLiteral("memory load rule ended")),
                             20000);

    // Turned off while it holds, the rule ends at once, though nothing is read any more, and
    // the service sleeps again.
    root.meminfo(1000, 100);
    QTRY_VERIFY_WITH_TIMEOUT(service.log().count(QStringLiteral("memory load 90 %")) == 2, 20000);
    noti.loadingSwitch = false;
    QVERIFY(setRules(service, noti));
    QTRY_VERIFY_WITH_TIMEOUT(service.log().count(QStringLiteral("memory load rule ended")) == 2,
                             20000);
    QTRY_VERIFY_WITH_TIMEOUT(staysAsleep(service), 30000);
}

QTEST_GUILESS_MAIN(TestServiceWakeups)
#include "tst_service_wakeups.moc"
