// The service's parts without a process: rendering, the state file and its format, the
// hardware facts and the command line.

#include "EffectRenderer.h"
#include "HardwareMonitor.h"
#include "ServiceOptions.h"
#include "StateFile.h"
#include "StateJson.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

using namespace nxproto;

namespace {

HardwareInfo modules(int count, int leds)
{
    SimulationConfig config;
    config.modules = count;
    config.leds = leds;
    HardwareMonitor monitor(config, QStringLiteral("/nonexistent"));
    return monitor.info();
}

QJsonObject stateObject(const ControlState& state)
{
    return StateJson::toJson(state, SimulationConfig{});
}

bool readable(QJsonObject object)
{
    ControlState state;
    SimulationConfig simulation;
    QString error;
    return StateJson::fromJson(object, &state, &simulation, &error);
}

} // namespace

class TestControlCore : public QObject
{
    Q_OBJECT

private slots:
    void staticRenderingScalesAndBlanks();
    void animationsMoveWithinTheUsersColours();
    void stateJsonRoundTripsEveryField();
    void stateJsonRefusesForeignOrBrokenContent();
    void stateFileSetsUnusableFilesAside();
    void hardwareIsConsistentWithTheModuleCount();
    void meminfoGivesLoadAndUse();
    void commandLineIsChecked();
};

void TestControlCore::staticRenderingScalesAndBlanks()
{
    const HardwareInfo hardware = modules(3, 5);
    ControlState state = defaultControlState();
    for (int slot = 0; slot < 8; ++slot)
        state.module(slot).lightMode = 6; // Static
    ModuleLighting& rgb = state.module(0);
    rgb.rgb[0] = 0x00FF8040;
    rgb.bright[0] = 0.5f;
    rgb.rgb[1] = 0x000000FF;
    rgb.bright[1] = 0.0f;
    ModuleLighting& single = state.module(1);
    single.colorMode = 1;
    single.singleRGB = 0x0000C8;
    single.singleBright = 0.5f;
    state.module(2).turnOff = true;

    EffectRenderer::Colors out;
    EffectRenderer::render(state, hardware, 12.3, out);
    QCOMPARE(out[0][0], COLORREF(0x00804020));
    QCOMPARE(out[0][1], COLORREF(0));
    QCOMPARE(out[0][2], kDefaultColors[2]);
    for (int led = 0; led < 5; ++led)
        QCOMPARE(out[1][led], COLORREF(0x000064));
    for (int led = 5; led < 12; ++led) {
        QCOMPARE(out[0][led], COLORREF(0)); // past the module's LEDs
        QCOMPARE(out[1][led], COLORREF(0));
    }
    for (int led = 0; led < 12; ++led) {
        QCOMPARE(out[2][led], COLORREF(0)); // switched off
        QCOMPARE(out[3][led], COLORREF(0)); // absent
    }
    // Colour mode OFF shows the mode's own colours.
    state.module(0).colorMode = 2;
    EffectRenderer::render(state, hardware, 0.0, out);
    QCOMPARE(out[0][1], kDefaultColors[1]);
    // Switching a module off again blanks it at any time.
    state.module(1).turnOff = true;
    EffectRenderer::render(state, hardware, 99.0, out);
    QCOMPARE(out[1][0], COLORREF(0));
    QCOMPARE(EffectRenderer::scale(0x00FFFFFF, 2.0), COLORREF(0x00FFFFFF));
    QCOMPARE(EffectRenderer::scale(0x00FFFFFF, -1.0), COLORREF(0));
    QCOMPARE(EffectRenderer::scale(0x00FFFFFF, std::nan("")), COLORREF(0));
}

