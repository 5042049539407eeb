// Sensors, channel mode and the whole probe against a fake root.

#include "ChannelMode.h"
#include "DmiCache.h"
#include "FixtureRoot.h"
#include "Hwmon.h"
#include "MemoryProbe.h"

#include <QProcess>
#include <QtTest>

using fixture::Device;

class TestMemoryProbe : public QObject
{
    Q_OBJECT

private slots:
    void moduleSensors();
    void cpuTemperature();
    void channelMode_data();
    void channelMode();
    void wholeMachine();
    void withoutSources();
    void cacheTool();
};

void TestMemoryProbe::moduleSensors()
{
    fixture::Root root;
    root.hwmon(0, "acpitz", {}, {{"temp1", "27800"}});
    root.hwmon(1, "jc42", QStringLiteral("0-0019"), {{"temp1", "41250"}});
    root.hwmon(2, "jc42", QStringLiteral("0-0018"), {{"temp1", "39500"}});
    root.hwmon(3, "spd5118", QStringLiteral("1-0052"), {{"temp1", "-"}});    // no input file
    root.hwmon(4, "spd5118", QStringLiteral("1-0051"), {{"temp1", "hot"}});  // not a number
    root.hwmon(5, "jc42", QStringLiteral("platform"), {{"temp1", "50000"}}); // not I2C
    root.mkdir(QStringLiteral("sys/class/hwmon/hwmon6"));                    // no name

    const std::vector<Hwmon::ModuleSensor> sensors = Hwmon::moduleSensors(root.path());
    QCOMPARE(int(sensors.size()), 4);
    // In bus and slot order, rounded to whole degrees.
    QCOMPARE(sensors.at(0).address, 0x18);
    QCOMPARE(sensors.at(0).celsius, 40);
    QCOMPARE(sensors.at(1).address, 0x19);
    QCOMPARE(sensors.at(1).celsius, 41);
    QCOMPARE(sensors.at(2).address, 0x51);
    QCOMPARE(sensors.at(2).celsius, -1);
    QCOMPARE(sensors.at(3).bus, 1);
    QCOMPARE(sensors.at(3).celsius, -1);

    int bus = 0, address = 0;
    QVERIFY(Hwmon::parseI2cName(QStringLiteral("12-001a"), &bus, &address));
    QCOMPARE(bus, 12);
    QCOMPARE(address, 0x1A);
    QVERIFY(!Hwmon::parseI2cName(QStringLiteral("i2c-12"), &bus, &address));
    QVERIFY(!Hwmon::parseI2cName(QStringLiteral("0-00zz"), &bus, &address));
    QVERIFY(Hwmon::moduleSensors(root.path() + QStringLiteral("/nowhere")).empty());
}

void TestMemoryProbe::cpuTemperature()
{
    {
        // coretemp: the package sensor, whatever its number.
        fixture::Root root;
        root.hwmon(0, "nvme", {}, {{"temp1", "35000", "Composite"}});
        root.hwmon(1, "coretemp", {},
                   {{"temp1", "61000", "Package id 0"},
                    {"temp2", "58000", "Core 0"},
                    {"temp3", "66000", "Core 1"}});
        QCOMPARE(Hwmon::cpuTemperature(root.path()).value_or(-99), 61.0);
    }
    {
        // k10temp with Tctl and Tdie: the die.
        fixture::Root root;
        root.hwmon(0, "k10temp", {}, {{"temp1", "72500", "Tctl"}, {"temp2", "62500", "Tdie"}});
        QCOMPARE(Hwmon::cpuTemperature(root.path()).value_or(-99), 62.5);
    }
    {
        // Only Tctl, and an unlabelled cpu_thermal: temp1.
        fixture::Root root;
        root.hwmon(0, "zenpower", {}, {{"temp1", "55125", "Tctl"}});
        QCOMPARE(Hwmon::cpuTemperature(root.path()).value_or(-99), 55.125);
        fixture::Root pi;
        pi.hwmon(0, "cpu_thermal", {}, {{"temp1", "48312"}});
        QCOMPARE(Hwmon::cpuTemperature(pi.path()).value_or(-99), 48.312);
    }
    {
        // An unreadable CPU sensor, or none: no reading at all.
        fixture::Root root;
        root.hwmon(0, "coretemp", {}, {{"temp1", "-", "Package id 0"}});
        root.hwmon(1, "jc42", QStringLiteral("0-0018"), {{"temp1", "40000"}});
        QVERIFY(!Hwmon::cpuTemperature(root.path()));
    }
}

