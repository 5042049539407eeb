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

// One norvalex-control run with its own runtime and config folders, the session bus standing in
// for the system bus, and its log kept. The machine's own modules unless the arguments choose.
class Service
{
public:
    explicit Service(QStringList arguments) : process_(runtime_.path(), config_.path())
    {
        process_.setEnvironment(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                                qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
        process_.setEnvironment(QStringLiteral("QT_LOGGING_RULES"),
                                QStringLiteral("*.debug=false"));
        process_.captureErrors();
        if (arguments.filter(QStringLiteral("--modules")).isEmpty())
            arguments << QStringLiteral("--modules=auto");
        started_ = process_.start(arguments);
    }
    QString configPath() const { return config_.path(); }
    QString log()
    {
        log_ += process_.readAllErrors();
        return log_;
    }
    bool connect(RawClient& client) { return started_ && client.connectTo(process_.socketPath()); }

private:
    QTemporaryDir runtime_;
    QTemporaryDir config_;
    ServiceProcess process_;
    bool started_ = false;
    QString log_;
};

nxproto::Request notification(const NotiEventData& noti)
{
    nxproto::Request request;
    request.type = nxproto::MessageType::SetNotification;
    request.noti = noti;
    return request;
}

NotiEventData rulesOff()
{
    NotiEventData noti = {};
    noti.changedItem = 4;
    noti.loadingValue = 80;
    noti.loadingColor = 0x123456;
    noti.shutdownMemoryValue = 85;
    noti.shutdownCPUValue = 90;
    noti.fanSpeedValue = 70;
    return noti;
}

// Two DRAM controllers of an OpenRGB server, as recorded.
std::vector<uint8_t> twoControllers(uint32_t index, uint32_t version)
{
    return recordedDram(
        version, index ? "I2C: /dev/i2c-1, address 0x73" : "I2C: /dev/i2c-1, address 0x71", 5);
}

// The first hardware report a new client of the service receives.
bool readHardware(Service& service, nxproto::HardwareInfo& hardware)
{
    RawClient client;
    nxproto::Frame frame;
    return service.connect(client) &&
           client.waitFor(nxproto::MessageType::Hardware, &frame, 5000) &&
           nxproto::decodeHardware(frame, hardware, nullptr);
}

void setCpuTemperature(fixture::Root& root, int milli)
{
    root.write(QStringLiteral("sys/class/hwmon/hwmon0/temp1_input"),
               QByteArray::number(milli) + '\n');
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
    QVERIFY(bus.isConnected());
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &notifications_,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.Notifications")));
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/login1"), &login_,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.login1")));

    root_.meminfo(1000, 900);
    root_.hwmon(0, "coretemp", {}, {{"temp1", "60000", "Package id 0"}});
    service_ = std::make_unique<Service>(
        QStringList{QStringLiteral("--root"), root_.path(), QStringLiteral("--modules=0"),
                    QStringLiteral("--output=openrgb:127.0.0.1:%1").arg(orgb_.port())});
    QVERIFY(service_->connect(client_));
    nxproto::StateMessage state;
    QVERIFY(client_.waitForState(&state, 0, 5000));
}

void TestRulesService::moduleSources()
{
    // Two modules the probe finds: reported with their part numbers.
    fixture::Root machine;
    machine.meminfo(16777216, 12582912);
    fixture::Device d;
    d.size = 8192;
    d.configured = 3200;
    d.part = QStringLiteral("CT8G4DFRA32A");
    QByteArray table = fixture::memoryArray(2);
    for (const char* locator : {"ChannelA-DIMM0", "ChannelB-DIMM0"}) {
        d.locator = QLatin1String(locator);
        table += fixture::memoryDevice(d, 0x11);
    }
    machine.dmiTable(table);
    Service real({QStringLiteral("--root"), machine.path()});
    nxproto::HardwareInfo hardware;
    QVERIFY(readHardware(real, hardware));
    QCOMPARE(hardware.memoryCount, 2);
    QCOMPARE(hardware.physicalMemoryUsed, 4096);
    QCOMPARE(hardware.memoryLoad, 25.0);
    QCOMPARE(hardware.modules[1].modelCode, std::string("CT8G4DFRA32A"));

    // A machine without sources gets the simulation.
    fixture::Root none;
    Service simulated({QStringLiteral("--root"), none.path()});
    QVERIFY(readHardware(simulated, hardware));
    QCOMPARE(hardware.memoryCount, 4);
    QCOMPARE(hardware.modules[0].modelCode, std::string("KX44"));
}

