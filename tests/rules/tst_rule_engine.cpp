// The rules' decisions, readings in, events and the load colour out; the autostart entry; the
// service's command line.

#include "AutostartEntry.h"
#include "RuleEngine.h"
#include "ServiceOptions.h"

#include <QtTest>

using Event = RuleEngine::Event;
using Sensor = RuleEngine::Sensor;

namespace {

NotiEventData rulesOff()
{
    NotiEventData rules = {};
    rules.loadingValue = 80;
    rules.loadingColor = 0x00FF00;
    rules.shutdownMemoryValue = 85;
    rules.shutdownCPUValue = 90;
    rules.fanSpeedValue = 70;
    return rules;
}

RuleEngine::Readings cpuAt(double celsius)
{
    RuleEngine::Readings r;
    r.cpuTemperature = celsius;
    return r;
}

QList<Event::Kind> kinds(const std::vector<Event>& events)
{
    QList<Event::Kind> out;
    for (const Event& e : events)
        out << e.kind;
    return out;
}

} // namespace

class TestRuleEngine : public QObject
{
    Q_OBJECT

private slots:
    void temperatureCrossings();
    void fahrenheitAndInvalidThresholds();
    void loadOverride();
    void fanRuleReportedOnce();
    void autostartEntry();
    void serviceOptions_data();
    void serviceOptions();
};

void TestRuleEngine::temperatureCrossings()
{
    RuleEngine engine;
    NotiEventData rules = rulesOff();
    rules.shutdownCPUSwitch = true;

    // Up: one warning, however long it stays above.
    QVERIFY(engine.check(rules, cpuAt(89.9)).empty());
    std::vector<Event> events = engine.check(rules, cpuAt(91.0));
    QCOMPARE(kinds(events), QList<Event::Kind>{Event::Raised});
    QVERIFY(events.at(0).sensor == Sensor::Cpu);
    QCOMPARE(events.at(0).threshold, 90);
    QCOMPARE(RuleEngine::describe(events.at(0)),
             QStringLiteral("CPU temperature 91 °C is above 90 °C"));
    QVERIFY(engine.check(rules, cpuAt(95.0)).empty());
    // Within the 2-degree band nothing changes, at the band's edge it clears once.
    QVERIFY(engine.check(rules, cpuAt(88.5)).empty());
    QVERIFY(engine.check(rules, cpuAt(90.5)).empty());
    QCOMPARE(kinds(engine.check(rules, cpuAt(88.0))), QList<Event::Kind>{Event::Cleared});
    QVERIFY(engine.check(rules, cpuAt(70.0)).empty());
    // A new crossing warns again.
    QCOMPARE(kinds(engine.check(rules, cpuAt(90.1))), QList<Event::Kind>{Event::Raised});
    // Losing the sensor changes nothing; switching the rule off clears.
    QVERIFY(engine.check(rules, RuleEngine::Readings()).empty());
    rules.shutdownCPUSwitch = false;
    QCOMPARE(kinds(engine.check(rules, cpuAt(99.0))), QList<Event::Kind>{Event::Cleared});
    QVERIFY(engine.check(rules, cpuAt(99.0)).empty());

    // The memory rule reads the memory temperature only, and keeps its own state.
    rules.shutdownMemorySwitch = true;
    RuleEngine::Readings readings = cpuAt(99.0);
    QVERIFY(engine.check(rules, readings).empty());
    readings.memoryTemperature = 86.0;
    events = engine.check(rules, readings);
    QCOMPARE(kinds(events), QList<Event::Kind>{Event::Raised});
    QVERIFY(events.at(0).sensor == Sensor::Memory);
}

