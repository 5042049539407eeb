// The real service carrying the rules out, on a private session bus (run under
// dbus-run-session) that also stands in for the system bus, with a fake root for its readings
// and a scripted OpenRGB server for the re-apply after a resume.

#include "DesktopStandIns.h"
#include "FixtureRoot.h"
#include "RawClient.h"
#include "Recording.h"
#include "SdkPeers.h"
#include "ServiceProcess.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

// A service with its own folders, the session bus as system bus, the modules found below `root`.
class Service
{
public:
    explicit Service(const QString& root, QStringList arguments = {})
        : process_(home_.path(), home_.path())
    {
        process_.setEnvironment(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                                qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
        process_.setEnvironment(QStringLiteral("QT_LOGGING_RULES"),
                                QStringLiteral("*.debug=false"));
        process_.captureErrors();
        if (arguments.filter(QStringLiteral("--modules")).isEmpty())
            arguments << QStringLiteral("--modules=auto");
        started_ = process_.start(arguments << QStringLiteral("--root") << root);
    }
    QString configPath() const { return home_.path(); }
    QString log() { return log_ += process_.readAllErrors(); }
    bool connect(RawClient& client) { return started_ && client.connectTo(process_.socketPath()); }
    // The first hardware report a new client receives.
    bool readHardware(nxproto::HardwareInfo& hardware)
    {
        RawClient client;
        nxproto::Frame frame;
        return connect(client) && client.waitFor(nxproto::MessageType::Hardware, &frame, 5000) &&
               nxproto::decodeHardware(frame, hardware, nullptr);
    }

private:
    QTemporaryDir home_;
    ServiceProcess process_;
    bool started_ = false;
    QString log_;
};

nxproto::Request notification(bool cpu, bool load, bool fan)
{
    nxproto::Request request;
    request.type = nxproto::MessageType::SetNotification;
    request.noti = {};
    request.noti.changedItem = 4;
    request.noti.loadingSwitch = load;
    request.noti.loadingValue = 80;
    request.noti.loadingColor = 0x123456;
    request.noti.shutdownMemoryValue = 85;
    request.noti.shutdownCPUSwitch = cpu;
    request.noti.shutdownCPUValue = 90;
    request.noti.fanSpeedSwitch = fan;
    request.noti.fanSpeedValue = 70;
    return request;
}

// Two DRAM controllers of an OpenRGB server, as recorded.
std::vector<uint8_t> twoControllers(uint32_t index, uint32_t version)
{
    return recordedDram(version, index ? "address 0x73" : "address 0x71", 5);
}

} // namespace

class TestRulesService : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void moduleSources();
    void temperatureWarningAndShutdown();
    void loadRuleColoursEveryLed();
    void resumeAndAutostart();

private:
    void setCpuTemperature(int milli)
    {
        root_.write(QStringLiteral("sys/class/hwmon/hwmon0/temp1_input"),
                    QByteArray::number(milli) + '\n');
    }

    NotificationServer notifications_;
    LoginManager login_;
    // One service for the rules: readings from root_, the modules of an OpenRGB server.
    fixture::Root root_;
    FakeOrgbServer orgb_{4, 2, twoControllers};
    std::unique_ptr<Service> service_;
    RawClient client_;
};

void TestRulesService::initTestCase()
{
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        QSKIP("needs a private session bus: run under dbus-run-session");
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &notifications_,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.Notifications")));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/login1"), &login_,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.login1")));

    root_.meminfo(1000, 900);
    root_.hwmon(0, "coretemp", {}, {{"temp1", "60000", "Package id 0"}});
    service_ = std::make_unique<Service>(
        root_.path(),
        QStringList{QStringLiteral("--modules=0"),
                    QStringLiteral("--output=openrgb:127.0.0.1:%1").arg(orgb_.port())});
    nxproto::StateMessage state;
    QVERIFY(service_->connect(client_) && client_.waitForState(&state, 0, 5000));
}

void TestRulesService::moduleSources()
{
    // Two modules the probe finds: reported with their part numbers and timings.
    fixture::Root machine;
    machine.meminfo(16777216, 12582912);
    fixture::Device d;
    d.size = 8192;
    d.part = QStringLiteral("CT8G4DFRA32A");
    d.locator = QStringLiteral("ChannelA-DIMM0");
    QByteArray table = fixture::memoryArray(2) + fixture::memoryDevice(d, 0x11);
    d.locator = QStringLiteral("ChannelB-DIMM0");
    machine.dmiTable(table + fixture::memoryDevice(d, 0x12));
    const QByteArray spd = fixture::ddr4Spd(625, 13750, 13750, 1u << 15);
    machine.eeprom("ee1004", 0, 0x50, spd);
    machine.eeprom("ee1004", 0, 0x51, spd);
    nxproto::HardwareInfo hardware;
    QVERIFY(Service(machine.path()).readHardware(hardware));
    QCOMPARE(hardware.memoryCount, 2);
    QCOMPARE(hardware.memoryLoad, 25.0);
    QCOMPARE(hardware.modules[1].modelCode, std::string("CT8G4DFRA32A"));
    QCOMPARE(hardware.casLatency, 22.0);

    // A machine without sources gets the simulation.
    fixture::Root none;
    QVERIFY(Service(none.path()).readHardware(hardware));
    QCOMPARE(hardware.memoryCount, 4);
    QCOMPARE(hardware.modules[0].modelCode, std::string("KX44"));
}

