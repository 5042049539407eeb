// The real service with output "openrgb" on a private session bus (run under dbus-run-session)
// that also stands in for the system bus: when logind reports the end of a suspend, the DRAM
// controllers are put into Direct mode and given the picture again.

#include "DesktopStandIns.h"
#include "FakeOrgbServer.h"
#include "Recording.h"
#include "ServiceProcess.h"
#include "TestEnvironment.h"

#include <QtTest>

class TestOpenRgbResume : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void resumeReappliesTheLighting();

private:
    LoginManager login_;
};

void TestOpenRgbResume::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        QSKIP("needs a private session bus: run under dbus-run-session");
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.isConnected());
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/login1"), &login_,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.login1")));
}

void TestOpenRgbResume::resumeReappliesTheLighting()
{
    FakeOrgbServer server(4, 2, [](uint32_t index, uint32_t version) {
        return recordedDram(
            version, index == 0 ? "I2C: /dev/i2c-1, address 0x71" : "I2C: /dev/i2c-1, address 0x73",
            5);
    });
    QDir().mkpath(TestEnvironment::root().path() + QStringLiteral("/run"));
    QFile::setPermissions(TestEnvironment::root().path() + QStringLiteral("/run"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    ServiceProcess service(TestEnvironment::root().path() + QStringLiteral("/run"),
                           TestEnvironment::configDir());
    service.setEnvironment(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                           qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
    QVERIFY(service.start({QStringLiteral("--modules=0"),
                           QStringLiteral("--output=openrgb:127.0.0.1:%1").arg(server.port())}));
    QTRY_COMPARE_WITH_TIMEOUT(server.count(orgb::UpdateMode), 2, 20000);
    QTRY_VERIFY_WITH_TIMEOUT(server.last(orgb::UpdateLeds, 0) && server.last(orgb::UpdateLeds, 1),
                             10000);

    // Going to sleep sends nothing new; waking up applies the modes and every LED again.
    QTest::qWait(300);
    server.clearReceived();
    login_.prepareForSleep(true);
    QTest::qWait(300);
    QCOMPARE(server.count(orgb::UpdateMode), 0);
    login_.prepareForSleep(false);
    QTRY_COMPARE_WITH_TIMEOUT(server.count(orgb::UpdateMode), 2, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(server.last(orgb::UpdateLeds, 0) && server.last(orgb::UpdateLeds, 1),
                             10000);
    QCOMPARE(server.connections(), 1);
    QVERIFY(service.isRunning());
}

QTEST_GUILESS_MAIN(TestOpenRgbResume)
#include "tst_openrgb_resume.moc"