void TestControlCore::animationsMoveWithinTheUsersColours()
{
    const HardwareInfo hardware = modules(1, 8);
    ControlState state = defaultControlState();
    ModuleLighting& module = state.module(0);
    module.colorMode = 1;
    module.singleRGB = 0x00FF0000; // blue
    module.singleBright = 1.0f;
    module.lightSpeed = 2;
    const double cycle = EffectRenderer::period(2);
    EffectRenderer::Colors a;
    EffectRenderer::Colors b;

    module.lightMode = EffectRenderer::Pulse;
    EffectRenderer::render(state, hardware, 0.0, a);
    EffectRenderer::render(state, hardware, cycle / 2, b);
    QCOMPARE(a[0][0], COLORREF(0));
    QCOMPARE(b[0][0], COLORREF(0x00FF0000));
    EffectRenderer::render(state, hardware, cycle / 4, a);
    QVERIFY((a[0][0] & 0xFFFF) == 0 && a[0][0] > 0 && a[0][0] < 0x00FF0000);

    module.lightMode = EffectRenderer::Wave;
    EffectRenderer::render(state, hardware, 0.3, a);
    QVERIFY(a[0][0] != a[0][2]);
    for (int led = 0; led < 8; ++led)
        QVERIFY((a[0][led] & 0xFFFF) == 0);

    module.lightMode = EffectRenderer::Flow;
    module.colorMode = 0;
    for (int led = 0; led < 8; ++led)
        module.rgb[led] = COLORREF(led + 1);
    std::fill(std::begin(module.bright), std::end(module.bright), 1.0f);
    EffectRenderer::render(state, hardware, 0.0, a);
    EffectRenderer::render(state, hardware, cycle / 8 + 0.001, b);
    QCOMPARE(a[0][0], COLORREF(1));
    QCOMPARE(b[0][0], COLORREF(2));
    QCOMPARE(b[0][7], COLORREF(1));

    module.lightMode = EffectRenderer::Spectrum;
    EffectRenderer::render(state, hardware, 0.0, a);
    EffectRenderer::render(state, hardware, cycle / 3, b);
    QCOMPARE(a[0][0], COLORREF(0x0000FF));
    QVERIFY(a[0][0] != b[0][0]);

    module.lightMode = EffectRenderer::Blink;
    EffectRenderer::render(state, hardware, cycle * 0.25, a);
    EffectRenderer::render(state, hardware, cycle * 0.75, b);
    QCOMPARE(a[0][0], COLORREF(1));
    QCOMPARE(b[0][0], COLORREF(0));
}

void TestControlCore::stateJsonRoundTripsEveryField()
{
    ControlState state = defaultControlState();
    state.profile = 4;
    state.slotOrder[0] = 3;
    state.slotOrder[3] = 0;
    state.profiles[4][7] = ModuleLighting{37, 3, 0, true, {}, {}, 0x00ABCDEF, 0.3f};
    state.profiles[1][0].bright[11] = 0.7f;
    state.profiles[1][0].rgb[11] = 0x00010203;
    state.noti.reserved0 = -5;
    state.noti.loadingValue = 66;
    state.noti.pad9[1] = 0x77;
    state.setting = SettingData{7, false, true, true, 200};
    SimulationConfig simulation;
    simulation.modules = 6;
    simulation.leds = 5;
    simulation.models = {"KX44", "KX45"};

    const QByteArray text = QJsonDocument(StateJson::toJson(state, simulation)).toJson();
    ControlState back;
    SimulationConfig backSimulation;
    QString error;
    QVERIFY2(
        StateJson::fromJson(QJsonDocument::fromJson(text).object(), &back, &backSimulation, &error),
        qPrintable(error));
    QVERIFY(back == state);
    QVERIFY(backSimulation == simulation);
    QVERIFY(text.contains("\"#030201\"")); // colours read as #rrggbb

    COLORREF color = 0;
    QCOMPARE(StateJson::colorToText(0x000000FF), QStringLiteral("#ff0000"));
    QVERIFY(StateJson::colorFromText(QStringLiteral("#00ff80"), &color));
    QCOMPARE(color, COLORREF(0x0080FF00));
    QVERIFY(!StateJson::colorFromText(QStringLiteral("00ff80"), &color));
    QVERIFY(!StateJson::colorFromText(QStringLiteral("#00ff8"), &color));
    QVERIFY(!StateJson::colorFromText(QStringLiteral("#00gg80"), &color));
}