void TestRuleEngine::fahrenheitAndInvalidThresholds()
{
    RuleEngine engine;
    NotiEventData rules = rulesOff();
    rules.shutdownMemorySwitch = true;
    rules.shutdownMemoryUnit = 1;
    rules.shutdownMemoryValue = 176; // °F, 80 °C
    RuleEngine::Readings readings;
    readings.memoryTemperature = 80.0; // 176 °F: not above
    QVERIFY(engine.check(rules, readings).empty());
    readings.memoryTemperature = 80.6; // 177.08 °F
    std::vector<Event> events = engine.check(rules, readings);
    QCOMPARE(kinds(events), QList<Event::Kind>{Event::Raised});
    QVERIFY(events.at(0).fahrenheit);
    QCOMPARE(RuleEngine::describe(events.at(0)),
             QStringLiteral("Memory temperature 177 °F is above 176 °F"));
    // The band is 2 °F: 174.2 °F stays raised, 173.3 °F clears.
    readings.memoryTemperature = 79.0;
    QVERIFY(engine.check(rules, readings).empty());
    readings.memoryTemperature = 78.5;
    QCOMPARE(kinds(engine.check(rules, readings)), QList<Event::Kind>{Event::Cleared});
    QCOMPARE(RuleEngine::toFahrenheit(-40.0), -40.0);

    // Out of the panel's range or an unknown unit: reported once, never fires.
    readings.memoryTemperature = 500.0;
    for (const auto& bad : {std::pair<int, int>{1001, 0}, {-31, 0}, {60, 2}}) {
        RuleEngine fresh;
        rules.shutdownMemoryValue = bad.first;
        rules.shutdownMemoryUnit = bad.second;
        QCOMPARE(kinds(fresh.check(rules, readings)), QList<Event::Kind>{Event::Ignored});
        QVERIFY(fresh.check(rules, readings).empty());
    }
    // Made valid while above: the warning comes at once.
    RuleEngine engine2;
    rules.shutdownMemoryUnit = 0;
    rules.shutdownMemoryValue = 2000;
    engine2.check(rules, readings);
    rules.shutdownMemoryValue = 100;
    QCOMPARE(kinds(engine2.check(rules, readings)), QList<Event::Kind>{Event::Raised});
}

void TestRuleEngine::loadOverride()
{
    RuleEngine engine;
    NotiEventData rules = rulesOff();
    RuleEngine::Readings readings;
    readings.memoryLoad = 95.0;
    QVERIFY(engine.check(rules, readings).empty());
    QVERIFY(!engine.loadOverride()); // switched off

    rules.loadingSwitch = true;
    rules.loadingColor = 0xAB00FF00; // the unused top byte is not a colour
    engine.check(rules, readings);
    QCOMPARE(engine.loadOverride().value_or(1), COLORREF(0x00FF00));
    readings.memoryLoad = 80.0; // not above
    engine.check(rules, readings);
    QVERIFY(!engine.loadOverride());
    readings.memoryLoad = -1.0; // unknown load never triggers
    rules.loadingValue = 0;
    engine.check(rules, readings);
    QVERIFY(!engine.loadOverride());

    rules.loadingValue = 101;
    readings.memoryLoad = 100.0;
    QCOMPARE(kinds(engine.check(rules, readings)), QList<Event::Kind>{Event::Ignored});
    QVERIFY(!engine.loadOverride());
}

void TestRuleEngine::fanRuleReportedOnce()
{
    RuleEngine engine;
    NotiEventData rules = rulesOff();
    rules.fanSpeedSwitch = true;
    QCOMPARE(kinds(engine.check(rules, cpuAt(99))), QList<Event::Kind>{Event::FanRuleNeedsProgram});
    QVERIFY(engine.check(rules, cpuAt(99)).empty());
    rules.fanSpeedSwitch = false;
    QVERIFY(engine.check(rules, cpuAt(99)).empty());
    rules.fanSpeedSwitch = true;
    QCOMPARE(engine.check(rules, cpuAt(20)).size(), std::size_t(1));
}