void TestRulesService::temperatureWarningAndShutdown()
{
    nxproto::StateMessage state;
    QVERIFY(client_.waitForState(&state, client_.send(notification(true, false, false)), 5000));
    setCpuTemperature(95000);
    QTRY_COMPARE_WITH_TIMEOUT(notifications_.shown.size(), 1, 10000);
    const NotificationServer::Shown shown = notifications_.shown.first();
    QCOMPARE(shown.summary, QStringLiteral("CPU temperature 95 °C is above 90 °C"));
    QCOMPARE(shown.actions, (QStringList{QStringLiteral("shutdown"), QStringLiteral("Shut down")}));
    QCOMPARE(shown.hints.value(QStringLiteral("urgency")).toInt(), 2);

    // Another notification's action, or another action, does nothing; the warning itself
    // never powers off, nor comes again while it stays hot.
    notifications_.invoke(shown.id + 1, QStringLiteral("shutdown"));
    notifications_.invoke(shown.id, QStringLiteral("default"));
    notifications_.invoke(shown.id, QStringLiteral("shutdown"));
    QTRY_COMPARE_WITH_TIMEOUT(login_.powerOffs, QList<bool>{true}, 10000);
    QCOMPARE(notifications_.shown.size(), 1);

    // Falling below the band withdraws the warning; the next crossing warns again.
    setCpuTemperature(88000);
    QTRY_COMPARE_WITH_TIMEOUT(notifications_.closed, QList<uint>{shown.id}, 10000);
    setCpuTemperature(91000);
    QTRY_COMPARE_WITH_TIMEOUT(notifications_.shown.size(), 2, 10000);

    // The fan rule is kept and logged, never carried out.
    QVERIFY(client_.waitForState(&state, client_.send(notification(true, false, true)), 5000));
    QVERIFY(state.state.noti.fanSpeedSwitch);
    QTRY_VERIFY_WITH_TIMEOUT(
        service_->log().contains(QStringLiteral("needs a fan-control program")), 10000);
}

void TestRulesService::loadRuleColoursEveryLed()
{
    root_.meminfo(1000, 100); // 90 %
    RawClient client;
    nxproto::StateMessage state;
    QVERIFY(service_->connect(client) && client.waitForState(&state));
    QVERIFY(client.waitForState(&state, client.send(notification(false, true, false)), 5000));
    // Every LED of both controllers takes the rule's colour; when the load falls, their own
    // lighting returns.
    const auto override = orgb::encodeLedUpdate(std::vector<orgb::Color>(5, 0x123456));
    const auto overridden = [&] {
        const orgb::Packet* first = orgb_.last(orgb::UpdateLeds, 0);
        const orgb::Packet* second = orgb_.last(orgb::UpdateLeds, 1);
        return first && second && first->body == override && second->body == override;
    };
    QTRY_VERIFY_WITH_TIMEOUT(overridden(), 10000);
    root_.meminfo(1000, 600);
    QTRY_VERIFY_WITH_TIMEOUT(!overridden(), 10000);
}

void TestRulesService::resumeAndAutostart()
{
    QTRY_VERIFY_WITH_TIMEOUT(orgb_.count(orgb::UpdateMode) >= 2, 20000); // at start-up
    RawClient client;
    nxproto::StateMessage state;
    QVERIFY(service_->connect(client) && client.waitForState(&state));

    // Waking up sends the whole lighting out again, to the panel and to the controllers
    // (Direct mode and every LED), on the same connection.
    orgb_.clearReceived();
    login_.prepareForSleep(false);
    QVERIFY(client.waitForState(&state, 0, 10000));
    QCOMPARE(state.changes, uint32_t(nxproto::ChangeAll));
    QTRY_COMPARE_WITH_TIMEOUT(orgb_.count(orgb::UpdateMode), 2, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(orgb_.last(orgb::UpdateLeds, 0) && orgb_.last(orgb::UpdateLeds, 1),
                             10000);
    QCOMPARE(orgb_.connections(), 1);

    // "Start with the system" (on by default) keeps an autostart entry; off removes it.
    const QString entry =
        service_->configPath() + QStringLiteral("/autostart/norvalex-rgb.desktop");
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(entry), 10000);
    nxproto::Request setting;
    setting.type = nxproto::MessageType::SetSetting;
    setting.setting = state.state.setting;
    setting.setting.autoRun = false;
    QVERIFY(client.waitForState(&state, client.send(setting), 5000));
    QVERIFY(!QFileInfo::exists(entry));
}

QTEST_GUILESS_MAIN(TestRulesService)
#include "tst_rules_service.moc"