void TestControlCore::stateJsonRefusesForeignOrBrokenContent()
{
    const QJsonObject good = stateObject(defaultControlState());
    QVERIFY(readable(good));

    auto with = [&](const QString& key, const QJsonValue& value) {
        QJsonObject object = good;
        object.insert(key, value);
        return object;
    };
    QVERIFY(!readable(QJsonObject{}));
    QVERIFY(!readable(with(QStringLiteral("format"), QStringLiteral("something-else"))));
    QVERIFY(!readable(with(QStringLiteral("version"), 2)));
    QVERIFY(!readable(with(QStringLiteral("profile"), 5)));
    QVERIFY(!readable(with(QStringLiteral("profile"), 1.5)));
    QVERIFY(!readable(with(QStringLiteral("slotOrder"), QJsonArray{0, 1, 2})));
    QVERIFY(!readable(with(QStringLiteral("slotOrder"), QJsonArray{0, 1, 2, 3, 4, 5, 6, 9})));
    QJsonObject missing = good;
    missing.remove(QStringLiteral("settings"));
    QVERIFY(!readable(missing));

    auto withModule = [&](const QString& key, const QJsonValue& value) {
        QJsonObject object = good;
        QJsonArray profiles = object.value(QStringLiteral("profiles")).toArray();
        QJsonArray modules = profiles.at(2).toArray();
        QJsonObject module = modules.at(5).toObject();
        module.insert(key, value);
        modules.replace(5, module);
        profiles.replace(2, modules);
        object.insert(QStringLiteral("profiles"), profiles);
        return object;
    };
    QVERIFY(readable(withModule(QStringLiteral("lightMode"), 37)));
    QVERIFY(!readable(withModule(QStringLiteral("lightMode"), 38)));
    QVERIFY(!readable(withModule(QStringLiteral("colorMode"), QStringLiteral("1"))));
    QVERIFY(!readable(withModule(QStringLiteral("singleBrightness"), 1.01)));
    QVERIFY(!readable(withModule(QStringLiteral("singleColor"), QStringLiteral("red"))));
    QVERIFY(!readable(withModule(QStringLiteral("brightness"), QJsonArray{1, 1})));

    QJsonObject simulation = good.value(QStringLiteral("simulation")).toObject();
    simulation.insert(QStringLiteral("leds"), 6);
    QVERIFY(!readable(with(QStringLiteral("simulation"), simulation)));
    simulation.insert(QStringLiteral("leds"), 8);
    simulation.insert(QStringLiteral("models"), QJsonArray{});
    QVERIFY(!readable(with(QStringLiteral("simulation"), simulation)));
    simulation.insert(QStringLiteral("models"), QJsonArray{QStringLiteral("KX 44")});
    QVERIFY(!readable(with(QStringLiteral("simulation"), simulation)));
}

