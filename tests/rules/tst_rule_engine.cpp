// The rules' decisions from the readings; the autostart entry; the service's command line.

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
    void serviceOptionsAndAutostart();
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
    // Within the 2-degree band nothing changes, at the band's edge it clears once.
    QVERIFY(engine.check(rules, cpuAt(88.5)).empty());
    QVERIFY(engine.check(rules, cpuAt(90.5)).empty());
    QCOMPARE(kinds(engine.check(rules, cpuAt(88.0))), QList<Event::Kind>{Event::Cleared});
    // Losing the sensor changes nothing; switching the rule off while raised clears.
    QCOMPARE(kinds(engine.check(rules, cpuAt(90.1))), QList<Event::Kind>{Event::Raised});
    QVERIFY(engine.check(rules, RuleEngine::Readings()).empty());
    rules.shutdownCPUSwitch = false;
    QCOMPARE(kinds(engine.check(rules, cpuAt(99.0))), QList<Event::Kind>{Event::Cleared});

    // The memory rule reads the memory temperature only.
    rules.shutdownMemorySwitch = true;
    QVERIFY(engine.check(rules, cpuAt(99.0)).empty());
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
    QCOMPARE(RuleEngine::describe(events.at(0)),
             QStringLiteral("Memory temperature 177 °F is above 176 °F"));

    // Out of the panel's range or an unknown unit: reported once, never fires.
    readings.memoryTemperature = 500.0;
    for (const auto& bad : {std::pair<int, int>{1001, 0}, {60, 2}}) {
        RuleEngine fresh;
        rules.shutdownMemoryValue = bad.first;
        rules.shutdownMemoryUnit = bad.second;
        QCOMPARE(kinds(fresh.check(rules, readings)), QList<Event::Kind>{Event::Ignored});
        QVERIFY(fresh.check(rules, readings).empty());
    }
}

void TestRuleEngine::loadOverride()
{
    RuleEngine engine;
    NotiEventData rules = rulesOff();
    RuleEngine::Readings readings;
    readings.memoryLoad = 95.0;
    rules.loadingSwitch = true;
    rules.loadingColor = 0xAB00FF00; // the unused top byte is not a colour
    engine.check(rules, readings);
    QCOMPARE(engine.loadOverride().value_or(1), COLORREF(0x00FF00));
    readings.memoryLoad = -1.0; // unknown load never triggers
    rules.loadingValue = 0;
    engine.check(rules, readings);
    QVERIFY(!engine.loadOverride());

    // The fan rule cannot be carried out: reported once per switching on.
    rules.fanSpeedSwitch = true;
    QCOMPARE(kinds(engine.check(rules, cpuAt(99))), QList<Event::Kind>{Event::FanRuleNeedsProgram});
    QVERIFY(engine.check(rules, cpuAt(99)).empty());
}

void TestRuleEngine::serviceOptionsAndAutostart()
{
    // Reserved characters of the panel's path are quoted for the autostart entry's Exec key.
    QVERIFY(AutostartEntry::content(QStringLiteral("/a$b/100%/c\"d"))
                .contains("\nExec=\"/a\\\\$b/100%%/c\\\\\"d\" --background\n"));

    QString message;
    const auto parse = [&message](ServiceOptions* options, const QStringList& arguments) {
        bool exitNow = false;
        return options->parse(QStringList{QStringLiteral("norvalex-control")} + arguments, &message,
                              &exitNow);
    };
    ServiceOptions options, none;
    QVERIFY(parse(&options, {"--sdk-server", "--output=openrgb"}));
    QCOMPARE(options.sdkServerHost + QStringLiteral(":%1").arg(options.sdkServerPort),
             QStringLiteral("127.0.0.1:6743"));
    // The option overrides the stored output for the run.
    SimulationConfig stored;
    stored.output = "openrgb:stored:1";
    QCOMPARE(options.apply(stored).output, std::string("openrgb:127.0.0.1:6742"));
    QVERIFY(parse(&none, {}));
    QCOMPARE(none.apply(stored).output, stored.output);

    // Refused with a message that names the option.
    for (const char* bad :
         {"--output=wled", "--sdk-server=1.2.3.4:x", "--modules=9", "--root=/nonexistent/nx"}) {
        ServiceOptions refused;
        QVERIFY2(!parse(&refused, {bad}), bad);
        QVERIFY2(message.startsWith(QString(bad).section(QLatin1Char('='), 0, 0)),
                 qPrintable(message));
    }
}

QTEST_GUILESS_MAIN(TestRuleEngine)
#include "tst_rule_engine.moc"