void TestMemoryProbe::channelMode_data()
{
    QTest::addColumn<QStringList>("locators"); // "locator|bank", empty for an empty slot
    QTest::addColumn<int>("channels");
    QTest::newRow("Intel dual") << QStringList{"ChannelA-DIMM0|BANK 0", "", "ChannelB-DIMM0|BANK 2",
                                               ""}
                                << 2;
    QTest::newRow("Intel single, two modules")
        << QStringList{"ChannelA-DIMM0|BANK 0", "ChannelA-DIMM1|BANK 1"} << 1;
    QTest::newRow("AMD banks") << QStringList{"DIMM 1|P0 CHANNEL A", "DIMM 1|P0 CHANNEL B"} << 2;
    QTest::newRow("board names quad")
        << QStringList{"DIMM_A1|", "DIMM_B1|", "DIMM_C1|", "DIMM_D1|"} << 4;
    QTest::newRow("short names") << QStringList{"A2|", "B2|"} << 2;
    QTest::newRow("unknown names") << QStringList{"DIMM 0|BANK 0", "DIMM 1|BANK 1"} << -1;
    QTest::newRow("nothing populated") << QStringList{"", ""} << -1;
}

void TestMemoryProbe::channelMode()
{
    QFETCH(QStringList, locators);
    QFETCH(int, channels);
    SmbiosMemory memory;
    for (const QString& entry : locators) {
        MemoryDevice device;
        device.present = !entry.isEmpty();
        device.locator = entry.section(QLatin1Char('|'), 0, 0);
        device.bankLocator = entry.section(QLatin1Char('|'), 1, 1);
        memory.devices.push_back(device);
    }
    QCOMPARE(ChannelMode::populatedChannels(memory), channels);
}

void TestMemoryProbe::wholeMachine()
{
    // Four slots, DDR5 modules in the second and fourth, the board's dual-channel layout.
    fixture::Root root;
    Device empty;
    Device module;
    module.size = 0x7FFF;
    module.extendedSize = 32768;
    module.type = 0x22;
    module.speed = 6000;
    module.configured = 4800;
    module.part = QStringLiteral("KF560C36-32");
    QByteArray table = fixture::memoryArray(4);
    const char* const locators[] = {"DIMM_A1", "DIMM_A2", "DIMM_B1", "DIMM_B2"};
    for (int i = 0; i < 4; ++i) {
        Device d = i % 2 ? module : empty;
        d.locator = QLatin1String(locators[i]);
        table += fixture::memoryDevice(d, uint16_t(0x11 + i));
    }
    root.dmiTable(table + fixture::endOfTable());
    QList<int> latencies;
    for (int cl = 22; cl <= 50; cl += 2)
        latencies << cl;
    root.eeprom("spd5118", 1, 0x51, fixture::ddr5Spd(333, 16000, 16000, latencies));
    // The second module is slower: its timings set the memory's.
    root.eeprom("spd5118", 1, 0x53, fixture::ddr5Spd(333, 16640, 16000, latencies));
    root.hwmon(0, "spd5118", QStringLiteral("1-0053"), {{"temp1", "44750"}});
    root.hwmon(1, "spd5118", QStringLiteral("1-0051"), {{"temp1", "38000"}});

    MemoryProbe probe(root.path());
    QVERIFY(probe.probe());
    QCOMPARE(probe.source(), QStringLiteral("SMBIOS table"));
    nxproto::HardwareInfo info;
    probe.fill(info);
    probe.readTemperatures(info);
    QCOMPARE(info.slotCount, 4);
    QCOMPARE(info.memoryCount, 2);
    QCOMPARE(info.channel, 2);
    QCOMPARE(info.frequency, 4800.0);
    // At 4800 (416 ps): 16.64 ns -> 40 cycles, CL 40; 16 ns -> 39.
    QCOMPARE(info.casLatency, 40.0);
    QCOMPARE(info.tRCD, 39);
    QVERIFY(!info.modules[0].present);
    QVERIFY(!info.modules[2].present);
    for (int slot : {1, 3}) {
        const nxproto::ModuleInfo& m = info.modules[slot];
        QVERIFY(m.present);
        QCOMPARE(m.sizeMB, 32768);
        QCOMPARE(m.type, std::string("DDR5"));
        QCOMPARE(m.frequency, 4800.0);
        QCOMPARE(m.modelCode, std::string("KF560C36-32")); // nothing lights it
        QCOMPARE(m.ledNum, -1);
    }
    QCOMPARE(info.modules[1].temperature, 38);
    QCOMPARE(info.modules[3].temperature, 45);

    // A sensor that stops answering reads -1; the others stay matched to their slots.
    QFile::remove(root.path() + QStringLiteral("/sys/class/hwmon/hwmon1/temp1_input"));
    probe.readTemperatures(info);
    QCOMPARE(info.modules[1].temperature, -1);
    QCOMPARE(info.modules[3].temperature, 45);
}