void TestControlCore::stateFileSetsUnusableFilesAside()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("sub/state.json"));
    StateFile file(path);
    ControlState state;
    SimulationConfig simulation;
    QCOMPARE(file.load(&state, &simulation), StateFile::LoadResult::Missing);
    QVERIFY(state == defaultControlState());

    state.profile = 2;
    state.profiles[2][1].lightMode = 11;
    simulation.modules = 2;
    QVERIFY(file.save(state, simulation));
    ControlState loaded;
    SimulationConfig loadedSimulation;
    QCOMPARE(file.load(&loaded, &loadedSimulation), StateFile::LoadResult::Loaded);
    QVERIFY(loaded == state);
    QCOMPARE(loadedSimulation.modules, 2);
    QCOMPARE(QDir(dir.filePath(QStringLiteral("sub"))).entryList(QDir::Files).size(), 1);

    const QByteArray unusable[] = {QByteArray("{\"format\": \"norvalex-control-state\", "),
                                   QByteArray("[1, 2, 3]"),
                                   QByteArray("{\"format\": \"someone-else\", \"version\": 1}"),
                                   QByteArray("\xff\xfe garbage")};
    for (const QByteArray& content : unusable) {
        QFile out(path);
        QVERIFY(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
        out.write(content);
        out.close();
        QCOMPARE(file.load(&loaded, &loadedSimulation), StateFile::LoadResult::SetAside);
        QVERIFY(loaded == defaultControlState());
        QVERIFY(!QFile::exists(path));
        QVERIFY(!file.setAsidePath().isEmpty());
        QFile aside(file.setAsidePath());
        QVERIFY(aside.open(QIODevice::ReadOnly));
        QCOMPARE(aside.readAll(), content); // kept as it was, for a look later
    }
    QCOMPARE(QDir(dir.filePath(QStringLiteral("sub"))).entryList(QDir::Files).size(),
             int(std::size(unusable)));

    // A save cut short by a kill leaves its temporary file; the next start removes it and
    // nothing else.
    QVERIFY(file.save(state, simulation));
    for (const char* name : {"state.json.Ab12Cd", "state.json.notes", "other.json.Ab12Cd"}) {
        QFile leftover(dir.filePath(QStringLiteral("sub/") + QLatin1String(name)));
        QVERIFY(leftover.open(QIODevice::WriteOnly));
        leftover.write("{\"format\"");
    }
    QCOMPARE(file.load(&loaded, &loadedSimulation), StateFile::LoadResult::Loaded);
    const QStringList names = QDir(dir.filePath(QStringLiteral("sub"))).entryList(QDir::Files);
    QVERIFY(!names.contains(QStringLiteral("state.json.Ab12Cd")));
    QVERIFY(names.contains(QStringLiteral("state.json.notes")));
    QVERIFY(names.contains(QStringLiteral("other.json.Ab12Cd")));
    QVERIFY(names.contains(QStringLiteral("state.json")));
}

void TestControlCore::hardwareIsConsistentWithTheModuleCount()
{
    for (int count : {0, 1, 4, 5, 8}) {
        const HardwareInfo info = modules(count, count % 2 ? 5 : 8);
        QCOMPARE(info.memoryCount, count);
        QCOMPARE(info.slotCount, count <= 4 ? 4 : 8);
        const HWData data = buildHWData(info, defaultControlState());
        for (int i = 0; i < 8; ++i) {
            const bool present = i < count;
            QCOMPARE(data.slotIndex[i], present ? i : -1);
            QCOMPARE(data.memoryData[i].memorySlot, present ? i : -1);
            QCOMPARE(data.memoryData[i].ledNum, present ? (count % 2 ? 5 : 8) : -1);
            QCOMPARE(QByteArray(data.memoryData[i].modelCode),
                     present ? QByteArray("KX44") : QByteArray("N/A"));
            QCOMPARE(QByteArray(data.memoryData[i].type),
                     present ? QByteArray("DDR5") : QByteArray("N/A"));
            QCOMPARE(data.memoryData[i].memoryModuleSize, present ? 16384 : -1);
        }
    }

    SimulationConfig config;
    config.modules = 3;
    config.models = {"KX44", "KZ80"};
    HardwareMonitor monitor(config, QStringLiteral("/nonexistent"));
    QCOMPARE(monitor.info().modules[1].modelCode, std::string("KZ80"));
    QCOMPARE(monitor.info().modules[2].modelCode, std::string("KX44"));
    for (int step = 0; step < 400; ++step) {
        monitor.refresh();
        for (int i = 0; i < 3; ++i) {
            QVERIFY(monitor.info().modules[i].temperature >= HardwareMonitor::kMinTemperature);
            QVERIFY(monitor.info().modules[i].temperature <= HardwareMonitor::kMaxTemperature);
        }
    }
    const uint32_t now = uint32_t(QDateTime::currentSecsSinceEpoch());
    QVERIFY(monitor.info().updateTime + 2 >= now);
}