void TestRulesService::temperatureWarningAndShutdown()
{
    NotiEventData noti = rulesOff();
    noti.shutdownCPUSwitch = true;
    nxproto::StateMessage state;
    QVERIFY(client_.waitForState(&state, client_.send(notification(noti)), 5000));

    notifications_.shown.clear();
    notifications_.closed.clear();
    login_.powerOffs.clear();
    setCpuTemperature(root_, 95000);
    QTRY_COMPARE_WITH_TIMEOUT(notifications_.shown.size(), 1, 10000);
    const NotificationServer::Shown shown = notifications_.shown.first();
    QCOMPARE(shown.summary, QStringLiteral("CPU temperature 95 °C is above 90 °C"));
    QCOMPARE(shown.actions, (QStringList{QStringLiteral("shutdown"), QStringLiteral("Shut down")}));
    QCOMPARE(shown.hints.value(QStringLiteral("urgency")).toInt(), 2);

    // Another notification's action, or another action, does nothing; the warning itself
    // never powers off.
    notifications_.invoke(shown.id + 1, QStringLiteral("shutdown"));
    notifications_.invoke(shown.id, QStringLiteral("default"));
    notifications_.invoke(shown.id, QStringLiteral("shutdown"));
    QTRY_COMPARE_WITH_TIMEOUT(login_.powerOffs, QList<bool>{true}, 10000);
    QCOMPARE(notifications_.shown.size(), 1);

    // Falling below the band withdraws the warning (the band itself: tst_rule_engine); the next
    // crossing warns again.
    setCpuTemperature(root_, 88000);
    QTRY_COMPARE_WITH_TIMEOUT(notifications_.closed, QList<uint>{shown.id}, 10000);
    setCpuTemperature(root_, 91000);
    QTRY_COMPARE_WITH_TIMEOUT(notifications_.shown.size(), 2, 10000);

    // The fan rule is kept and logged, never carried out.
    noti.fanSpeedSwitch = true;
    QVERIFY(client_.waitForState(&state, client_.send(notification(noti)), 5000));
    QCOMPARE(state.state.noti.fanSpeedSwitch, true);
    QTRY_VERIFY_WITH_TIMEOUT(
        service_->log().contains(QStringLiteral("needs a fan-control program")), 10000);
}

void TestRulesService::loadRuleColoursEveryLed()
{
    root_.meminfo(1000, 100); // 90 %
    NotiEventData noti = rulesOff();
    noti.loadingSwitch = true;
    RawClient client;
    nxproto::StateMessage state;
    QVERIFY(service_->connect(client) && client.waitForState(&state));
    QVERIFY(client.waitForState(&state, client.send(notification(noti)), 5000));
    nxproto::Request preview;
    preview.type = nxproto::MessageType::SetPreview;
    preview.preview = true;
    client.send(preview);

    // Waits for a frame in which `check` holds.
    auto waitForFrame = [&](auto check) {
        nxproto::Frame frame;
        nxproto::PreviewMessage message;
        for (int i = 0; i < 300 && client.waitFor(nxproto::MessageType::Preview, &frame, 5000);
             ++i) {
            if (nxproto::decodePreview(frame, message, nullptr) && check(message))
                return true;
        }
        return false;
    };
    // Every LED of both modules; absent modules and LEDs past a module's count stay dark.
    const auto overridden = [](const nxproto::PreviewMessage& m) {
        return std::all_of(&m.colors[0][0], &m.colors[0][5],
                           [](COLORREF c) { return c == 0x123456; }) &&
               std::equal(&m.colors[0][0], &m.colors[0][5], &m.colors[1][0]) &&
               m.colors[0][5] == 0 && m.colors[2][0] == 0;
    };
    QVERIFY(waitForFrame(overridden));
    // The OpenRGB controllers show it too.
    const auto override = orgb::encodeLedUpdate(std::vector<orgb::Color>(5, 0x123456));
    QTRY_VERIFY_WITH_TIMEOUT(orgb_.last(orgb::UpdateLeds, 1) &&
                                 orgb_.last(orgb::UpdateLeds, 1)->body == override,
                             10000);
    // The load falls: the modules' own lighting returns.
    root_.meminfo(1000, 600);
    QVERIFY(waitForFrame([&](const nxproto::PreviewMessage& m) { return !overridden(m); }));
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
    setting.setting.autoRun = true;
    QVERIFY(client.waitForState(&state, client.send(setting), 5000));
    QVERIFY(QFileInfo::exists(entry));
}

QTEST_GUILESS_MAIN(TestRulesService)
#include "tst_rules_service.moc"