void TestMemoryProbe::withoutSources()
{
    // No SMBIOS: nothing is probed.
    fixture::Root bare;
    bare.meminfo(1000, 500);
    MemoryProbe none(bare.path());
    QVERIFY(!none.probe());

    // SMBIOS only: sizes and speed, but no timings nor temperatures, and one EEPROM for two
    // modules is not matched to either.
    fixture::Root root;
    Device d;
    d.size = 8192;
    d.configured = 3200;
    d.locator = QStringLiteral("ChannelA-DIMM0");
    Device e = d;
    e.locator = QStringLiteral("ChannelB-DIMM0");
    e.part = QString();
    root.dmiTable(fixture::memoryArray(2) + fixture::memoryDevice(d, 0x11) +
                  fixture::memoryDevice(e, 0x12));
    root.eeprom("ee1004", 0, 0x50, fixture::ddr4Spd(625, 13750, 13750, 1u << 15, "FROM-SPD"));
    MemoryProbe probe(root.path());
    QVERIFY(probe.probe());
    nxproto::HardwareInfo info;
    probe.fill(info);
    probe.readTemperatures(info);
    QCOMPARE(info.memoryCount, 2);
    QCOMPARE(info.frequency, 3200.0);
    QCOMPARE(info.casLatency, -1.0);
    QCOMPARE(info.tRCD, -1);
    QCOMPARE(info.modules[0].temperature, -1);
    QCOMPARE(info.modules[1].modelCode, std::string("N/A"));
    // With the second EEPROM both match, and a module without a part number takes the SPD's.
    root.eeprom("ee1004", 0, 0x51, fixture::ddr4Spd(625, 13750, 13750, 1u << 15, "FROM-SPD"));
    QVERIFY(probe.probe());
    probe.fill(info);
    QCOMPARE(info.casLatency, 22.0);
    QCOMPARE(info.modules[1].modelCode, std::string("FROM-SPD"));
}

void TestMemoryProbe::cacheTool()
{
    const auto run = [](const QStringList& arguments) {
        QProcess tool;
        tool.start(QStringLiteral(NX_DMI_CACHE_TOOL), arguments);
        return tool.waitForFinished(30000) ? tool.exitCode() : -1;
    };
    fixture::Root root;
    Device d;
    d.size = 16384;
    d.type = 0x22;
    d.configured = 5600;
    d.locator = QStringLiteral("DIMM_A1");
    d.part = QStringLiteral("PART-1");
    const QByteArray table = fixture::memoryArray(2) + fixture::memoryDevice(d, 0x11) +
                             fixture::memoryDevice(Device(), 0x12) + fixture::endOfTable();
    root.dmiTable(table);
    QCOMPARE(run({QStringLiteral("--root"), root.path()}), 0);
    const QString cache = DmiCache::cachePath(root.path());
    QVERIFY(QFileInfo(cache).permissions() & QFileDevice::ReadOther);

    // A user who cannot read the table gets the same from the cache.
    QFile::remove(DmiCache::tablePath(root.path()));
    SmbiosMemory fromCache;
    QString source;
    QVERIFY(DmiCache::load(root.path(), &fromCache, &source));
    QCOMPARE(source, QStringLiteral("SMBIOS cache"));
    QVERIFY(fromCache == SmbiosMemory::decode(table));
    MemoryProbe probe(root.path());
    QVERIFY(probe.probe());

    // No table: an error, and the cache is left as it was; wrong arguments: usage.
    QCOMPARE(run({QStringLiteral("--root"), root.path()}), 1);
    QVERIFY(QFileInfo::exists(cache));
    QCOMPARE(run({QStringLiteral("--frobnicate")}), 2);
}

QTEST_GUILESS_MAIN(TestMemoryProbe)
#include "tst_memory_probe.moc"