void TestControlCore::meminfoGivesLoadAndUse()
{
    double load = 0;
    int used = 0;
    const QByteArray sample = "MemTotal:       16000000 kB\n"
                              "MemFree:         1000000 kB\n"
                              "MemAvailable:    4000000 kB\n"
                              "Buffers:          200000 kB\n";
    QVERIFY(HardwareMonitor::parseMeminfo(sample, &load, &used));
    QCOMPARE(load, 75.0);
    QCOMPARE(used, 12000000 / 1024);
    QVERIFY(!HardwareMonitor::parseMeminfo("MemTotal: 100 kB\n", &load, &used));
    QVERIFY(!HardwareMonitor::parseMeminfo("MemTotal: 0 kB\nMemAvailable: 0 kB\n", &load, &used));
    QVERIFY(!HardwareMonitor::parseMeminfo("MemTotal: 10 kB\nMemAvailable: 20 kB\n", &load, &used));
    QVERIFY(!HardwareMonitor::parseMeminfo("garbage", &load, &used));

    // The real file, where there is one.
    SimulationConfig config;
    HardwareMonitor monitor(config);
    if (QFile::exists(QStringLiteral("/proc/meminfo"))) {
        QVERIFY(monitor.info().memoryLoad >= 0.0 && monitor.info().memoryLoad <= 100.0);
        QVERIFY(monitor.info().physicalMemoryUsed > 0);
    }
}

void TestControlCore::commandLineIsChecked()
{
    auto parse = [](QStringList args, ServiceOptions* options, bool* exitNow) {
        args.prepend(QStringLiteral("norvalex-control"));
        QString message;
        return options->parse(args, &message, exitNow);
    };
    ServiceOptions options;
    bool exitNow = false;
    QVERIFY(parse({}, &options, &exitNow));
    QVERIFY(!exitNow);
    QVERIFY(options.apply(SimulationConfig{}) == SimulationConfig{});

    QVERIFY(parse({QStringLiteral("--modules"), QStringLiteral("6"), QStringLiteral("--leds"),
                   QStringLiteral("5"), QStringLiteral("--model"), QStringLiteral("KX44,KZ80")},
                  &options, &exitNow));
    SimulationConfig stored;
    stored.modules = 2;
    const SimulationConfig effective = options.apply(stored);
    QCOMPARE(effective.modules, 6);
    QCOMPARE(effective.leds, 5);
    QCOMPARE(effective.models, (std::vector<std::string>{"KX44", "KZ80"}));

    for (const QStringList& bad :
         {QStringList{QStringLiteral("--modules"), QStringLiteral("9")},
          QStringList{QStringLiteral("--modules"), QStringLiteral("-1")},
          QStringList{QStringLiteral("--modules"), QStringLiteral("four")},
          QStringList{QStringLiteral("--leds"), QStringLiteral("6")},
          QStringList{QStringLiteral("--model"), QStringLiteral("KX44,,KZ80")},
          QStringList{QStringLiteral("--model"), QString(64, QLatin1Char('K'))},
          QStringList{QStringLiteral("--bogus")}, QStringList{QStringLiteral("extra")}}) {
        ServiceOptions fresh;
        QVERIFY2(!parse(bad, &fresh, &exitNow), qPrintable(bad.join(QLatin1Char(' '))));
    }
    ServiceOptions help;
    QVERIFY(parse({QStringLiteral("--help")}, &help, &exitNow));
    QVERIFY(exitNow);
}

QTEST_GUILESS_MAIN(TestControlCore)
#include "tst_controlcore.moc"