void TestRuleEngine::autostartEntry()
{
    QStandardPaths::setTestModeEnabled(true);
    const QString file = AutostartEntry::path();
    QFile::remove(file);
    QString error;
    QVERIFY(AutostartEntry::apply(true, QStringLiteral("/opt/NX RGB/norvalex-rgb"), &error));
    QFile entry(file);
    QVERIFY(entry.open(QIODevice::ReadOnly));
    const QByteArray text = entry.readAll();
    entry.close();
    QVERIFY(text.startsWith("[Desktop Entry]\n"));
    QVERIFY(text.contains("\nExec=\"/opt/NX RGB/norvalex-rgb\" --background\n"));
    QVERIFY(text.contains("\nType=Application\n"));
    // Reserved characters are quoted for the Exec key.
    QVERIFY(AutostartEntry::content(QStringLiteral("/a$b/100%/c\"d"))
                .contains("Exec=\"/a\\\\$b/100%%/c\\\\\"d\" --background"));

    QVERIFY(AutostartEntry::apply(false, QString(), &error));
    QVERIFY(!QFileInfo::exists(file));
    QVERIFY(AutostartEntry::apply(false, QString(), &error)); // already gone
    // A folder in the entry's place cannot be replaced: reported, not hidden.
    QDir().mkpath(file);
    QVERIFY(!AutostartEntry::apply(true, QStringLiteral("norvalex-rgb"), &error));
    QVERIFY(!error.isEmpty());
    QDir(file).removeRecursively();
}

void TestRuleEngine::serviceOptions_data()
{
    // What the options set, as "output|SDK server|modules|root"; empty when refused. The
    // output's own forms: tst_orgb_protocol::outputChoice.
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("expected");
    const QString temp = QDir::tempPath();
    const QString root = QFileInfo(temp).absoluteFilePath();
    QTest::newRow("none") << QStringList() << "unset||auto|";
    QTest::newRow("output default")
        << QStringList{"--output=openrgb"} << "openrgb:127.0.0.1:6742||auto|";
    QTest::newRow("server default") << QStringList{"--sdk-server"} << "unset|127.0.0.1:6743|auto|";
    QTest::newRow("server named") << QStringList{"--sdk-server=0.0.0.0:7000"}
                                  << "unset|0.0.0.0:7000|auto|";
    QTest::newRow("server port only")
        << QStringList{"--sdk-server=:7001"} << "unset|127.0.0.1:7001|auto|";
    QTest::newRow("simulated, root")
        << QStringList{"--modules=simulated", "--root", temp} << "unset||simulated|" + root;
    // A count still means that many simulated modules.
    QTest::newRow("module count") << QStringList{"--modules=6"} << "unset||simulated 6|";
    for (const char* bad : {"--output=wled", "--sdk-server=1.2.3.4:x", "--modules=real",
                            "--modules=9", "--root=/nonexistent/nx", "--root="})
        QTest::newRow(bad) << QStringList{bad} << QString();
}

void TestRuleEngine::serviceOptions()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, expected);
    ServiceOptions options;
    QString message;
    bool exitNow = false;
    const bool ok = options.parse(QStringList{QStringLiteral("norvalex-control")} + arguments,
                                  &message, &exitNow);
    QCOMPARE(ok, !expected.isEmpty());
    if (!ok) {
        // The message names the refused option.
        QVERIFY2(message.startsWith(arguments.first().section(QLatin1Char('='), 0, 0)),
                 qPrintable(message));
        return;
    }
    const bool simulated = options.moduleMode == ServiceOptions::ModuleMode::Simulated;
    const QString modules = (simulated ? QStringLiteral("simulated") : QStringLiteral("auto")) +
                            (options.modules ? QStringLiteral(" %1").arg(*options.modules) : "");
    const QString server =
        options.sdkServerHost.isEmpty()
            ? QString()
            : options.sdkServerHost + QStringLiteral(":%1").arg(options.sdkServerPort);
    const QString output =
        options.output ? QString::fromStdString(*options.output) : QStringLiteral("unset");
    QCOMPARE(QStringList({output, server, modules, options.root}).join(QLatin1Char('|')), expected);
    // The option overrides the stored output for the run.
    SimulationConfig stored;
    stored.output = "openrgb:stored:1";
    QCOMPARE(QString::fromStdString(options.apply(stored).output),
             options.output ? output : QStringLiteral("openrgb:stored:1"));
}

QTEST_GUILESS_MAIN(TestRuleEngine)
#include "tst_rule_engine.moc"
